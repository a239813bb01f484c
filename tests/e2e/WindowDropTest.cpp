#include "tests/e2e/ShownWindow.h"

namespace orvex::Test {
namespace {

using WindowDropTest = WindowFixture;

/// Two polls of a unit that is gone, 15 s each, and some time for the rest.
constexpr int dropBound = 75000; // ms

TEST_F(WindowDropTest, AUnitThatWasSwitchedOffLeavesWithItsSecondFailedPollAndMayComeBack) {
    const Unit stays = makeUnit("kelm", "Stays");
    const Unit goes = makeUnit("hub", "Goes");
    const QString gone = QStringLiteral("Goes (Local) | Quivera Hub");
    const QString stayed = QStringLiteral("Stays (Local) | KELM");
    ASSERT_TRUE(shows({gone, stayed}));
    goes->stop();
    ASSERT_TRUE(shows({stayed}, dropBound));
    goes->start();
    EXPECT_TRUE(shows({gone, stayed}));
    stays->rename("Moved up");
    EXPECT_TRUE(shows({gone, "Moved up (Local) | KELM"})) << "the others are still asked";
}

} // namespace
} // namespace orvex::Test
