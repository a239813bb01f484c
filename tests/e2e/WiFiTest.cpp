#include "tests/e2e/NavigationFixture.h"

#include <QWindow>

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

    void enterPassword(const QString& password) const {
        ASSERT_TRUE(awaitItem("nextButton"));
        type(password);
        press("nextButton");
    }

    QObject* timer(const QString& name) const { return window.window()->findChild<QObject*>(name); }
};

TEST_F(WiFiTest, MovesAUnitToAnotherNetwork) {
    const Unit unit = openOnlyUnit("Sofa");
    prepare(unit);
    const QString present = QString::fromStdString(unit->state().network.ssid);
    press("infoIcon");
    press("setUpButton");
    ASSERT_TRUE(arrives("pageMain061WiFiList"));
    EXPECT_EQ(steps(), (QStringList{"Main050NetworkStatus", "Main060WiFiWaitList", "Main061WiFiList"}));
    press("backButton");
    ASSERT_TRUE(arrives("pageMain050NetworkStatus"));
    press("setUpButton");
    EXPECT_EQ(steps(), (QStringList{"Main050NetworkStatus", "Main061WiFiList"})) << "the list is known";

    pressNetwork(present);
    ASSERT_TRUE(arrives("pageMain065WiFiSameNetwork"));
    press("backButton");
    ASSERT_TRUE(arrives("pageMain061WiFiList"));
    EXPECT_EQ(unit->counters().requestsOf("SetWifiSetting"), 0U);

    pressNetwork("Attic");
    ASSERT_TRUE(arrives("pageMain062WiFiPassword"));
    enterPassword("wrong");
    ASSERT_TRUE(arrives("pageMain066WiFiConnectError"));
    EXPECT_TRUE(message().startsWith("Quivera device cannot connect to selected network."));
    press("backButton");
    pressNetwork("Attic");
    ASSERT_TRUE(arrives("pageMain062WiFiPassword"));
    steps();
    type(secret);
    press("eyeButton");
    EXPECT_EQ(awaitItem("field")->property("displayText"), secret);
    press("nextButton");
    EXPECT_EQ(steps(), QStringList{"Main064WiFiWaitConnect"});
    ASSERT_TRUE(arrives("pageMain067WiFiConnectSuccess"));
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
    {
        QWindow other;
        other.show();
        other.requestActivate();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    }
    ASSERT_TRUE(QTest::qWaitFor([] { return QGuiApplication::applicationState() != Qt::ApplicationActive; }));
    window.window()->requestActivate();
    ASSERT_TRUE(QTest::qWaitFor([&] { return patience->property("running").toBool(); }));
    patience->setProperty("interval", 100);
    ASSERT_TRUE(arrives("pageMain066WiFiConnectError"));
    press("backButton");
    ASSERT_TRUE(arrives("pageMain061WiFiList"));
    ASSERT_TRUE(arrives("pageMain040DeviceInfo")) << "the unit is gone";
}

TEST_F(WiFiTest, SetsUpANewUnit) {
    const Unit unit = makeUnit("ruvello", "Fresh", true);
    prepare(unit);
    const Unit other = makeUnit("hub", "Hub");
    ASSERT_TRUE(shows({"Fresh (Local) | Ruvello | Network Setup Required", "Hub (Local) | Quivera Hub"}));
    press("deviceRow");
    ASSERT_TRUE(arrives("pageSetup030WiFiList"));
    EXPECT_EQ(steps(), (QStringList{"Setup020WaitWiFiList", "Setup030WiFiList"}));
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
    EXPECT_EQ(message(), "Your Quivera device\nsuccessfully connected\nto your network.");
    EXPECT_TRUE(window.item("button1")->hasActiveFocus()) << "so that a screen reader tells it";
    key(Qt::Key_Return);
    ASSERT_TRUE(arrives("pageMain010DeviceList"));
    ASSERT_TRUE(shows({"Fresh (Local) | Ruvello", "Hub (Local) | Quivera Hub"}));
}

TEST_F(WiFiTest, FindsTheUnitToSetUpAndTellsWhenItIsLost) {
    const Unit other = makeUnit("hub", "Hub");
    const Unit second = makeUnit("kelm", "Sofa");
    ASSERT_TRUE(shows({"Hub (Local) | Quivera Hub", "Sofa (Local) | KELM"}));
    press("addButton");
    ASSERT_TRUE(arrives("pageSetup010WaitForDevice"));
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
    EXPECT_EQ(steps(), (QStringList{"Setup010WaitForDevice", "Setup010WaitForDevice", "Setup030WiFiList",
                                    "Setup040WiFiPassword", "Setup050WaitForConnect", "Setup060Error"}));
}

} // namespace
} // namespace orvex::Test
