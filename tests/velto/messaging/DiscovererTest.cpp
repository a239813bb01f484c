#include "messaging/NetworkInterfaces.h"

#include <orvex/Messaging/Discoverer.h>

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

namespace orvex::Messaging {
namespace {

using namespace std::chrono_literals;

Discovered::Values unit(const std::string& uid, const std::string& name = "n",
                        const std::string& address = "a", std::uint16_t port = 1) {
    Discovered::Values values;
    values.uid = uid;
    values.name = name;
    values.address = address;
    values.port = port;
    return values;
}

class Counter : public IDiscovererObserver {
public:
    explicit Counter(Discoverer& discoverer)
        : m_discoverer(discoverer) {}
    void handleDiscovered(std::shared_ptr<Discovered> discovered) override {
        heard.push_back(discovered->getUId());
        // Would never return if a lock were held here.
        sizes.push_back(m_discoverer.getDiscovered().size());
        if (fails)
            throw std::runtime_error("observer");
    }
    std::vector<std::string> heard;
    std::vector<std::size_t> sizes;
    bool fails = false;

private:
    Discoverer& m_discoverer;
};

class DiscovererTest : public testing::Test {
protected:
    std::string uids() const {
        std::string all;
        for (const auto& discovered : discoverer.getDiscovered())
            all += discovered->getUId();
        return all;
    }

    Discoverer::Clock::time_point now{};
    Discoverer discoverer{[this] { return now; }};
};

TEST_F(DiscovererTest, KeepsOneEntryPerUnitInOrderOfFirstHearing) {
    for (const char* uid : {"x", "y", "z", "x"})
        EXPECT_TRUE(discoverer.announce(unit(uid), 1s));
    EXPECT_TRUE(discoverer.announce(unit("y", "renamed"), 1s));
    EXPECT_EQ(uids(), "xyz");
    EXPECT_EQ(discoverer.getDiscoveredAt(1)->getName(), "renamed");
    EXPECT_EQ(discoverer.getDiscoveredAt(3), nullptr);
}

TEST_F(DiscovererTest, TellsEveryAnnouncementWhateverAnObserverDoes) {
    const auto failing = std::make_shared<Counter>(discoverer);
    const auto other = std::make_shared<Counter>(discoverer);
    failing->fails = true;
    discoverer.AddObserver(failing);
    discoverer.AddObserver(other);
    discoverer.AddObserver(std::make_shared<Counter>(discoverer));
    for (int time = 0; time < 2; ++time)
        discoverer.announce(unit("x"), 1s);
    discoverer.removeDiscovered("x");
    discoverer.announce(unit("x"), 1s);
    EXPECT_EQ(failing->heard, (std::vector<std::string>{"x", "x", "x"}));
    EXPECT_EQ(other->heard, failing->heard);
    EXPECT_EQ(other->sizes, (std::vector<std::size_t>{1, 1, 1}));
}

TEST_F(DiscovererTest, KeepsTheAddressOfAUnitHeardAtTwoUntilTheFirstFallsSilent) {
    const auto observer = std::make_shared<Counter>(discoverer);
    discoverer.AddObserver(observer);
    const auto address = [this] { return discoverer.getDiscoveredAt(0)->getAddress(); };
    for (int period = 0; period < 5; ++period) {
        discoverer.announce(unit("x", "n", "wired"), 3s);
        EXPECT_TRUE(discoverer.announce(unit("x", "n", "wireless"), 3s));
        EXPECT_EQ(address(), "wired");
        now += 1s;
    }
    EXPECT_EQ(observer->heard.size(), 5U);
    now += 1s;
    discoverer.announce(unit("x", "n", "wireless"), 3s);
    EXPECT_EQ(address(), "wireless");
    discoverer.removeDiscovered("x");
    discoverer.announce(unit("x", "n", "wired"), 3s);
    EXPECT_EQ(address(), "wired");
}

TEST_F(DiscovererTest, ExpiresWhatWasNotHeardAgain) {
    discoverer.announce(unit("x"), 3s);
    discoverer.announce(unit("y"), 3s);
    now += 2s;
    discoverer.announce(unit("y"), 3s);
    now += 1s;
    discoverer.removeExpiredItems();
    EXPECT_EQ(uids(), "y");
    EXPECT_FALSE(discoverer.holds("x"));
    discoverer.announce(unit("x"), 3s);
    EXPECT_EQ(uids(), "yx");
}

TEST_F(DiscovererTest, RemovesByUidOrElseByName) {
    discoverer.announce(unit("x", "y"), 1s);
    discoverer.announce(unit("y", "n"), 1s);
    discoverer.announce(unit("z", "n"), 1s);
    discoverer.announce(unit("w", "m"), 1s);
    discoverer.removeDiscovered("y");
    EXPECT_EQ(uids(), "xzw");
    discoverer.announce(unit("v", "n"), 1s);
    discoverer.removeDiscovered("n");
    EXPECT_EQ(uids(), "xw");
    discoverer.removeDiscovered("nobody");
    EXPECT_EQ(uids(), "xw");
    discoverer.clearDiscovered();
    EXPECT_EQ(uids(), "");
}

TEST_F(DiscovererTest, ExpectsTheLatestUidOfExactlyThatPlace) {
    discoverer.announce(unit("old", "n", "10.0.0.2", 7), 1s);
    discoverer.announce(unit("far", "n", "10.0.0.20", 7), 1s);
    discoverer.announce(unit("new", "n", "10.0.0.2", 7), 1s);
    EXPECT_EQ(discoverer.expectedUid("10.0.0.2", 7), "new");
    discoverer.announce(unit("old", "n", "10.0.0.2", 7), 1s);
    EXPECT_EQ(discoverer.expectedUid("10.0.0.2", 7), "old");
    EXPECT_EQ(discoverer.expectedUid("10.0.0.2", 8), "");
    EXPECT_EQ(discoverer.expectedUid("10.0.0.", 7), "");
}

TEST_F(DiscovererTest, StaysBoundedAndKeepsWhomItKnows) {
    const auto observer = std::make_shared<Counter>(discoverer);
    discoverer.announce(unit("known"), 1s);
    for (std::size_t stranger = 1; stranger < Discoverer::maximumEntries; ++stranger)
        ASSERT_TRUE(discoverer.announce(unit(std::to_string(stranger)), 1s));
    discoverer.AddObserver(observer);
    EXPECT_FALSE(discoverer.announce(unit("too many"), 1s));
    EXPECT_TRUE(discoverer.announce(unit("known"), 10s));
    EXPECT_EQ(observer->heard, std::vector<std::string>{"known"});
    EXPECT_EQ(discoverer.getDiscovered().size(), Discoverer::maximumEntries);
    now += 2s;
    discoverer.removeExpiredItems();
    EXPECT_EQ(uids(), "known");
}

TEST(NetworkInterfaces, AreRestrictedByNameOrAddress) {
    using Velto::Messaging::NetworkInterface;
    const std::vector<NetworkInterface> all = {{"Loopback 1", "127.0.0.1", "", true},
                                               {"eth0", "10.0.0.2", "10.0.0.255", false},
                                               {"eth0", "10.0.1.2", "10.0.1.255", false},
                                               {"eth01", "10.0.2.2", "", false}};
    const auto chosen = [&](const std::string& restriction) {
        std::string addresses;
        for (const auto& one : Velto::Messaging::selectInterfaces(all, restriction))
            addresses += one.address + " ";
        return addresses;
    };
    EXPECT_EQ(chosen(""), "127.0.0.1 10.0.0.2 10.0.1.2 10.0.2.2 ");
    EXPECT_EQ(chosen("lo"), "127.0.0.1 ");
    EXPECT_EQ(chosen(" eth0 "), "10.0.0.2 10.0.1.2 ");
    EXPECT_EQ(chosen("10.0.1.2, eth01"), "10.0.1.2 10.0.2.2 ");
    EXPECT_EQ(chosen("wlan0"), "");
}

} // namespace
} // namespace orvex::Messaging
