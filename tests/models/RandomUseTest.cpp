#include "device/DeviceInfoProxy.h"
#include "models/DetailedStatusModel.h"
#include "models/DeviceListModel.h"
#include "models/MediaListModel.h"
#include "models/MediaListProxy.h"
#include "models/SeatListModel.h"
#include "tests/device/ManagerFixture.h"
#include "tests/models/Shadow.h"

#include <deque>
#include <random>

namespace orvex::Test {
namespace {

/// A model under the tester, with what a view makes of its signals.
template <class Model>
struct Watched {
    Model model;
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::Fatal};
    Shadow shadow{model};
};

/// Everything a page may call, in any order and state, with units that fail in every way.
class RandomUseTest : public TimedManagerFixture, public testing::WithParamInterface<unsigned> {
protected:
    RandomUseTest() {
        list.model.setDeviceInfoManager(manager);
        proxy.setDeviceInfoManager(manager);
        seats.model.setDeviceInfoManager(manager);
        media.model.setDeviceInfoManager(manager);
        titles.model.setSourceModel(&media.model);
        status.model.setDeviceInfoManager(manager);
        for (const char* name : {"Alpha", "beta", "Gamma"}) {
            units.emplace_back(host, name);
            announce(units.back());
        }
    }

    int below(int bound) { return static_cast<int>(random() % static_cast<unsigned>(bound)); }
    int anyIndex() { return below(8) - 2; }

    void call() {
        const std::function<void()> calls[] = {
            [&] { manager->activateDeviceList(); },
            [&] { manager->startDeviceSetup(); },
            [&] { manager->showingWiFiList(); },
            [&] { manager->connectDeviceToWiFi("Nowhere", "secret words"); },
            [&] { manager->selectDevice(anyIndex()); },
            [&] { manager->selectDevice(0); },
            [&] { manager->triggerSubscriptionAndContentUpdate(); },
            [&] { manager->showingDeviceInfo(); },
            [&] { manager->showingNetworkStatus(); },
            [&] { manager->showingDeviceVersions(); },
            [&] { manager->showingMediaList(); },
            [&] { manager->showingDetailedStatusInfo(); },
            [&] { proxy.setName(QString("Name %1").arg(below(3))); },
            [&] { manager->goIdle(); },
            [&] { proxy.setCurrCaptureDeviceIndex(anyIndex()); },
            [&] { proxy.setAdaptiveAudioParameters(below(2) == 0); },
            [&] { proxy.setAutomaticVolumeControl(below(2) == 0); },
            [&] { proxy.setCaptureVolume(below(60) - 30); },
            [&] { proxy.setCurrExperienceModeIndex(anyIndex()); },
            [&] { proxy.setMotionDelay(below(3000) - 1500); },
            [&] { proxy.setRecognitionTolerance(below(90) - 10); },
            [&] {
                const int role = SeatListModel::StatusTypeRole + below(9);
                seats.model.setData(seats.model.index(anyIndex()), -below(30), role);
            },
            [&] { status.model.setFilter(static_cast<unsigned>(below(7))); },
            [&] {
                const auto order = below(2) == 0 ? Qt::AscendingOrder : Qt::DescendingOrder;
                titles.model.setSortPasses({{MediaListModel::TitleRole + below(8), order}});
            },
            [&] { titles.model.setFilter(MediaListModel::TitleRole, below(2) == 0 ? "e" : ""); },
        };
        calls[below(static_cast<int>(std::size(calls)))]();
    }

    void disturb() {
        RunningUnit& unit = units[static_cast<std::size_t>(below(3))];
        const AnswerFault faults[] = {AnswerFault::Drop,  AnswerFault::Garble,    AnswerFault::TruncateBody,
                                      AnswerFault::Close, AnswerFault::Duplicate, AnswerFault::WrongTypes};
        switch (below(6)) {
        case 0:
            unit.fail(faults[below(6)]);
            break;
        case 1:
            unit.closeConnections();
            break;
        case 2:
            announce(unit);
            break;
        case 3:
            unit.changeState([this](Simulator::UnitState& state) {
                state.media.count = static_cast<std::size_t>(below(30));
                state.seats.resize(static_cast<std::size_t>(below(4)));
                state.network.hotspotActive = below(3) == 0;
            });
            break;
        default:
            unit.setFaults({});
        }
    }

    void checkInvariants(int step) {
        EXPECT_LE(time.pending(*manager), 2) << step << ": the tick, and a content update that was asked for";
        EXPECT_GE(time.pending(*manager), 1) << step << ": it never stops ticking";
        EXPECT_TRUE(seats.shadow.isTrue()) << step;
        EXPECT_TRUE(media.shadow.isTrue()) << step;
        EXPECT_TRUE(status.shadow.isTrue()) << step;
        EXPECT_EQ(list.model.rowCount(), manager->deviceCount()) << step;
        QSet<QString> uids;
        for (int row = 0; row < manager->deviceCount(); ++row) {
            uids.insert(manager->deviceAt(row)->uid());
        }
        EXPECT_EQ(uids.size(), manager->deviceCount()) << step << ": one row each";
        const auto unit = manager->selectedDevice();
        EXPECT_EQ(proxy.uid(), unit ? unit->uid() : QString()) << step;
        EXPECT_EQ(proxy.name(), unit ? unit->name() : QString()) << step;
    }

    std::mt19937 random{GetParam()};
    std::deque<RunningUnit> units;
    DeviceInfoProxy proxy;
    Watched<DeviceListModel> list;
    Watched<SeatListModel> seats;
    Watched<MediaListModel> media;
    Watched<MediaListProxy> titles;
    Watched<DetailedStatusModel> status;
};

TEST_P(RandomUseTest, KeepsEveryPromise) {
    for (int step = 0; step < 1500 && !HasFailure(); ++step) {
        SCOPED_TRACE(step);
        call();
        if (below(4) == 0) {
            disturb();
        }
        if (below(3) == 0) {
            QTest::qWait(below(5));
        }
        pass(below(5) == 0 ? below(6000) : below(300));
        QCoreApplication::processEvents();
        checkInvariants(step);
    }
    // Whatever it went through, left alone it finds its way back to the truth.
    for (RunningUnit& unit : units) {
        unit.setFaults({});
    }
    manager->activateDeviceList();
    for (RunningUnit& unit : units) {
        announce(unit);
    }
    EXPECT_TRUE(comes([&] { return manager->deviceCount() == 3 && areAllKnown(); }));
    EXPECT_TRUE(comes([&] {
        bool same = true;
        for (int row = 0; row < 3; ++row) {
            const auto listed = manager->deviceAt(row);
            for (const RunningUnit& unit : units) {
                same = same && (listed->uid().toStdString() != unit.uid() ||
                                listed->name().toStdString() == unit.state().name);
            }
        }
        return same;
    }));
    EXPECT_TRUE(comes([&] { return list.shadow.isTrue(); }));
    EXPECT_EQ(log.count("secret words"), 0U);
    EXPECT_EQ(log.count("exception in"), 0U);
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomUseTest, testing::Values(1U, 2U, 3U, 4U));

} // namespace
} // namespace orvex::Test
