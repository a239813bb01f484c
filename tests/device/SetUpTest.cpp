#include "device/DeviceInfoProxy.h"
#include "device/WiFiPointInfo.h"
#include "tests/device/ManagerFixture.h"

namespace orvex::Test {
namespace {

/// Bringing a unit into a network, and out of it again.
class SetUpTest : public TimedManagerFixture {
protected:
    SetUpTest() { proxy.setDeviceInfoManager(manager); }

    static UnitOptions waiting() {
        UnitOptions options;
        options.accessPoint = true;
        return options;
    }

    /// The unit is found in access-point mode, and the networks it sees are shown.
    void findUnit() {
        announce(unit);
        manager->startDeviceSetup();
        ASSERT_TRUE(comes([&] { return !proxy.wiFiPoints().isEmpty(); }));
        unit.changeState([&](Simulator::UnitState& state) {
            state.wifi.leaveTime = std::chrono::milliseconds(20);
            state.wifi.joinTime = std::chrono::milliseconds(100);
            state.wifi.joinedAddress = networkAddress;
            network = QString::fromStdString(state.wifi.seen.front().ssid);
            key = QString::fromStdString(state.wifi.seen.front().key);
        });
        manager->goIdle();
    }

    /// As discovery tells it once the former address has been silent for a while.
    void announceAgain(const RunningUnit& moved) {
        messenger->getDiscoverer()->clearDiscovered();
        announce(moved);
    }

    void setFault(Simulator::JoinFault fault) {
        unit.changeState([fault](Simulator::UnitState& state) { state.wifi.fault = fault; });
    }

    bool hasMoved() const { return unit.address() == networkAddress && unit.state().network.reachable; }

    const std::string networkAddress = RunningUnit::freeAddress();
    RunningUnit unit{host, "New", waiting()};
    QString network;
    QString key;
    DeviceInfoProxy proxy;
    QSignalSpy outcome{&proxy, &DeviceInfoProxy::wiFiSetUp};
};

TEST_F(SetUpTest, AUnitThatJoinsIsFollowedToItsNewAddress) {
    findUnit();
    EXPECT_TRUE(proxy.hotspotActive());
    manager->connectDeviceToWiFi(network, key);
    ASSERT_TRUE(comes([&] { return hasMoved(); }));
    EXPECT_TRUE(outcome.isEmpty()) << "it has not been seen there";
    announceAgain(unit);
    ASSERT_TRUE(comes([&] { return !outcome.isEmpty(); }));
    EXPECT_EQ(outcome, QList<QVariantList>({{true}}));
    EXPECT_EQ(proxy.ssid(), network);
    EXPECT_EQ(proxy.address().toStdString(), networkAddress);
    EXPECT_FALSE(proxy.hotspotActive());
    EXPECT_EQ(log.count(key.toStdString()), 0U) << "a pass phrase is nobody's business";
}

TEST_F(SetUpTest, AUnitThatLeavesBeforeItAnswersIsFollowedAllTheSame) {
    findUnit();
    setFault(Simulator::JoinFault::LeavesUnanswered);
    manager->connectDeviceToWiFi(network, key);
    ASSERT_TRUE(comes([&] { return hasMoved(); }));
    announceAgain(unit);
    EXPECT_TRUE(comes([&] { return outcome == QList<QVariantList>({{true}}); }));
}

TEST_F(SetUpTest, AWrongPassPhraseIsToldOnceAndTheListIsThereAgain) {
    findUnit();
    manager->connectDeviceToWiFi(network, "not " + key);
    ASSERT_TRUE(comes([&] { return !outcome.isEmpty(); }));
    EXPECT_EQ(outcome, QList<QVariantList>({{false}}));
    EXPECT_TRUE(unit.state().network.hotspotActive);
    manager->showingWiFiList();
    const auto asked = unit.counters().requestsOf("GetWifiList");
    EXPECT_TRUE(comes([&] { return unit.counters().requestsOf("GetWifiList") > asked + 1; }));
    EXPECT_EQ(outcome.size(), 1);
    manager->connectDeviceToWiFi(network, key);
    ASSERT_TRUE(comes([&] { return hasMoved(); }));
    announceAgain(unit);
    EXPECT_TRUE(comes([&] { return outcome == QList<QVariantList>({{false}, {true}}); })) << "the second try";
}

TEST_F(SetUpTest, AUnitThatNeverComesBackHasNoOutcomeAndTheListWorksOn) {
    findUnit();
    setFault(Simulator::JoinFault::NeverReturns);
    manager->connectDeviceToWiFi(network, key);
    ASSERT_TRUE(comes([&] { return !proxy.online(); }));
    for (int turn = 0; turn < 20; ++turn) {
        QTest::qWait(5);
        pass(3000);
    }
    EXPECT_TRUE(outcome.isEmpty());
    manager->goIdle();
    manager->activateDeviceList();
    EXPECT_EQ(manager->deviceCount(), 0);
    const RunningUnit other(host, "Other");
    list(other);
    EXPECT_TRUE(comes([&] { return areAllKnown(); }));
}

TEST_F(SetUpTest, AUnitKnownFromItsFormerNetworkIsFoundAtItsAccessPoint) {
    RunningUnit known(host, "Known");
    list(known);
    EXPECT_TRUE(comes([&] { return areAllKnown(); }));
    known.stop();
    known.changeState([](Simulator::UnitState& state) {
        state.network.hotspotActive = true;
        state.network.wifiOnline = false;
        state.network.address = RunningUnit::freeAddress();
    });
    known.start();
    manager->startDeviceSetup();
    announceAgain(known);
    EXPECT_TRUE(comes([&] { return !proxy.wiFiPoints().isEmpty(); }));
    EXPECT_EQ(proxy.uid().toStdString(), known.uid());
}

TEST_F(SetUpTest, TheNetworkItIsOnAlreadyIsNoNewOne) {
    findUnit();
    manager->connectDeviceToWiFi(network, key);
    ASSERT_TRUE(comes([&] { return hasMoved(); }));
    announceAgain(unit);
    ASSERT_TRUE(comes([&] { return !outcome.isEmpty(); }));
    manager->connectDeviceToWiFi(network, key);
    const auto asked = unit.counters().requestsOf("GetNetworkState");
    ASSERT_TRUE(comes([&] { return unit.counters().requestsOf("GetNetworkState") > asked + 3; }));
    EXPECT_EQ(outcome.size(), 1) << "nothing has changed";
}

TEST_F(SetUpTest, AResetUnitIsOfflineAtOnceAndComesBackWithItsAccessPoint) {
    RunningUnit joined(host, "Joined");
    const std::string accessPoint = RunningUnit::freeAddress();
    joined.changeState([&](Simulator::UnitState& state) {
        state.wifi.leaveTime = std::chrono::milliseconds(20);
        state.wifi.joinTime = std::chrono::milliseconds(100);
        state.wifi.accessPointAddress = accessPoint;
    });
    open(joined);
    EXPECT_TRUE(proxy.online());
    manager->goIdle();
    manager->resetNetworkSettings();
    EXPECT_FALSE(proxy.ssid().isEmpty() && proxy.online());
    EXPECT_FALSE(manager->selectedDevice()->isOnline());
    ASSERT_TRUE(comes([&] { return joined.address() == accessPoint && joined.state().network.reachable; }));
    manager->activateDeviceList();
    EXPECT_EQ(manager->deviceCount(), 0) << "it is not where it was";
    announce(joined);
    ASSERT_TRUE(comes([&] { return areAllKnown(); }));
    EXPECT_TRUE(manager->deviceAt(0)->networkStatus()->hotspotActive);
}

} // namespace
} // namespace orvex::Test
