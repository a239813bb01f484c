#include "tests/device/ManagerFixture.h"

#include <stdexcept>

namespace orvex::Test {
namespace {

using DeviceInfoManagerTest = ManagerFixture;

TEST_F(DeviceInfoManagerTest, ListsUnitsOnceByNameWhateverTheirCase) {
    for (const auto& [uid, name] :
         {std::pair{"1", "beta"}, {"2", "Alpha"}, {"3", "GAMMA"}, {"4", "Beta"}, {"2", "x"}}) {
        announce(absent(uid, name));
    }
    EXPECT_TRUE(eventually([&] { return manager->deviceCount() == 4; }));
    // The newest announcement of a unit that is not listed yet is the one that counts.
    EXPECT_EQ(names(), QStringList({"beta", "Beta", "GAMMA", "x"}));
    announce(absent("3", "Another"));
    announce(absent("5", "Aleph"));
    EXPECT_TRUE(eventually([&] { return manager->deviceCount() == 5; }));
    EXPECT_EQ(names(), QStringList({"Aleph", "beta", "Beta", "GAMMA", "x"}));
    EXPECT_EQ(added.size(), 5);
    EXPECT_EQ(added.last(), QVariantList({0, 0}));
    EXPECT_EQ(manager->deviceAt(5), nullptr);
    EXPECT_EQ(manager->deviceAt(-1), nullptr);
}

TEST_F(DeviceInfoManagerTest, ReadsEveryUnitAndShowsANewName) {
    RunningUnit units[] = {RunningUnit(host, "B"), RunningUnit(host, "A"), RunningUnit(host, "C")};
    for (const RunningUnit& unit : units) {
        announce(unit);
    }
    ASSERT_TRUE(eventually([&] { return manager->deviceCount() == 3 && areAllKnown(); }));
    units[1].rename("Zulu");
    EXPECT_TRUE(eventually([&] { return names() == QStringList({"Zulu", "B", "C"}); })) << "in its old place";
    EXPECT_TRUE(removed.isEmpty());
    for (const QVariantList& update : updated) {
        EXPECT_GE(update.first().toInt(), 0);
        EXPECT_LT(update.first().toInt(), 3);
    }
}

TEST_F(DeviceInfoManagerTest, GoingBackToTheListKeepsTheRowsAndDropsAnOfflineSelection) {
    const RunningUnit first(host, "A");
    RunningUnit second(host, "B");
    announce(first);
    announce(second);
    ASSERT_TRUE(eventually([&] { return manager->deviceCount() == 2 && areAllKnown(); }));
    QSignalSpy selected(manager.get(), &DeviceInfoManager::selectedDeviceUpdated);
    manager->selectDevice(7);
    EXPECT_TRUE(selected.isEmpty());
    manager->selectDevice(1);
    EXPECT_EQ(manager->selectedDevice()->name(), QLatin1String("B"));
    manager->activateDeviceList();
    EXPECT_EQ(manager->selectedDevice(), nullptr);
    EXPECT_GE(selected.size(), 2);
    EXPECT_TRUE(removed.isEmpty());
    EXPECT_TRUE(messenger->getDiscoverer()->getDiscovered().empty()) << "rebuilt from fresh announcements";

    manager->selectDevice(1);
    manager->deviceAt(1)->setOnline(false);
    manager->activateDeviceList();
    EXPECT_EQ(names(), QStringList({"A"}));
    EXPECT_EQ(removed, QList<QVariantList>({{1, 1}}));
}

TEST_F(DeviceInfoManagerTest, PollsNothingWhileIdleAndStillForgetsWhoFellSilent) {
    RunningUnit unit(host, "A");
    announce(unit);
    ASSERT_TRUE(eventually([&] { return areAllKnown(); }));
    manager->goIdle();
    ASSERT_TRUE(eventually([&] { return communicator->isIdle(); }));
    const auto asked = unit.counters().requestsOf("GetKelmName");
    messenger->getDiscoverer()->announce(absent("9", "Short"), std::chrono::milliseconds(1));
    EXPECT_TRUE(eventually([&] { return !messenger->getDiscoverer()->holds("9"); }));
    EXPECT_EQ(unit.counters().requestsOf("GetKelmName"), asked);
    EXPECT_EQ(manager->deviceCount(), 1);
}

TEST_F(DeviceInfoManagerTest, AnExceptionIsLoggedAndTheTickingGoesOn) {
    RunningUnit unit(host, "A");
    const auto breakOnce = [&](auto signal) {
        auto connection = std::make_shared<QMetaObject::Connection>();
        *connection = QObject::connect(manager.get(), signal, manager.get(), [connection] {
            QObject::disconnect(*connection);
            throw std::runtime_error("broken view");
        });
    };
    breakOnce(&DeviceInfoManager::itemsAdded);
    announce(unit);
    ASSERT_TRUE(eventually([&] { return log.count("exception in timerEvent()") == 1; }));
    EXPECT_EQ(log.lines("exception in timerEvent()"),
              std::vector<std::string>({"critical DeviceInfoManager: exception in timerEvent()"}));
    ASSERT_TRUE(eventually([&] { return areAllKnown(); }));

    breakOnce(&DeviceInfoManager::itemUpdated);
    ASSERT_TRUE(eventually([&] { return log.count("exception in onRequestComplete()") == 1; }));
    const int before = updated.size();
    EXPECT_TRUE(eventually([&] { return updated.size() > before; }));
}

TEST_F(DeviceInfoManagerTest, BearsBeingSwitchedFromItsOwnSignals) {
    RunningUnit unit(host, "A");
    int switches = 0;
    for (const auto signal : {&DeviceInfoManager::itemsRemoved, &DeviceInfoManager::itemsAdded}) {
        QObject::connect(manager.get(), signal, manager.get(), [&](int row) {
            ++switches;
            manager->selectDevice(row);
            manager->activateDeviceList();
        });
    }
    QObject::connect(manager.get(), &DeviceInfoManager::itemUpdated, manager.get(), [&](int row) {
        if (++switches < 6) {
            manager->selectDevice(row);
            manager->activateDeviceList();
        }
    });
    announce(unit);
    EXPECT_TRUE(eventually([&] { return switches >= 6 && areAllKnown(); }));
    unit.fail(AnswerFault::Close);
    EXPECT_TRUE(eventually([&] { return manager->deviceCount() == 0; }));
}

} // namespace
} // namespace orvex::Test
