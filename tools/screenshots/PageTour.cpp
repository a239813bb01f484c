#include "tools/screenshots/TourFixture.h"

namespace orvex::Screenshots {
namespace {

class PageTour : public TourFixture {
protected:
    static constexpr auto livingRoom = R"({
        "playback": {"offset": 754},
        "seats": [{"index": 2, "condition": "noPower"}],
        "wifi": {"leaveTime": 50, "joinTime": 1500}})";
    static constexpr auto homeCinema = R"({"experience": {"selected": 2}, "hardware": {"temperature": 61}})";
};

TEST_F(PageTour, ListOfUnits) {
    shoot("device-list-empty");
    const Unit sofa = makeUnit("kelm", "Living Room", livingRoom);
    const Unit cinema = makeUnit("hub", "Home Cinema", homeCinema);
    const Unit fresh = makeUnit("ruvello", "Ruvello-4F21", "{}", true);
    ASSERT_TRUE(listed(3));
    ASSERT_TRUE(await([&] { return window.rows().join('\n').contains("| Ruvello | "); }));
    shoot("device-list");
    const Unit den = makeUnit("kelm", "Den",
                              R"({"content": {"stateId": 30, "percent": 40, "code": "7", "pace": 600000}})");
    ASSERT_TRUE(await([&] { return window.rows().join('\n').contains("40%"); }));
    shoot("device-list-update");
}

TEST_F(PageTour, ModesOfAUnit) {
    const Unit unit = makeUnit("kelm", "Living Room", livingRoom);
    ASSERT_TRUE(opensByItself());
    shoot("device-coded-video");
    scrollTo("hapticCard");
    shoot("device-seats");
    scrollTo("softwareCard");
    shoot("device-software");
    struct Mode {
        const char* settings;
        const char* card;
        const char* picture;
    };
    const Mode modes[] = {
        {R"({"experience": {"selected": 1}})", "codedGamingCard", "device-coded-gaming"},
        {R"({"experience": {"selected": 2}})", "adaptiveAudioCard", "device-adaptive-audio"},
        {R"({"experience": {"selected": 3}})", "adaptiveGamingCard", "device-adaptive-gaming"},
    };
    for (const auto& [settings, card, picture] : modes) {
        set(unit, settings);
        ASSERT_TRUE(appears(card));
        scrollTo("networkCard");
        shoot(picture);
    }
    set(unit, R"({"experience": {"selected": 2, "state": "Transitioning"}})");
    ASSERT_TRUE(appears("modeTransition"));
    shoot("device-transition");
    set(unit, R"({"experience": {"state": "On", "status": 101}})");
    ASSERT_TRUE(appears("modeError"));
    shoot("device-mode-error");
}

TEST_F(PageTour, UnitThatIsNotWell) {
    const Unit unit = makeUnit("kelm", "Living Room", livingRoom);
    Simulator::Faults faults;
    faults.answer = Simulator::AnswerFault::Drop;
    faults.types = {"GetSoftwareHealthStatus"};
    unit->setFaults(faults);
    ASSERT_TRUE(appears("noticeHeading"));
    shoot("device-update-required");
    unit->setFaults({});
    ASSERT_TRUE(await([&] { return !window.item("noticeHeading"); }));
    unit->stop();
    ASSERT_TRUE(appears("noticeHeading"));
    shoot("device-offline");
}

TEST_F(PageTour, NetworkReset) {
    const Unit unit = makeUnit("kelm", "Living Room", livingRoom);
    ASSERT_TRUE(opensByItself());
    press("infoIcon");
    ASSERT_TRUE(appears("connectionStatus"));
    shoot("network-status");
    press("resetButton");
    ASSERT_TRUE(arrives("pageMain051NetworkReset"));
    shoot("network-reset");
    press("button1");
    ASSERT_TRUE(arrives("pageMain052NetworkResetWait"));
    shootWait("network-reset-wait");
    ASSERT_TRUE(arrives("pageMain053NetworkResetDone"));
    shoot("network-reset-done");
}

TEST_F(PageTour, AnotherNetwork) {
    const Unit unit = makeUnit("kelm", "Living Room", livingRoom);
    ASSERT_TRUE(opensByItself());
    searchSlowly(unit);
    press("infoIcon");
    press("setUpButton");
    ASSERT_TRUE(arrives("pageMain060WiFiWaitList"));
    shootWait("wifi-wait-list");
    ASSERT_TRUE(arrives("pageMain061WiFiList"));
    shoot("wifi-list");
    pressNetwork("Living Room");
    ASSERT_TRUE(arrives("pageMain065WiFiSameNetwork"));
    shoot("wifi-same");
    press("backButton");
    pressNetwork("Home Cinema");
    enterPassword("guessed wrong");
    shoot("wifi-password");
    press("nextButton");
    ASSERT_TRUE(arrives("pageMain064WiFiWaitConnect"));
    shootWait("wifi-wait-connect");
    ASSERT_TRUE(arrives("pageMain066WiFiConnectError"));
    shoot("wifi-error");
    press("backButton");
    pressNetwork("Home Cinema");
    enterPassword("second-row-left");
    press("nextButton");
    ASSERT_TRUE(arrives("pageMain067WiFiConnectSuccess"));
    shoot("wifi-success");
}

TEST_F(PageTour, NameTitlesAndModules) {
    const Unit unit = makeUnit("kelm", "Living Room", livingRoom);
    ASSERT_TRUE(opensByItself());
    press("rightButton");
    ASSERT_TRUE(arrives("pageMain070DeviceAbout"));
    shoot("about");
    scrollTo("productCard");
    shoot("about-app");
    press("rightButton");
    ASSERT_TRUE(arrives("pageMain071DeviceRename"));
    shoot("rename");
    press("backButton");
    press("backButton");
    scrollTo("mediaListButton");
    press("mediaListButton");
    ASSERT_TRUE(await([&] {
        QQuickItem* const list = window.item("mediaList");
        return list && list->property("count") == 5000;
    }));
    shoot("media-list");
    press("searchField");
    type("golden");
    shoot("media-search");
    type("(");
    ASSERT_TRUE(appears("mediaNotice"));
    shoot("media-search-empty");
    press("backButton");
    scrollTo("hapticCard");
    press("seatHealth");
    ASSERT_TRUE(await([&] {
        QQuickItem* const list = window.item("statusList");
        return list && list->property("count").toInt() > 0;
    }));
    shoot("detailed-status-faults");
    press("statusFilter");
    shoot("detailed-status-filter");
    key(Qt::Key_Up);
    key(Qt::Key_Return);
    shoot("detailed-status");
}

} // namespace
} // namespace orvex::Screenshots
