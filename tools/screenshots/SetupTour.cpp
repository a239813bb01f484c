#include "tools/screenshots/TourFixture.h"

namespace orvex::Screenshots {
namespace {

using SetupTour = TourFixture;

TEST_F(SetupTour, SetUpWindow) {
    const Unit cinema = makeUnit("hub", "Home Cinema");
    const Unit sofa = makeUnit("kelm", "Living Room");
    ASSERT_TRUE(listed(2));
    press("addButton");
    ASSERT_TRUE(arrives("pageSetup010WaitForDevice"));
    shoot("setup-search");
    press("backButton");

    const Unit fresh = makeUnit("ruvello", "Attic", R"({"wifi": {"leaveTime": 50, "joinTime": 1500}})", true);
    searchSlowly(fresh);
    ASSERT_TRUE(await([&] { return window.rows().join('\n').contains("| Ruvello | "); }));
    pressUnit("Attic");
    ASSERT_TRUE(arrives("pageSetup020WaitWiFiList"));
    shootWait("setup-wait-list");
    ASSERT_TRUE(arrives("pageSetup030WiFiList"));
    shoot("setup-wifi-list");
    pressNetwork("Living Room");
    enterPassword("guessed wrong");
    press("eyeButton");
    shoot("setup-password");
    press("nextButton");
    ASSERT_TRUE(arrives("pageSetup050WaitForConnect"));
    shootWait("setup-wait-connect");
    ASSERT_TRUE(arrives("pageSetup060Error"));
    shoot("setup-error");
    press("backButton");
    pressNetwork("Living Room");
    enterPassword("sofa-and-popcorn");
    press("nextButton");
    ASSERT_TRUE(arrives("pageSetup060Success"));
    shoot("setup-success");
}

} // namespace
} // namespace orvex::Screenshots
