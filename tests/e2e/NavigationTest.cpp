#include "Product.h"
#include "tests/e2e/NavigationFixture.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QRegularExpression>

#include <iterator>

namespace orvex::Test {
namespace {

using NavigationTest = NavigationFixture;

TEST_F(NavigationTest, RenamesAUnitWithTheKeyboardAlone) {
    const Unit unit = openOnlyUnit("Sofa");
    QQuickItem* const about = awaitItem("rightButton");
    ASSERT_TRUE(about);
    for (int i = 0; i < 40 && !about->hasActiveFocus(); ++i) {
        key(Qt::Key_Tab);
    }
    ASSERT_TRUE(about->property("visualFocus").toBool());
    key(Qt::Key_Return);
    ASSERT_TRUE(arrives("pageMain070DeviceAbout"));
    key(Qt::Key_Tab);
    key(Qt::Key_Tab);
    EXPECT_TRUE(window.item("rightButton")->hasActiveFocus());
    key(Qt::Key_Space);
    ASSERT_TRUE(arrives("pageMain071DeviceRename"));
    type(QStringLiteral("Arm<b>chair"));
    key(Qt::Key_Return);
    ASSERT_TRUE(arrives("pageMain070DeviceAbout"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return unit->state().name == "Arm<b>chair"; }, 10000));
    EXPECT_EQ(window.item("titleText")->property("text"), QStringLiteral("Arm<b>chair"));

    // Without a change nothing is sent, and the page's own polling goes on.
    press("rightButton");
    press("doneButton");
    ASSERT_TRUE(arrives("pageMain070DeviceAbout"));
    const auto read = unit->counters().requestsOf("GetKelmName");
    EXPECT_TRUE(QTest::qWaitFor([&] { return unit->counters().requestsOf("GetKelmName") > read; }, 10000));
    EXPECT_EQ(unit->counters().requestsOf("SetKelmName"), 1U);
    press("rightButton");
    ASSERT_TRUE(arrives("pageMain071DeviceRename"));
    key(Qt::Key_Delete);
    key(Qt::Key_Return);
    EXPECT_FALSE(window.item("doneButton")->isEnabled()) << "no name is none";
    key(Qt::Key_Escape);
    key(Qt::Key_Escape);
    ASSERT_TRUE(arrives("pageMain040DeviceInfo"));
    EXPECT_TRUE(window.item("rightButton")->property("visualFocus").toBool())
        << "the focus returns to where it was, and is seen";
    key(Qt::Key_Escape);
    ASSERT_TRUE(arrives("pageMain010DeviceList"));
    EXPECT_EQ(
        steps(),
        "Main070DeviceAbout Main071DeviceRename Main070DeviceAbout Main071DeviceRename Main070DeviceAbout "
        "Main071DeviceRename Main070DeviceAbout Main040DeviceInfo Main010DeviceList");
    ASSERT_TRUE(shows({"Arm<b>chair (Local) | KELM"}));
}

TEST_F(NavigationTest, TellsAboutTheProgramAndWhoseWorkItIsMadeOf) {
    const Unit unit = openOnlyUnit("Sofa");
    press("rightButton");
    ASSERT_TRUE(arrives("pageMain070DeviceAbout"));
    const auto shown = [&](const char* rows) {
        QStringList texts;
        for (QQuickItem* row : window.items(window.window()->contentItem(), rows)) {
            texts << row->property("label").toString() + ": " + row->property("text").toString();
        }
        return texts;
    };
    EXPECT_TRUE(shown("productRow").contains("Name: Quivera"));
    const QStringList parts = shown("partRow").filter(QRegularExpression("^.+: .+\n© .+$"));
    EXPECT_EQ(parts.size(), static_cast<int>(std::size(QuiveraProduct::parts)));
    EXPECT_EQ(parts.filter(QRegularExpression("^Qt .*LGPL")).size(), 1);

    window.window()->resize(400, 600);
    QQuickItem* const area = window.item("scrollArea");
    ASSERT_TRUE(area);
    for (int i = 0; i < 10; ++i) {
        key(Qt::Key_PageDown);
    }
    EXPECT_GT(area->property("contentY").toDouble(), 600) << "the keyboard alone reaches the last part";
    EXPECT_TRUE(area->property("atYEnd").toBool());
    for (int i = 0; i < 10; ++i) {
        key(Qt::Key_PageUp);
    }
    EXPECT_TRUE(area->property("atYBeginning").toBool());
}

TEST_F(NavigationTest, ResetsTheNetworkOnlyWhenThatIsConfirmed) {
    const Unit unit = openOnlyUnit("Sofa");
    press("infoIcon");
    ASSERT_TRUE(arrives("pageMain050NetworkStatus"));
    EXPECT_EQ(window.item("connectionStatus")->property("text"), QStringLiteral("Connected to the network"));
    press("resetButton");
    ASSERT_TRUE(arrives("pageMain051NetworkReset"));
    press("button2");
    ASSERT_TRUE(arrives("pageMain050NetworkStatus"));
    EXPECT_EQ(unit->counters().requestsOf("SetWifiSetting"), 0U);
    press("resetButton");
    QElapsedTimer waited;
    waited.start();
    press("button1");
    ASSERT_TRUE(arrives("pageMain052NetworkResetWait"));
    ASSERT_TRUE(arrives("pageMain053NetworkResetDone"));
    EXPECT_GE(waited.elapsed(), 950) << "the unit has a second";
    EXPECT_TRUE(QTest::qWaitFor([&] { return unit->state().network.hotspotActive; }, 10000));
    press("button1");
    ASSERT_TRUE(arrives("pageMain010DeviceList"));
    EXPECT_EQ(steps(), "Main050NetworkStatus Main051NetworkReset Main050NetworkStatus Main051NetworkReset "
                       "Main052NetworkResetWait Main053NetworkResetDone Main010DeviceList");
    ASSERT_TRUE(shows({"Sofa (Local) | KELM | Network Setup Required"}));
}

TEST_F(NavigationTest, OpensEachPageOfAUnitAndComesBack) {
    const Unit unit = openOnlyUnit("Sofa");
    const auto updates = [&] { return unit->counters().requestsOf("RequestContentUpdate"); };
    ASSERT_TRUE(QTest::qWaitFor([&] { return updates() == 1; }, 10000));
    emit qGuiApp->applicationStateChanged(Qt::ApplicationActive);
    EXPECT_TRUE(QTest::qWaitFor([&] { return updates() == 2; }, 10000)) << "the user came back to the page";
    struct Way {
        const char* button;
        const char* page;
        const char* question; // that keeps the page fresh
    };
    const Way ways[] = {{"infoIcon", "pageMain050NetworkStatus", "GetNetworkState"},
                        {"mediaListButton", "pageMain080MediaList", "GetMediaListNotification"},
                        {"seatHealth", "pageMain076DetailedStatus", "GetHapticSystemStatus"},
                        {"rightButton", "pageMain070DeviceAbout", "GetUpgrade"}};
    const auto asked = [&](const char* question) { return unit->counters().requestsOf(question); };
    const auto isAskedAgain = [&](const char* question, std::uint64_t before) {
        return QTest::qWaitFor([&] { return asked(question) > before; }, 30000);
    };
    for (const Way& way : ways) {
        const auto before = asked(way.question);
        press(way.button);
        ASSERT_TRUE(arrives(way.page));
        EXPECT_TRUE(isAskedAgain(way.question, before)) << way.question;
        const auto modes = asked("GetExperienceModes");
        press("backButton");
        ASSERT_TRUE(arrives("pageMain040DeviceInfo"));
        EXPECT_TRUE(isAskedAgain("GetExperienceModes", modes));
    }
}

TEST_F(NavigationTest, TakesADoubleClickForOneStepAndPressesNothingOnThePageThatComes) {
    const Unit sofa = makeUnit("kelm", "Sofa");
    const Unit hub = makeUnit("hub", "Hub");
    ASSERT_TRUE(shows({"Hub (Local) | Quivera Hub", "Sofa (Local) | KELM"}));
    QQuickItem* const row = awaitItem("deviceRow");
    pressAt(row);
    pressAt(row);
    EXPECT_EQ(steps(), "Main040DeviceInfo");
    QQuickItem* const back = awaitItem("backButton");
    pressAt(back);
    pressAt(back);
    ASSERT_TRUE(awaitItem("deviceRow"));
    EXPECT_EQ(steps(), "Main010DeviceList");
}

TEST_F(NavigationTest, TakesAHeldKeyForOneStep) {
    const Unit sofa = makeUnit("kelm", "Sofa");
    const Unit hub = makeUnit("hub", "Hub");
    ASSERT_TRUE(shows({"Hub (Local) | Quivera Hub", "Sofa (Local) | KELM"}));
    const auto hold = [&](Qt::Key code) {
        for (const bool isRepeated : {false, true, true, true}) {
            QKeyEvent pressed(QEvent::KeyPress, code, Qt::NoModifier, {}, isRepeated);
            QCoreApplication::sendEvent(window.window(), &pressed);
        }
        QKeyEvent released(QEvent::KeyRelease, code, Qt::NoModifier);
        QCoreApplication::sendEvent(window.window(), &released);
    };
    const std::pair<const char*, const char*> ways[] = {{"deviceRow", "Main040DeviceInfo"},
                                                        {"infoIcon", "Main050NetworkStatus"},
                                                        {"resetButton", "Main051NetworkReset"}};
    for (const auto& [button, page] : ways) {
        QQuickItem* const pressed = awaitItem(button);
        ASSERT_TRUE(pressed);
        pressed->forceActiveFocus(Qt::TabFocusReason);
        hold(Qt::Key_Return);
        EXPECT_EQ(steps(), page);
    }
    hold(Qt::Key_Escape);
    EXPECT_EQ(steps(), "Main050NetworkStatus");
}

TEST_F(NavigationTest, ReturnsToTheUnitsPageWhenTheUnitGoesWhileItsNameIsTyped) {
    const Unit unit = openOnlyUnit("Sofa");
    press("rightButton");
    press("rightButton");
    ASSERT_TRUE(arrives("pageMain071DeviceRename"));
    type("x");
    unit->stop();
    ASSERT_TRUE(arrives("pageMain040DeviceInfo"));
    key(Qt::Key_Return);
    EXPECT_EQ(steps(), "Main070DeviceAbout Main071DeviceRename Main040DeviceInfo");
    unit->start();
    const auto asked = unit->counters().requestsOf("GetNetworkState");
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return unit->counters().requestsOf("GetNetworkState") > asked; }, 60000))
        << "the page recovers by itself";
    EXPECT_EQ(unit->counters().requestsOf("SetKelmName"), 0U);
}

TEST_F(NavigationTest, EachPageThatNeedsTheUnitClosesWhenTheUnitGoes) {
    const Unit unit = openOnlyUnit("Sofa");
    const std::string present = unit->state().network.ssid;
    const auto sees = [&](const std::vector<std::string>& networks) {
        unit->changeState([&](Simulator::UnitState& state) {
            state.wifi.seen.clear();
            for (const std::string& network : networks) {
                state.wifi.seen.push_back({network, ""});
            }
        });
    };
    struct Way {
        std::vector<std::string> networks; // that the unit sees
        QStringList buttons;
        QString network; // that is chosen
        const char* page;
    };
    const Way ways[] = {{{}, {"infoIcon", "setUpButton"}, {}, "pageMain060WiFiWaitList"},
                        {{}, {"infoIcon"}, {}, "pageMain050NetworkStatus"},
                        {{}, {"infoIcon", "resetButton"}, {}, "pageMain051NetworkReset"},
                        {{}, {"rightButton"}, {}, "pageMain070DeviceAbout"},
                        {{}, {"seatHealth"}, {}, "pageMain076DetailedStatus"},
                        {{}, {"mediaListButton"}, {}, "pageMain080MediaList"},
                        {{"Attic"}, {"infoIcon", "setUpButton"}, {}, "pageMain061WiFiList"},
                        {{"Attic"}, {"infoIcon", "setUpButton"}, "Attic", "pageMain062WiFiPassword"},
                        {{present},
                         {"infoIcon", "setUpButton"},
                         QString::fromStdString(present),
                         "pageMain065WiFiSameNetwork"}};
    for (const Way& way : ways) {
        SCOPED_TRACE(way.page);
        sees(way.networks);
        for (const QString& button : way.buttons) {
            press(button);
        }
        if (!way.network.isEmpty()) {
            pressNetwork(way.network);
        }
        ASSERT_TRUE(arrives(way.page));
        ASSERT_TRUE(awaitItem("backButton"));
        unit->stop();
        // A unit that goes while its titles are asked for is given up only after the 30 s of that request.
        ASSERT_TRUE(arrives("pageMain040DeviceInfo", 60000));
        unit->start();
        ASSERT_TRUE(QTest::qWaitFor(
            [&] { return window.item("onlineStatus")->property("text") == QStringLiteral("Device Online"); },
            60000));
    }
    EXPECT_EQ(unit->counters().requestsOf("SetWifiSetting"), 0U);
}

} // namespace
} // namespace orvex::Test
