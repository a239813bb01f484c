#include "MessengerFixture.h"

#include <Velto/Loggers.h>

#include <spdlog/logger.h>
#include <spdlog/sinks/ostream_sink.h>

#include <future>
#include <set>
#include <sstream>
#include <thread>

namespace Velto::Test {
namespace {

class MessengerTest : public MessengerFixture {};

TEST_F(MessengerTest, CarriesMessagesBothWaysOverTlsAndInPlain) {
    for (const bool encrypted : {true, false}) {
        SCOPED_TRACE(encrypted);
        TestPeer peer(encrypted);
        const auto heard = std::make_shared<Recorder>();
        messenger = makeMessenger();
        messenger->AddObserver(heard);
        for (const char* type : {"GetName", "NameChanged"})
            messenger->registerResponse(type, 1, heard);
        EXPECT_EQ(messenger->send(makeMessage("GetName")), CommunicationResult::NotConnected);
        ASSERT_TRUE(choose(peer, encrypted));
        ASSERT_TRUE(heard->hears({"connected"}));

        const std::string body = "{ \"verbatim\" : 1.50 }";
        EXPECT_EQ(messenger->send(makeMessage("GetName", body, "1")), CommunicationResult::Success);
        ASSERT_TRUE(heard->hears({"connected", "GetName " + body}));
        ASSERT_EQ(peer.received().size(), 1U);
        EXPECT_EQ(peer.received()[0], Wire::encodeFrame({Wire::Kind::Request, "GetName", 1, "1", 0}, body));

        peer.send(frame(Wire::Kind::Notification, "NameChanged", "{}"));
        peer.send(frame(Wire::Kind::Notification, "NobodyAsked", "{}"));
        peer.send(frame(Wire::Kind::Error, "GetName", "", 2));
        EXPECT_TRUE(heard->hears({"connected", "GetName " + body, "NameChanged {}", "error GetName 2"}));
    }
}

TEST_F(MessengerTest, ReportsNoConnectionThatWasLetGoOfBeforeTheReport) {
    TestPeer peer(true);
    messenger->registerResponse("Hold", 1, recorder);
    choose(peer);
    ASSERT_TRUE(recorder->hears({"connected"}));
    std::promise<void> held;
    std::promise<void> release;
    recorder->atCall("Hold ", [&] {
        held.set_value();
        release.get_future().wait();
    });
    peer.send(frame(Wire::Kind::Notification, "Hold"));
    held.get_future().wait();
    choose(peer); // would be reported as soon as the callback returns
    messenger->disconnect();
    release.set_value();
    EXPECT_TRUE(recorder->hears({"connected", "Hold ", "lost"}));
}

TEST_F(MessengerTest, ReleasesTheBodysBufferAsSoonAsSendReturns) {
    TestPeer peer(true);
    choose(peer);
    ASSERT_TRUE(recorder->hears({"connected"}));
    const auto buffers = BufferQueue::Create(1, 64);
    for (int message = 0; message < 3; ++message) {
        auto buffer = buffers->AcquireBuffer(64, false);
        ASSERT_TRUE(buffer);
        buffer->GetBuffer().AppendDataPtr("{}", 2);
        messenger->send(std::make_shared<IMessage>("Any", 1, "", std::move(buffer),
                                                   IMessage::GenericMessageType::Request));
    }
}

TEST_F(MessengerTest, KeepsTheOrderOfManyMessagesOnOneThread) {
    TestPeer peer(true);
    class Ordered : public IResponseHandler {
    public:
        void handleResponse(std::shared_ptr<const IResponse> response) override {
            threads.insert(std::this_thread::get_id());
            inOrder = inOrder && response->getBody() == std::to_string(count);
            ++count;
        }
        std::set<std::thread::id> threads;
        bool inOrder = true;
        std::atomic<int> count{0};
    };
    const auto ordered = std::make_shared<Ordered>();
    messenger->registerResponse("Count", 1, ordered);
    choose(peer);
    ASSERT_TRUE(recorder->hears({"connected"}));
    for (int number = 0; number < 500; ++number)
        ASSERT_EQ(messenger->send(makeMessage("Count", std::to_string(number))),
                  CommunicationResult::Success);
    ASSERT_TRUE(eventually([&] { return ordered->count == 500; }));
    EXPECT_TRUE(ordered->inOrder);
    EXPECT_EQ(ordered->threads.size(), 1U);
    EXPECT_EQ(ordered->threads.count(std::this_thread::get_id()), 0U);
}

TEST_F(MessengerTest, SendsTheLargestFrameAndRefusesALargerOne) {
    TestPeer peer(true);
    messenger->registerResponse("Big", 1, recorder);
    choose(peer);
    ASSERT_TRUE(recorder->hears({"connected"}));
    EXPECT_EQ(messenger->send(makeMessage("Big", std::string(Wire::maximumFrameSize, 'x'))),
              CommunicationResult::TooLarge);
    const std::string body(Wire::maximumFrameSize - 100, 'x');
    EXPECT_EQ(messenger->send(makeMessage("Big", body)), CommunicationResult::Success);
    ASSERT_TRUE(eventually([&] { return recorder->calls().size() == 2; }));
    EXPECT_EQ(recorder->calls().back().size(), body.size() + 4);
}

TEST_F(MessengerTest, WritesWhatWasSentBeforeADisconnect) {
    TestPeer peer(true);
    choose(peer);
    ASSERT_TRUE(recorder->hears({"connected"}));
    for (int number = 0; number < 20; ++number)
        messenger->send(makeMessage("SetName", std::to_string(number)));
    messenger->disconnect();
    EXPECT_EQ(messenger->send(makeMessage("SetName")), CommunicationResult::NotConnected);
    EXPECT_TRUE(eventually([&] { return peer.received().size() == 20; }));
    EXPECT_TRUE(eventually([&] { return peer.closeCode() == 1000; }));
    EXPECT_TRUE(recorder->hears({"connected", "lost"}));
}

TEST_F(MessengerTest, ReportsConnectedAgainForTheSameUnitAndLosesItForAnother) {
    TestPeer first(true);
    TestPeer second(true);
    choose(first);
    ASSERT_TRUE(recorder->hears({"connected"}));
    choose(first);
    ASSERT_TRUE(recorder->hears({"connected", "connected"}));
    EXPECT_EQ(first.connectionsTaken(), 1);
    choose(second);
    // Sent before the second connection or over it, never over the first.
    messenger->send(makeMessage("Who"));
    ASSERT_TRUE(recorder->hears({"connected", "connected", "lost", "connected"}));
    messenger->send(makeMessage("Who"));
    ASSERT_TRUE(eventually([&] { return !second.received().empty() && first.closeCode() == 1000; }));
    EXPECT_TRUE(first.received().empty());
}

TEST_F(MessengerTest, ReplacesAnAttemptUnderWayWithoutAWord) {
    const TestPeer hanging(true, Manner::HangAtOnce);
    const TestPeer good(true);
    choose(hanging);
    ASSERT_TRUE(eventually([&] { return hanging.connectionsTaken() == 1; }));
    choose(good);
    EXPECT_TRUE(recorder->hears({"connected"}));
}

TEST_F(MessengerTest, ConnectsLaterWhenAskedTo) {
    const TestPeer peer(true);
    EXPECT_TRUE(messenger->chooseUnit("localhost", "unit", peer.port(), true, false, 0));
    EXPECT_FALSE(messenger->chooseUnit("", "unit", peer.port(), true, false, 0));
    EXPECT_FALSE(messenger->chooseUnit("localhost", "unit", 0, true, false, 0));
    EXPECT_EQ(peer.connectionsTaken(), 0);
    EXPECT_EQ(messenger->connect(10000), CommunicationResult::Success);
    EXPECT_TRUE(recorder->hears({"connected"}));
}

TEST_F(MessengerTest, MayBeCalledInsideItsCallbacks) {
    TestPeer peer(true);
    messenger->registerResponse("Echo", 1, recorder);
    recorder->atCall("connected", [&] {
        EXPECT_EQ(messenger->send(makeMessage("Echo", "1")), CommunicationResult::Success);
        messenger->registerResponse("Other", 1, recorder);
    });
    choose(peer);
    ASSERT_TRUE(recorder->hears({"connected", "Echo 1"}));
    recorder->atCall("Echo 2", [&] { messenger->disconnect(); });
    messenger->send(makeMessage("Echo", "2"));
    ASSERT_TRUE(recorder->hears({"connected", "Echo 1", "Echo 2", "lost"}));
    recorder->atCall("connected", [&] { throw std::runtime_error("observer"); });
    choose(peer);
    ASSERT_TRUE(recorder->hears({"connected", "Echo 1", "Echo 2", "lost", "connected"}));
    recorder->atCall("Echo 3", [&] { throw 3; });
    messenger->send(makeMessage("Echo", "3"));
    messenger->send(makeMessage("Echo", "4"));
    EXPECT_TRUE(recorder->hears({"connected", "Echo 1", "Echo 2", "lost", "connected", "Echo 3", "Echo 4"}));
}

TEST_F(MessengerTest, DropsUnreadableMessagesWithOneLineAndGoesOn) {
    std::ostringstream written;
    auto logger = std::make_shared<spdlog::logger>(
        "messages", std::make_shared<spdlog::sinks::ostream_sink_mt>(written, true));
    InitLoggerInterprocMessaging([&](const std::string&) { return logger; });
    TestPeer peer(true);
    messenger->registerResponse("Good", 1, recorder);
    choose(peer);
    ASSERT_TRUE(recorder->hears({"connected"}));
    for (const std::string& bad : {std::string(), std::string("passphrase"), std::string("{}\npassphrase"),
                                   std::string("{\"kind\":\"passphrase\",\"type\":\"Good\"}\n"),
                                   frame(Wire::Kind::Request, "Good", "passphrase")})
        peer.send(bad);
    peer.send(frame(Wire::Kind::Response, "Good", "1"));
    EXPECT_TRUE(recorder->hears({"connected", "Good 1"}));
    ReleaseLoggers();
    EXPECT_NE(written.str(), "");
    EXPECT_EQ(written.str().find('\n'), written.str().size() - 1) << written.str();
    EXPECT_EQ(written.str().find("passphrase"), std::string::npos);
}

TEST_F(MessengerTest, EndsOnlyWhenNoCallbackRunsAndNoneFollows) {
    TestPeer peer(true);
    messenger->registerResponse("Flood", 1, recorder);
    std::promise<void> entered;
    std::promise<void> release;
    recorder->atCall("Flood 0", [&] {
        entered.set_value();
        release.get_future().wait();
    });
    choose(peer);
    ASSERT_TRUE(recorder->hears({"connected"}));
    for (int number = 0; number < 100; ++number)
        peer.send(frame(Wire::Kind::Notification, "Flood", std::to_string(number)));
    entered.get_future().wait();
    auto ended = std::async(std::launch::async, [this] { messenger.reset(); });
    EXPECT_EQ(ended.wait_for(50ms), std::future_status::timeout);
    release.set_value();
    ended.get();
    EXPECT_TRUE(eventually([&] { return peer.closeCode() == 1000; }));
    EXPECT_EQ(recorder->calls(), (Recorder::Calls{"connected", "Flood 0"}));
}

TEST_F(MessengerTest, EndsAtAnyMomentOfItsLife) {
    TestPeer peer(true);
    for (int round = 0; round < 40; ++round) {
        messenger = makeMessenger();
        messenger->AddObserver(recorder);
        messenger->registerResponse("Echo", 1, recorder);
        choose(peer);
        if (round % 4 != 0)
            eventually([&] { return peer.connectionsTaken() > 0; });
        if (round % 4 > 1)
            eventually([&] { return messenger->send(makeMessage("Echo")) == CommunicationResult::Success; });
        messenger.reset();
        const auto calls = recorder->calls().size();
        std::this_thread::yield();
        ASSERT_EQ(recorder->calls().size(), calls);
    }
}

TEST_F(MessengerTest, StandsStillWhileSuspended) {
    TestPeer peer(true);
    messenger->registerResponse("Ping", 1, recorder);
    choose(peer);
    ASSERT_TRUE(recorder->hears({"connected"}));
    ASSERT_EQ(components.Suspend(), Component::Result::Success);
    peer.send(frame(Wire::Kind::Notification, "Ping"));
    messenger->send(makeMessage("Any"));
    EXPECT_EQ(recorder->calls().size(), 1U);
    ASSERT_EQ(components.Resume(), Component::Result::Success);
    EXPECT_TRUE(recorder->hears({"connected", "Ping "}));
    EXPECT_TRUE(eventually([&] { return peer.received().size() == 1; }));
}

/// The components are the test's own business.
class MessengerAloneTest : public MessengerFixture {
protected:
    void SetUp() override {}
};

TEST_F(MessengerAloneTest, MayComeBeforeTheComponentsAndOutliveThem) {
    TestPeer peer(true);
    choose(peer);
    messenger->connect(10000);
    EXPECT_TRUE(recorder->calls().empty());
    ASSERT_EQ(components.Init(false), Component::Result::Success);
    EXPECT_TRUE(recorder->calls().empty());
    ASSERT_EQ(components.Resume(), Component::Result::Success);
    ASSERT_TRUE(recorder->hears({"connected"}));
    components.Suspend();
    components.Shutdown();
    messenger->send(makeMessage("Any"));
    messenger->disconnect();
    choose(peer);
    messenger.reset();
    EXPECT_EQ(recorder->calls(), Recorder::Calls{"connected"});
}

} // namespace
} // namespace Velto::Test
