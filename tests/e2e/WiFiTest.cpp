#include "tests/e2e/NavigationFixture.h"

#include <QElapsedTimer>
#include <QGuiApplication>

namespace orvex::Test {
namespace {

class WiFiTest : public NavigationFixture {
protected:
    /// A unit that sees three networks and changes between them fast.
    void prepare(const Unit& unit) const {
        unit->changeState([key = secret.toStdString()](Simulator::UnitState& state) {
            state.wifi.seen = {
                {"Attic", key}, {"<i>Café</i> \U0001F600", ""}, {state.network.ssid, "present"}};
            state.wifi.leaveTime = std::chrono::milliseconds(50);
            state.wifi.joinTime = std::chrono::milliseconds(300);
        });
    }

    /// A unit to be set up beside another one, so that none opens by itself, and its set-up.
    void openSetUp() {
        fresh = makeUnit("ruvello", "Fresh", true);
        prepare(fresh);
        other = makeUnit("hub", "Hub");
        ASSERT_TRUE(shows({"Fresh (Local) | Ruvello | Network Setup Required", "Hub (Local) | Quivera Hub"}));
        press("deviceRow");
        ASSERT_TRUE(arrives("pageSetup030WiFiList"));
    }

    void enterPassword(const QString& password) const {
        ASSERT_TRUE(awaitItem("nextButton"));
        type(password);
        press("nextButton");
    }

    QObject* timer(const QString& name) const { return window.window()->findChild<QObject*>(name); }

    Unit fresh;
    Unit other;
};

TEST_F(WiFiTest, MovesAUnitToAnotherNetwork) {
    const Unit unit = openOnlyUnit("Sofa");
    prepare(unit);
    const QString present = QString::fromStdString(unit->state().network.ssid);
    press("infoIcon");
    press("setUpButton");
    ASSERT_TRUE(arrives("pageMain061WiFiList"));
    EXPECT_EQ(steps(), "Main050NetworkStatus Main060WiFiWaitList Main061WiFiList");
    press("backButton");
    ASSERT_TRUE(arrives("pageMain050NetworkStatus"));
    press("setUpButton");
    EXPECT_EQ(steps(), "Main050NetworkStatus Main061WiFiList") << "the list is known";

    pressNetwork(present);
    ASSERT_TRUE(arrives("pageMain065WiFiSameNetwork"));
    press("backButton");
    ASSERT_TRUE(arrives("pageMain061WiFiList"));
    EXPECT_EQ(unit->counters().requestsOf("SetWifiSetting"), 0U);

    pressNetwork("Attic");
    ASSERT_TRUE(arrives("pageMain062WiFiPassword"));
    enterPassword("wrong");
    ASSERT_TRUE(arrives("pageMain066WiFiConnectError"));
    press("backButton");
    pressNetwork("Attic");
    ASSERT_TRUE(arrives("pageMain062WiFiPassword"));
    steps();
    type(secret);
    press("eyeButton");
    EXPECT_EQ(awaitItem("field")->property("displayText"), secret);
    press("nextButton");
    EXPECT_EQ(steps(), "Main064WiFiWaitConnect");
    emit qGuiApp->applicationStateChanged(Qt::ApplicationActive);
    EXPECT_TRUE(timer("wiFiConnectTimer")->property("running").toBool());
    ASSERT_TRUE(arrives("pageMain067WiFiConnectSuccess"));
    EXPECT_FALSE(timer("wiFiConnectTimer")->property("running").toBool());
    EXPECT_EQ(unit->state().network.ssid, "Attic");
    press("button1");
    ASSERT_TRUE(arrives("pageMain010DeviceList"));
}

TEST_F(WiFiTest, GivesUpWaitingOnlyAfterTheUserCameBackToTheProgram) {
    const Unit unit = openOnlyUnit("Sofa");
    prepare(unit);
    unit->changeState(
        [](Simulator::UnitState& state) { state.wifi.fault = Simulator::JoinFault::NeverReturns; });
    press("infoIcon");
    press("setUpButton");
    pressNetwork("<i>Café</i> \U0001F600");
    ASSERT_TRUE(arrives("pageMain062WiFiPassword"));
    press("nextButton");
    ASSERT_TRUE(arrives("pageMain064WiFiWaitConnect")) << "an open network has no password";
    QObject* const patience = timer("wiFiConnectTimer");
    ASSERT_TRUE(patience);
    EXPECT_EQ(patience->property("interval"), 40000);
    EXPECT_FALSE(patience->property("running").toBool());
    // What Qt tells when the user comes back; the platform of the tests knows no other program to come back
    // from.
    emit qGuiApp->applicationStateChanged(Qt::ApplicationActive);
    EXPECT_TRUE(patience->property("running").toBool());
    patience->setProperty("interval", 1000);
    QElapsedTimer away;
    away.start();
    ASSERT_TRUE(QTest::qWaitFor([&] { return away.elapsed() > 500; }));
    emit qGuiApp->applicationStateChanged(Qt::ApplicationActive);
    away.restart();
    ASSERT_TRUE(arrives("pageMain066WiFiConnectError"));
    EXPECT_GE(away.elapsed(), 950) << "as long as ever after coming back once more";
    press("backButton");
    ASSERT_TRUE(arrives("pageMain061WiFiList"));
    ASSERT_TRUE(arrives("pageMain040DeviceInfo")) << "the unit is gone";
}

TEST_F(WiFiTest, ChoosesTheNetworkThatWasPressedAndGoesBackFromEachStep) {
    const Unit unit = openOnlyUnit("Sofa");
    unit->changeState([](Simulator::UnitState& state) { state.wifi.seen.clear(); });
    press("infoIcon");
    press("setUpButton");
    ASSERT_TRUE(arrives("pageMain060WiFiWaitList"));
    key(Qt::Key_Escape);
    ASSERT_TRUE(arrives("pageMain050NetworkStatus"));
    const auto read = unit->counters().requestsOf("GetNetworkState");
    EXPECT_TRUE(QTest::qWaitFor([&] { return unit->counters().requestsOf("GetNetworkState") > read; }, 30000))
        << "the page that is shown again is kept fresh";
    press("resetButton");
    key(Qt::Key_Escape);
    ASSERT_TRUE(arrives("pageMain050NetworkStatus"));

    prepare(unit);
    press("setUpButton");
    QQuickItem* const row = awaitNetwork("Attic");
    ASSERT_TRUE(row);
    const QPoint place = placeOf(row).center().toPoint();
    QTest::mousePress(window.window(), Qt::LeftButton, {}, place);
    unit->changeState([](Simulator::UnitState& state) {
        state.wifi.seen.insert(state.wifi.seen.begin(), {"Aardvark", ""});
    });
    ASSERT_TRUE(QTest::qWaitFor([&] { return row->property("networkName") != "Attic"; }, 30000));
    QTest::mouseRelease(window.window(), Qt::LeftButton, {}, place);
    ASSERT_TRUE(arrives("pageMain062WiFiPassword"));
    EXPECT_EQ(window.item("pageMain062WiFiPassword")->property("wiFiName"), QStringLiteral("Attic"));
    key(Qt::Key_Escape);
    ASSERT_TRUE(arrives("pageMain061WiFiList"));
    pressNetwork("Aardvark");
    ASSERT_TRUE(arrives("pageMain062WiFiPassword"));
    press("nextButton");
    ASSERT_TRUE(arrives("pageMain064WiFiWaitConnect"));
    key(Qt::Key_Escape);
    ASSERT_TRUE(arrives("pageMain010DeviceList"));
}

TEST_F(WiFiTest, TakesADoubleClickThatOpensTheSetUpForOneStep) {
    ASSERT_NO_FATAL_FAILURE(openSetUp());
    ASSERT_TRUE(awaitNetwork("Attic"));
    QList<QRectF> networks;
    for (QQuickItem* row : ShownWindow::items(window.window()->contentItem(), "networkRow")) {
        networks << placeOf(row);
    }
    key(Qt::Key_Escape);
    ASSERT_TRUE(arrives("pageMain010DeviceList"));
    QRectF both;
    const QRectF device = placeOf(awaitItem("deviceRow"));
    for (const QRectF& network : networks) {
        both = both.isEmpty() ? network & device : both;
    }
    ASSERT_FALSE(both.isEmpty()) << "nothing stands where the second click goes";
    steps();
    QTest::mouseClick(window.window(), Qt::LeftButton, {}, both.center().toPoint());
    QTest::mouseClick(window.window(), Qt::LeftButton, {}, both.center().toPoint());
    ASSERT_TRUE(awaitNetwork("Attic"));
    EXPECT_EQ(steps(), "Setup030WiFiList") << "the list is known, and the second click chose nothing of it";
}

TEST_F(WiFiTest, SetsUpANewUnit) {
    ASSERT_NO_FATAL_FAILURE(openSetUp());
    EXPECT_EQ(steps(), "Setup020WaitWiFiList Setup030WiFiList");
    EXPECT_EQ(window.item("detailsText")->property("text"), QStringLiteral("NETWORK SETUP"));
    pressNetwork("Attic");
    ASSERT_TRUE(arrives("pageSetup040WiFiPassword"));
    press("backButton");
    ASSERT_TRUE(arrives("pageSetup030WiFiList"));
    pressNetwork("Attic");
    enterPassword("wrong");
    ASSERT_TRUE(arrives("pageSetup060Error"));
    press("backButton");
    ASSERT_TRUE(arrives("pageSetup030WiFiList"));
    pressNetwork("Attic");
    enterPassword(secret);
    ASSERT_TRUE(arrives("pageSetup060Success"));
    EXPECT_FALSE(timer("setupConnectTimer")->property("running").toBool());
    EXPECT_TRUE(window.item("button1")->hasActiveFocus()) << "so that a screen reader tells it";
    key(Qt::Key_Return);
    ASSERT_TRUE(arrives("pageMain010DeviceList"));
    ASSERT_TRUE(shows({"Fresh (Local) | Ruvello", "Hub (Local) | Quivera Hub"}));
}

TEST_F(WiFiTest, BackEndsTheSetUpWhereThereIsNoListToReturnTo) {
    fresh = makeUnit("ruvello", "Fresh", true);
    fresh->changeState([](Simulator::UnitState& state) { state.wifi.seen.clear(); });
    other = makeUnit("hub", "Hub");
    const Unit third = makeUnit("kelm", "Sofa"); // when the first is gone, there is still more than one
    const auto open = [&](const char* page) {
        EXPECT_TRUE(shows({"Fresh (Local) | Ruvello | Network Setup Required", "Hub (Local) | Quivera Hub",
                           "Sofa (Local) | KELM"},
                          60000));
        pressDevice("Fresh");
        return arrives(page);
    };
    const auto lose = [&](const char* page) {
        SCOPED_TRACE(page);
        ASSERT_TRUE(arrives(page));
        fresh->stop();
        ASSERT_TRUE(QTest::qWaitFor(
            [&] { return !window.published("currDevice")->property("online").toBool(); }, 60000));
        EXPECT_EQ(shownPage(), page) << "the user is not torn away";
        key(Qt::Key_Escape);
        ASSERT_TRUE(arrives("pageMain010DeviceList"));
        ASSERT_TRUE(shows({"Hub (Local) | Quivera Hub", "Sofa (Local) | KELM"}));
        fresh->start();
    };
    ASSERT_TRUE(open("pageSetup020WaitWiFiList"));
    ASSERT_NO_FATAL_FAILURE(lose("pageSetup020WaitWiFiList"));

    prepare(fresh);
    ASSERT_TRUE(open("pageSetup030WiFiList"));
    pressNetwork("Attic");
    Simulator::Faults silence;
    silence.answer = Simulator::AnswerFault::Drop;
    silence.types = {"SetWifiSetting"};
    fresh->setFaults(silence);
    enterPassword("wrong");
    ASSERT_TRUE(arrives("pageSetup050WaitForConnect"));
    key(Qt::Key_Escape);
    ASSERT_TRUE(arrives("pageMain010DeviceList"));
    fresh->setFaults({});
    EXPECT_FALSE(timer("setupConnectTimer")->property("running").toBool());

    ASSERT_TRUE(open("pageSetup030WiFiList"));
    ASSERT_NO_FATAL_FAILURE(lose("pageSetup030WiFiList"));
    ASSERT_TRUE(open("pageSetup030WiFiList"));
    pressNetwork("Attic");
    ASSERT_NO_FATAL_FAILURE(lose("pageSetup040WiFiPassword"));
    ASSERT_TRUE(open("pageSetup030WiFiList"));
    pressNetwork("Attic");
    enterPassword("wrong");
    ASSERT_NO_FATAL_FAILURE(lose("pageSetup060Error"));
}

TEST_F(WiFiTest, OpensTheOnlyUnitByItselfOnlyWhenTheSetUpIsLeft) {
    press("addButton");
    ASSERT_TRUE(arrives("pageSetup010WaitForDevice"));
    other = makeUnit("hub", "Hub");
    ASSERT_TRUE(QTest::qWaitFor([&] { return other->counters().requestsOf("GetNetworkState") > 0; }, 30000));
    EXPECT_EQ(steps(), "Setup010WaitForDevice");
    key(Qt::Key_Escape);
    ASSERT_TRUE(arrives("pageMain040DeviceInfo"));
    EXPECT_EQ(steps(), "Main040DeviceInfo");
}

TEST_F(WiFiTest, FindsTheUnitToSetUpAndTellsWhenItIsLost) {
    other = makeUnit("hub", "Hub");
    const Unit second = makeUnit("kelm", "Sofa");
    ASSERT_TRUE(shows({"Hub (Local) | Quivera Hub", "Sofa (Local) | KELM"}));
    press("deviceRow");
    ASSERT_TRUE(arrives("pageMain040DeviceInfo"));
    press("backButton");
    ASSERT_TRUE(arrives("pageMain010DeviceList"));
    steps();
    press("addButton");
    ASSERT_TRUE(arrives("pageSetup010WaitForDevice"));
    EXPECT_EQ(window.item("titleText")->property("text"), QStringLiteral("Add Quivera Device"))
        << "not the unit that was opened before";
    EXPECT_EQ(window.item("accessPointPassword")->property("text"), QStringLiteral("tqvn5820"));
    key(Qt::Key_Escape);
    ASSERT_TRUE(arrives("pageMain010DeviceList"));
    press("addButton");
    ASSERT_TRUE(arrives("pageSetup010WaitForDevice"));
    const Unit unit = makeUnit("ruvello", "Fresh", true);
    prepare(unit);
    unit->changeState(
        [](Simulator::UnitState& state) { state.wifi.fault = Simulator::JoinFault::NeverReturns; });
    ASSERT_TRUE(arrives("pageSetup030WiFiList"));
    pressNetwork("Attic");
    QObject* const patience = timer("setupConnectTimer");
    EXPECT_EQ(patience->property("interval"), 60000);
    patience->setProperty("interval", 500);
    enterPassword(secret);
    ASSERT_TRUE(arrives("pageSetup060Error"));
    EXPECT_EQ(steps(), "Setup010WaitForDevice Setup010WaitForDevice Setup030WiFiList Setup040WiFiPassword "
                       "Setup050WaitForConnect Setup060Error");
}

} // namespace
} // namespace orvex::Test
