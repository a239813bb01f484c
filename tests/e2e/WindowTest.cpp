#include "tests/e2e/ShownWindow.h"

#include <QElapsedTimer>

namespace orvex::Test {
namespace {

using WindowTest = WindowFixture;

const QString local = QStringLiteral(" (Local)");

TEST_F(WindowTest, TellsAPersonWithoutUnitsWhatToDo) {
    ASSERT_TRUE(window.window());
    EXPECT_TRUE(QTest::qWaitForWindowExposed(window.window()));
    QQuickItem* text = nullptr;
    ASSERT_TRUE(
        QTest::qWaitFor([&] { return (text = window.item(QStringLiteral("emptyText"))) != nullptr; }));
    EXPECT_EQ(text->property("text"),
              QStringLiteral("No Quivera device found.\nTap the \"Add Quivera Device\"\nbutton below."));
    EXPECT_TRUE(window.rows().isEmpty());
}

TEST_F(WindowTest, ShowsTheUnitsAroundAndKeepsTheirRowsTrue) {
    const Unit sofa = makeUnit("kelm", "Sofa");
    const Unit hub = makeUnit("hub", "hub <b>1</b>");
    const Unit fresh = makeUnit("ruvello", "Fresh", true);
    ASSERT_TRUE(shows({"Fresh" + local + " | Ruvello | Network Setup Required",
                       "hub <b>1</b>" + local + " | Quivera Hub", "Sofa" + local + " | KELM"}));
    EXPECT_EQ(window.item(QStringLiteral("emptyText")), nullptr);

    sofa->rename("Armchair");
    ASSERT_TRUE(shows({"Fresh" + local + " | Ruvello | Network Setup Required",
                       "hub <b>1</b>" + local + " | Quivera Hub", "Armchair" + local + " | KELM"}));

    const Unit late = makeUnit("kelm", "Bench");
    late->changeState([](Simulator::UnitState& state) {
        state.content.id = 30;
        state.content.percent = 40;
        state.content.code = "7";
    });
    ASSERT_TRUE(shows({"Bench" + local + " | KELM | Downloading content 40%\nCode: 7",
                       "Fresh" + local + " | Ruvello | Network Setup Required",
                       "hub <b>1</b>" + local + " | Quivera Hub", "Armchair" + local + " | KELM"}));
    sofa->changeState([](Simulator::UnitState& state) { state.content.id = 9999; });
    ASSERT_TRUE(shows({"Bench" + local + " | KELM | Downloading content 40%\nCode: 7",
                       "Fresh" + local + " | Ruvello | Network Setup Required",
                       "hub <b>1</b>" + local + " | Quivera Hub",
                       "Armchair" + local + " | KELM | System Update Required"}));
}

TEST_F(WindowTest, ClosesAtOnceAlsoWhileAUnitStalls) {
    const Unit unit = makeUnit("kelm", "Stalling");
    Simulator::Faults faults;
    faults.answer = Simulator::AnswerFault::StallMidFrame;
    unit->setFaults(faults);
    ASSERT_TRUE(QTest::qWaitFor([&] { return unit->counters().requestsOf("GetKelmName") > 0; }, 30000));
    QElapsedTimer taken;
    taken.start();
    window.close();
    EXPECT_LT(taken.elapsed(), 5000);
}

} // namespace
} // namespace orvex::Test
