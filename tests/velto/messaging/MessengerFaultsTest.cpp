#include "MessengerFixture.h"

#include <algorithm>

namespace Velto::Test {
namespace {

using Clock = std::chrono::steady_clock;

struct Fault {
    const char* name;
    Manner manner;
    bool encrypted = true;
    int closeCode = 0; ///< what the peer must be told; 0: nothing in particular
};

std::string nameOf(const testing::TestParamInfo<Fault>& info) {
    return std::string(info.param.name) + (info.param.encrypted ? "" : "InPlain");
}

class AttemptFaultTest : public MessengerFixture, public testing::WithParamInterface<Fault> {};

TEST_P(AttemptFaultTest, EndsTheAttemptInTimeWithANoticeAndTheNextOneWorks) {
    TestPeer peer(GetParam().encrypted, GetParam().manner);
    const auto begin = Clock::now();
    choose(peer, GetParam().encrypted, 300);
    ASSERT_TRUE(recorder->hears({"notice"}));
    // The bound and the time a busy machine may take to notice.
    EXPECT_LT(Clock::now() - begin, 300ms + 3s);
    peer.setManner(Manner::Serve);
    choose(peer, GetParam().encrypted);
    EXPECT_TRUE(recorder->hears({"notice", "connected"}));
}

INSTANTIATE_TEST_SUITE_P(Peers, AttemptFaultTest,
                         testing::Values(Fault{"Hangs", Manner::HangAtOnce},
                                         Fault{"Hangs", Manner::HangAtOnce, false},
                                         Fault{"HangsInUpgrade", Manner::HangInUpgrade},
                                         Fault{"TricklesUpgrade", Manner::TrickleUpgrade},
                                         Fault{"TricklesUpgrade", Manner::TrickleUpgrade, false},
                                         Fault{"RefusesUpgrade", Manner::RefuseUpgrade},
                                         Fault{"SendsGarbage", Manner::GarbageAtOnce},
                                         Fault{"SendsGarbage", Manner::GarbageAtOnce, false},
                                         Fault{"Closes", Manner::CloseAtOnce},
                                         Fault{"Closes", Manner::CloseAtOnce, false}),
                         nameOf);

class ConnectionFaultTest : public MessengerFixture, public testing::WithParamInterface<Fault> {};

TEST_P(ConnectionFaultTest, IsLostOnceAndTheNextConnectionWorks) {
    TestPeer peer(GetParam().encrypted, GetParam().manner);
    choose(peer, GetParam().encrypted);
    ASSERT_TRUE(recorder->hears({"connected", "lost"}));
    if (GetParam().closeCode != 0) {
        EXPECT_TRUE(eventually([&] { return peer.closeCode() == GetParam().closeCode; }));
    }
    peer.setManner(Manner::Serve);
    choose(peer, GetParam().encrypted);
    EXPECT_TRUE(recorder->hears({"connected", "lost", "connected"}));
}

INSTANTIATE_TEST_SUITE_P(Peers, ConnectionFaultTest,
                         testing::Values(Fault{"Resets", Manner::ResetConnection},
                                         Fault{"Resets", Manner::ResetConnection, false},
                                         Fault{"Closes", Manner::CloseConnection},
                                         Fault{"Closes", Manner::CloseConnection, false},
                                         Fault{"BreaksProtocol", Manner::BreakProtocol, true, 1002},
                                         Fault{"AnnouncesAGiant", Manner::AnnounceGiant, true, 1009},
                                         Fault{"SendsAGiantHeader", Manner::GiantHeader, true, 1002}),
                         nameOf);

class MessengerFaultsTest : public MessengerFixture {};

TEST_F(MessengerFaultsTest, GivesUpAPeerThatFallsSilentOrTrickles) {
    const TestPeer silent(true, Manner::HangInFrame);
    const TestPeer trickling(true, Manner::TrickleFrame);
    const TestPeer healthy(true);
    const auto other = std::make_shared<Recorder>();
    const auto third = std::make_shared<Recorder>();
    const auto otherMessenger = makeMessenger();
    const auto thirdMessenger = makeMessenger();
    otherMessenger->AddObserver(other);
    thirdMessenger->AddObserver(third);
    choose(silent);
    otherMessenger->chooseUnit("127.0.0.1", "", trickling.port(), true, true, 10000);
    thirdMessenger->chooseUnit("127.0.0.1", "", healthy.port(), true, true, 10000);
    ASSERT_TRUE(recorder->hears({"connected"}));
    const auto begin = Clock::now();
    EXPECT_TRUE(recorder->hears({"connected", "lost"}));
    EXPECT_TRUE(other->hears({"connected", "lost"}));
    EXPECT_GT(Clock::now() - begin, 4s);
    EXPECT_LT(Clock::now() - begin, 10s);
    // Silent too, but it answers pings.
    EXPECT_EQ(third->calls(), Recorder::Calls{"connected"});
}

TEST_F(MessengerFaultsTest, IsLostAtOnceWhenDisconnectedFromAHungPeer) {
    const TestPeer peer(true, Manner::StopReading);
    auto fastest = Clock::duration::max();
    Recorder::Calls expected;
    for (int round = 0; round < 5; ++round) {
        choose(peer);
        expected.emplace_back("connected");
        ASSERT_TRUE(recorder->hears(expected));
        // More than the sockets between them hold, so that a frame is stuck half way.
        messenger->send(makeMessage("Big", std::string(Wire::maximumFrameSize / 2, 'x')));
        const auto begin = Clock::now();
        messenger->disconnect();
        expected.emplace_back("lost");
        ASSERT_TRUE(recorder->hears(expected));
        fastest = std::min(fastest, Clock::now() - begin);
    }
    EXPECT_LT(fastest, 50ms);
}

TEST_F(MessengerFaultsTest, BoundsWhatWaitsForAPeerThatDoesNotRead) {
    const TestPeer peer(true, Manner::StopReading);
    choose(peer);
    ASSERT_TRUE(recorder->hears({"connected"}));
    const auto message = makeMessage("Big", std::string(Wire::maximumFrameSize / 2, 'x'));
    auto result = CommunicationResult::Success;
    for (int sent = 0; sent < 20 && result == CommunicationResult::Success; ++sent)
        result = messenger->send(message);
    EXPECT_EQ(result, CommunicationResult::QueueFull);
    messenger->disconnect();
    EXPECT_TRUE(recorder->hears({"connected", "lost"}));
}

TEST_F(MessengerFaultsTest, HoldsAPeerToTheKeyThatItsUidStandsFor) {
    const TestPeer peer(true);
    announce(peer, std::string(64, 'a'));
    choose(peer);
    ASSERT_TRUE(recorder->hears({"notice"}));
    announce(peer, peer.uid());
    choose(peer);
    EXPECT_TRUE(recorder->hears({"notice", "connected"}));
}

TEST_F(MessengerFaultsTest, HoldsAnUnannouncedPeerToItsFirstKey) {
    auto peer = std::make_unique<TestPeer>(true);
    const std::uint16_t port = peer->port();
    choose(*peer);
    ASSERT_TRUE(recorder->hears({"connected"}));
    messenger->disconnect();
    ASSERT_TRUE(recorder->hears({"connected", "lost"}));
    peer.reset();
    const auto impostor = TestPeer::impostorAt(port);
    choose(*impostor);
    ASSERT_TRUE(recorder->hears({"connected", "lost", "notice"}));
    // Its announcement makes it known; other messengers of this process remember the first key all the same.
    announce(*impostor, impostor->uid());
    choose(*impostor);
    EXPECT_TRUE(recorder->hears({"connected", "lost", "notice", "connected"}));
}

TEST_F(MessengerFaultsTest, NeverTalksInPlainToAUnitWithAKey) {
    const TestPeer peer(false);
    announce(peer, std::string(64, 'a'));
    choose(peer, false);
    ASSERT_TRUE(recorder->hears({"notice"}));
    EXPECT_EQ(peer.connectionsTaken(), 0);
    messenger->getDiscoverer()->clearDiscovered();
    announce(peer, "no key");
    choose(peer, false);
    EXPECT_TRUE(recorder->hears({"notice", "connected"}));
}

} // namespace
} // namespace Velto::Test
