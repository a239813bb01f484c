#include "tests/device/ManagerFixture.h"

namespace orvex::Test {
namespace {

using DeviceListPollingTest = ManagerFixture;

TEST_F(DeviceListPollingTest, AsksInTurnThoseItKnowsLeastFirst) {
    RunningUnit units[] = {RunningUnit(host, "A"), RunningUnit(host, "B"), RunningUnit(host, "C")};
    announce(units[0]);
    announce(units[2]);
    ASSERT_TRUE(eventually([&] { return manager->deviceCount() == 2 && areAllKnown(); }));
    QStringList asked;
    QObject::connect(manager.get(), &DeviceInfoManager::itemUpdated, manager.get(),
                     [&](int row) { asked << manager->deviceAt(row)->name(); });
    announce(units[1]);
    ASSERT_TRUE(eventually([&] { return asked.size() >= 7; }));
    const int newcomer = asked.indexOf(QStringLiteral("B"));
    ASSERT_GE(newcomer, 0);
    ASSERT_LE(newcomer, 2) << "it is asked as soon as it is listed";
    EXPECT_EQ(asked.mid(newcomer, 4), QStringList({"B", "C", "A", "B"})) << "and then everybody in turn";
}

TEST_F(DeviceListPollingTest, DropsAUnitWithItsSecondFailureInARowAndTakesItBack) {
    RunningUnit unit(host, "A");
    announce(unit);
    ASSERT_TRUE(eventually([&] { return areAllKnown(); }));
    const auto listed = manager->deviceAt(0);

    unit.fail(AnswerFault::Close);
    ASSERT_TRUE(eventually([&] { return listed->failureCount() == 1; }));
    unit.setFaults({});
    ASSERT_TRUE(eventually([&] { return areAllKnown(); }));
    EXPECT_EQ(listed->failureCount(), 0) << "an answer in between resets the count";

    unit.fail(AnswerFault::Close);
    ASSERT_TRUE(eventually([&] { return !removed.isEmpty(); }));
    EXPECT_EQ(removed.first(), QVariantList({0, 0}));
    EXPECT_EQ(manager->deviceCount(), 0);
    unit.setFaults({});
    announce(unit);
    EXPECT_TRUE(eventually([&] { return areAllKnown(); }));
}

TEST_F(DeviceListPollingTest, CancellingIsNoFailureOfTheUnit) {
    RunningUnit unit(host, "A");
    announce(unit);
    ASSERT_TRUE(eventually([&] { return areAllKnown(); }));
    const auto listed = manager->deviceAt(0);
    for (int round = 0; round < 3; ++round) {
        unit.fail(AnswerFault::Drop);
        ASSERT_TRUE(eventually([&] { return !communicator->isIdle(); }));
        manager->selectDevice(0);
        EXPECT_EQ(manager->selectedDevice(), listed);
        EXPECT_EQ(listed->failureCount(), 0);
        EXPECT_TRUE(communicator->isIdle());
        unit.setFaults({});
    }
    for (int round = 0; round < 3; ++round) {
        unit.fail(AnswerFault::Drop);
        manager->activateDeviceList();
        ASSERT_TRUE(eventually([&] { return !communicator->isIdle(); }));
    }
    manager->activateDeviceList();
    EXPECT_EQ(listed->failureCount(), 0);
    EXPECT_TRUE(removed.isEmpty());
    EXPECT_TRUE(listed->isOnline());
}

} // namespace
} // namespace orvex::Test
