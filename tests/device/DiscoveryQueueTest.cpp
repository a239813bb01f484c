#include "device/DiscoveryQueue.h"

#include <gtest/gtest.h>

namespace orvex {
namespace {

std::shared_ptr<Messaging::Discovered> announcement(const std::string& uid, const std::string& name = {}) {
    Messaging::Discovered::Values values;
    values.uid = uid;
    values.name = name;
    return std::make_shared<Messaging::Discovered>(values);
}

TEST(DiscoveryQueueTest, HoldsTheNewestOfEachUnitInTheOrderOfTheirFirst) {
    DiscoveryQueue queue;
    for (const auto& [uid, name] : {std::pair{"b", "old"}, {"a", "A"}, {"b", "new"}}) {
        queue.handleDiscovered(announcement(uid, name));
    }
    const auto taken = queue.take();
    ASSERT_EQ(taken.size(), 2U);
    EXPECT_EQ(taken[0]->getName(), "new");
    EXPECT_EQ(taken[1]->getName(), "A");
    EXPECT_TRUE(queue.take().empty());
    queue.handleDiscovered(announcement("a"));
    EXPECT_EQ(queue.take().size(), 1U) << "who was taken may be announced again";
}

TEST(DiscoveryQueueTest, StaysBoundedHoweverManyStrangersSpeak) {
    DiscoveryQueue queue;
    for (int stranger = 0; stranger < 100000; ++stranger) {
        queue.handleDiscovered(announcement(std::to_string(stranger)));
    }
    queue.handleDiscovered(announcement("7", "renamed"));
    const auto taken = queue.take();
    ASSERT_EQ(taken.size(), Messaging::Discoverer::maximumEntries);
    EXPECT_EQ(taken[7]->getName(), "renamed") << "who is in the queue is still heard";
}

} // namespace
} // namespace orvex
