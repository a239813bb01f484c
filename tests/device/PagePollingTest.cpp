#include "tests/device/ManagerFixture.h"

namespace orvex::Test {
namespace {

/// What each page polls and how often. The time is turned by hand, the units answer over real sockets.
class PagePollingTest : public TimedManagerFixture {
protected:
    void select(const RunningUnit& unit) {
        list(unit);
        EXPECT_TRUE(inTime([&] { return areAllKnown(); }));
        manager->selectDevice(0);
    }

    /// Waits until the unit has heard that message so often.
    static bool heard(RunningUnit& unit, const char* type, std::size_t times) {
        return eventually([&] { return unit.counters().requestsOf(type) == times; });
    }

    /// The times between the requests that follow, in ms.
    std::vector<int> intervals(int count) {
        std::vector<int> taken;
        for (int request = 0; request < count; ++request) {
            taken.push_back(untilNextRequest());
        }
        return taken;
    }
};

using Intervals = std::vector<int>;

TEST_F(PagePollingTest, ARoundOverTheListTakes1800MillisecondsWhateverItsLength) {
    const RunningUnit units[] = {RunningUnit(host, "A"), RunningUnit(host, "B"), RunningUnit(host, "C"),
                                 RunningUnit(host, "D")};
    pass(8000);
    EXPECT_TRUE(communicator->isIdle()) << "nobody to ask";
    list(units[0]);
    settle();
    EXPECT_EQ(intervals(3), Intervals({1800, 1800, 1800}));
    for (int unit = 1; unit < 4; ++unit) {
        list(units[unit]);
    }
    untilNextRequest();
    EXPECT_EQ(intervals(4), Intervals({450, 450, 450, 450}));
}

TEST_F(PagePollingTest, TheDevicePageReadsAllEveryFiveSecondsAndTheProgressInBetween) {
    RunningUnit unit(host, "A");
    select(unit);
    manager->showingDeviceInfo();
    EXPECT_EQ(untilNextRequest(), 10) << "at once";
    EXPECT_EQ(unit.counters().requestsOf("GetSeatStatus"), 1U);
    EXPECT_EQ(untilNextRequest(), 590) << "on the first beat, half a second after the page opened";
    EXPECT_TRUE(heard(unit, "RequestContentUpdate", 1));
    std::vector<std::size_t> full;
    for (int elapsed = 0; elapsed < 20000; elapsed += untilNextRequest()) {
        full.push_back(unit.counters().requestsOf("GetSeatStatus"));
    }
    EXPECT_EQ(full.front(), 1U);
    EXPECT_EQ(full.back(), 4U) << "of 20 s";
    EXPECT_GE(unit.counters().requestsOf("GetMediaStatus"), 20U) << "with every tick";
    EXPECT_EQ(unit.counters().requestsOf("GetKelmName"), 1U) << "the list's poll only";
}

TEST_F(PagePollingTest, APageOfOneKindOfDataReadsThatAlone) {
    RunningUnit unit(host, "A");
    select(unit);
    struct Page {
        void (DeviceInfoManager::*show)();
        const char* message;
        Intervals intervals;
    };
    const Page pages[] = {
        {&DeviceInfoManager::showingNetworkStatus, "GetNetworkState", {6000, 6000}},
        {&DeviceInfoManager::showingDeviceVersions, "GetUpgrade", {5000, 5000}},
        {&DeviceInfoManager::showingMediaList, "GetMediaListNotification", {0, 30000}},
        {&DeviceInfoManager::showingDetailedStatusInfo, "GetHapticSystemStatus", {0, 2000}},
    };
    for (const Page& page : pages) {
        const auto before = unit.counters();
        (manager.get()->*page.show)();
        EXPECT_EQ(intervals(2), page.intervals) << page.message;
        EXPECT_EQ(unit.counters().requestsOf(page.message) - before.requestsOf(page.message), 2U)
            << page.message;
        EXPECT_EQ(unit.counters().requestsOf("GetSeatStatus"), before.requestsOf("GetSeatStatus"));
    }
    manager->goIdle();
    pass(60000);
    EXPECT_TRUE(communicator->isIdle());
}

TEST_F(PagePollingTest, ASettingGoesOutOnTheFirstBeatAfterTheRequestUnderWayAndKeepsTheIntervalOfThePage) {
    RunningUnit unit(host, "A");
    select(unit);
    manager->showingMediaList();
    EXPECT_EQ(untilNextRequest(), 0);
    pass(10000);
    manager->requestAutomaticVolumeControl();
    EXPECT_EQ(untilNextRequest(), 100);
    EXPECT_TRUE(heard(unit, "SetAutomaticVolumeControl", 1));
    EXPECT_EQ(untilNextRequest(), 19900) << "30 s after the list was read";

    unit.fail(AnswerFault::Drop, {"GetMediaListNotification"});
    pass(30000);
    ASSERT_FALSE(communicator->isIdle());
    for (int volume : {3, 5, 4}) {
        manager->setMotionDelay(volume);
    }
    pass(4000);
    EXPECT_EQ(unit.counters().requestsOf("SetMotionDelay"), 0U) << "a request is under way";
    EXPECT_TRUE(comes([&] { return unit.state().motionDelay == 4; })) << "the newest of its kind";
    EXPECT_EQ(unit.counters().requestsOf("SetMotionDelay"), 1U);
}

TEST_F(PagePollingTest, AUnitThatLeavesAQuestionOpenIsShownWithWhatItTold) {
    RunningUnit unit(host, "A");
    select(unit);
    unit.fail(AnswerFault::Drop, {"GetSoftwareHealthStatus"});
    QSignalSpy told(manager.get(), &DeviceInfoManager::selectedDeviceUpdated);
    manager->showingDeviceInfo();
    pass(10);
    EXPECT_TRUE(eventually([&] { return manager->selectedDevice()->isFieldValid(DeviceField::Seats); }));
    EXPECT_TRUE(told.isEmpty());
    pass(8000);
    EXPECT_FALSE(communicator->isIdle());
    EXPECT_GE(told.size(), 1);
    EXPECT_LE(told.size(), 2) << "again only with something new";
}

TEST_F(PagePollingTest, AnHourOfSleepMakesEverythingBeReadAgainWithinOneTick) {
    RunningUnit unit(host, "A");
    select(unit);
    manager->showingDeviceInfo();
    untilNextRequest();
    untilNextRequest();
    const auto before = unit.counters().requestsOf("GetSeatStatus");
    time.jump(std::chrono::hours(1));
    pass(800);
    settle();
    EXPECT_EQ(unit.counters().requestsOf("GetSeatStatus"), before + 1);
}

TEST_F(PagePollingTest, TwoFailedReadingsShowTheUnitOfflineAndOneAnswerBringsItBack) {
    RunningUnit unit(host, "A");
    select(unit);
    const auto shown = manager->selectedDevice();
    manager->showingNetworkStatus();
    unit.fail(AnswerFault::Drop);
    pass(6000);
    pass(5000);
    EXPECT_EQ(shown->failureCount(), 1);
    pass(6000);
    pass(5000);
    EXPECT_FALSE(shown->isOnline());
    EXPECT_EQ(shown->networkStatus(), nullptr) << "nothing stale is shown";
    unit.setFaults({});
    EXPECT_TRUE(inTime([&] { return shown->isOnline() && shown->networkStatus(); }));
    manager->activateDeviceList();
    EXPECT_EQ(manager->deviceCount(), 1);
}

} // namespace
} // namespace orvex::Test
