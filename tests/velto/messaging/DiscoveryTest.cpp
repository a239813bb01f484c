#include "MessengerFixture.h"
#include "TestAnnouncer.h"
#include "wire/Announcement.h"

#include <cstdlib>

namespace Velto::Test {
namespace {

using orvex::Messaging::Discovered;
using orvex::Messaging::Discoverer;
using orvex::Messaging::IDiscovererObserver;

Wire::Announcement unit(const std::string& uid, const std::string& name = "unit") {
    Wire::Announcement announcement;
    announcement.service = "KELM";
    announcement.uid = uid;
    announcement.name = name;
    announcement.serial = "S-1";
    announcement.productName = "Hub";
    announcement.port = 4711;
    return announcement;
}

class Announcements : public IDiscovererObserver {
public:
    void handleDiscovered(std::shared_ptr<Discovered>) override { ++count; }
    std::atomic<int> count{0};
};

class DiscoveryTest : public MessengerFixture {
protected:
    void SetUp() override {
        const char* const restriction = std::getenv("VELTO_DISCOVERY_INTERFACES");
        ASSERT_TRUE(restriction && std::string(restriction) == "lo") << "probes must not leave this machine";
        MessengerFixture::SetUp();
    }

    /// The shortest period there is.
    static constexpr std::int32_t period = 100;

    void probe(std::uint16_t port) { serve({3, std::to_string(port), period}); }

    void serve(const Messenger::DiscoveryStrategyInfo& info) {
        messenger = makeMessenger({std::make_shared<Messenger::DiscoveryStrategyInfo>(info)});
        discoverer = messenger->getDiscoverer();
        messenger->connect(1000);
    }

    bool lists(const std::string& uid) const {
        return eventually([&] { return discoverer->holds(uid); });
    }

    bool forgets(const std::string& uid) const {
        return eventually([&] { return !discoverer->holds(uid); });
    }

    std::shared_ptr<Discoverer> discoverer;
};

TEST_F(DiscoveryTest, ListsWhatAUnitAnnouncesAndFromWhere) {
    TestAnnouncer announcer;
    announcer.setAnswers({Wire::encode(unit("one", "Living room"))});
    probe(announcer.port());
    ASSERT_TRUE(lists("one"));
    const auto found = discoverer->getDiscoveredAt(0);
    EXPECT_EQ(found->getName(), "Living room");
    EXPECT_EQ(found->getAddress(), "127.0.0.1");
    EXPECT_EQ(found->getPort(), 4711);
    EXPECT_EQ(found->getSerial(), "S-1");
    EXPECT_EQ(found->getProductName(), "Hub");
    EXPECT_TRUE(found->isEncrypted());
    EXPECT_TRUE(found->isLocalAddress());
    const auto sent = Wire::decodeProbe(announcer.lastProbe());
    ASSERT_TRUE(sent);
    EXPECT_EQ(sent->service, "KELM");
}

TEST_F(DiscoveryTest, ReachesSeveralUnitsOnOnePortByMulticast) {
    TestAnnouncer first;
    TestAnnouncer second(first.port());
    first.setAnswers({Wire::encode(unit("one"))});
    second.setAnswers({Wire::encode(unit("two"))});
    probe(first.port());
    EXPECT_TRUE(lists("one"));
    EXPECT_TRUE(lists("two"));
}

TEST_F(DiscoveryTest, TellsEachAnnouncementAndFollowsAUnitThatGoesAndComes) {
    TestAnnouncer announcer;
    announcer.setAnswers({Wire::encode(unit("one"))});
    probe(announcer.port());
    const auto announcements = std::make_shared<Announcements>();
    discoverer->AddObserver(announcements);
    EXPECT_TRUE(eventually([&] { return announcements->count >= 3; }));
    discoverer->removeDiscovered("one");
    EXPECT_TRUE(lists("one"));
    announcer.setAnswers({});
    EXPECT_TRUE(forgets("one"));
    announcer.setAnswers({Wire::encode(unit("one", "renamed"))});
    ASSERT_TRUE(lists("one"));
    EXPECT_EQ(discoverer->getDiscoveredAt(0)->getName(), "renamed");
}

TEST_F(DiscoveryTest, TakesTheGoodDatagramBehindBadOnes) {
    auto foreign = unit("foreign");
    foreign.service = "OTHER";
    auto future = unit("future");
    future.version = 99;
    std::string oversized = Wire::encode(unit("oversized"));
    oversized.insert(oversized.size() - 1, Wire::maximumDatagramSize, ' ');
    TestAnnouncer announcer;
    announcer.setAnswers({"", "garbage", std::string(3, '\0'), "{}", "[]", Wire::encode(foreign),
                          Wire::encode(future), oversized, std::string(Wire::maximumDatagramSize, '{'),
                          Wire::encode(unit("good"))});
    probe(announcer.port());
    ASSERT_TRUE(lists("good"));
    EXPECT_EQ(discoverer->getDiscovered().size(), 1U);
}

TEST_F(DiscoveryTest, StaysBoundedUnderAFloodOfStrangersAndKeepsWhomItKnows) {
    TestAnnouncer announcer;
    announcer.setAnswers({Wire::encode(unit("known"))});
    probe(announcer.port());
    ASSERT_TRUE(lists("known"));
    // 100,000 ids in all, each probe answered twice (it comes by multicast and directly).
    std::size_t most = 0;
    for (int thousands = 0; thousands < 50; ++thousands) {
        std::vector<std::string> strangers = {Wire::encode(unit("known"))};
        for (int stranger = 0; stranger < 2000; ++stranger)
            strangers.push_back(Wire::encode(unit(std::to_string(thousands * 2000 + stranger))));
        announcer.setAnswers(std::move(strangers));
        const int heard = announcer.probesHeard();
        ASSERT_TRUE(eventually([&] { return announcer.probesHeard() > heard; }));
        most = std::max(most, discoverer->getDiscovered().size());
    }
    EXPECT_GT(most, 2U);
    EXPECT_LE(most, Discoverer::maximumEntries);
    announcer.setAnswers({Wire::encode(unit("known"))});
    EXPECT_TRUE(eventually([&] { return discoverer->getDiscovered().size() == 1; }));
    EXPECT_TRUE(lists("known"));
}

TEST_F(DiscoveryTest, IsQuietOnceTheMessengerHasGone) {
    TestAnnouncer announcer;
    announcer.setAnswers({Wire::encode(unit("one"))});
    probe(announcer.port());
    const auto announcements = std::make_shared<Announcements>();
    discoverer->AddObserver(announcements);
    ASSERT_TRUE(eventually([&] { return announcements->count > 0; }));
    messenger.reset();
    const int told = announcements->count;
    // Another one's probes still bring answers; the first one's observer must not hear of them.
    const auto first = discoverer;
    probe(announcer.port());
    ASSERT_TRUE(lists("one"));
    EXPECT_EQ(announcements->count, told);
}

TEST_F(DiscoveryTest, FindsANamedUnitAndFindsItAgainAfterItWasDropped) {
    for (const bool encrypted : {true, false}) {
        SCOPED_TRACE(encrypted);
        TestPeer peer(encrypted);
        const std::string uid = encrypted ? peer.uid() : "no key";
        peer.setIdentityDocument(Wire::encode(unit(uid, "Named")));
        const std::string mode = encrypted ? "encrypted" : "plain";
        serve({2, mode + ";localhost;" + std::to_string(peer.port()), period});
        ASSERT_TRUE(lists(uid));
        const auto found = discoverer->getDiscoveredAt(0);
        EXPECT_EQ(found->getName(), "Named");
        EXPECT_EQ(found->getAddress(), "localhost");
        EXPECT_EQ(found->getPort(), peer.port());
        EXPECT_EQ(found->isEncrypted(), encrypted);
        EXPECT_TRUE(found->isLocalAddress());
        discoverer->clearDiscovered();
        EXPECT_TRUE(lists(uid));
    }
}

TEST_F(DiscoveryTest, AsksANamedUnitUntilItsAnswerIsGood) {
    TestPeer peer(true, Manner::CloseAtOnce);
    auto foreign = unit(peer.uid());
    foreign.service = "OTHER";
    serve({2, "encrypted;127.0.0.1;" + std::to_string(peer.port()), period});
    const auto askedAgain = [&] {
        const int taken = peer.connectionsTaken();
        // Two more: the one before the last was wholly in the new manner.
        return eventually([&] { return peer.connectionsTaken() >= taken + 3; });
    };
    ASSERT_TRUE(askedAgain());
    peer.setManner(Manner::GarbageAtOnce);
    ASSERT_TRUE(askedAgain());
    peer.setManner(Manner::Serve);
    for (const std::string& bad : {std::string("{}"), Wire::encode(unit(std::string(64, 'a'))),
                                   Wire::encode(foreign), std::string(1000000, ' ')}) {
        peer.setIdentityDocument(bad);
        ASSERT_TRUE(askedAgain());
        EXPECT_TRUE(discoverer->getDiscovered().empty());
    }
    peer.setIdentityDocument(Wire::encode(unit(peer.uid())));
    EXPECT_TRUE(lists(peer.uid()));
}

TEST_F(DiscoveryTest, BoundsItsQuestionToANamedUnitThatHangs) {
    TestPeer peer(true, Manner::HangInUpgrade);
    peer.setIdentityDocument(Wire::encode(unit(peer.uid())));
    serve({2, "encrypted;127.0.0.1;" + std::to_string(peer.port()), period});
    ASSERT_TRUE(eventually([&] { return peer.connectionsTaken() == 1; }));
    peer.setManner(Manner::Serve);
    EXPECT_TRUE(lists(peer.uid()));
}

TEST_F(DiscoveryTest, SurvivesStrategiesThatMakeNoSense) {
    messenger = makeMessenger({nullptr});
    for (const Messenger::DiscoveryStrategyInfo& info : {Messenger::DiscoveryStrategyInfo{1, "12741", period},
                                                         {3, "", period},
                                                         {3, "0", period},
                                                         {3, "70000", period},
                                                         {3, "12x", period},
                                                         {2, "", period},
                                                         {2, "encrypted;;1", period},
                                                         {2, "encrypted;host", period},
                                                         {2, "other;host;1", period},
                                                         {2, "plain;host;0", period}})
        serve(info);
    EXPECT_TRUE(discoverer->getDiscovered().empty());
}

} // namespace
} // namespace Velto::Test
