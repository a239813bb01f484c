#include "tests/e2e/ShownWindow.h"

#include <QSignalSpy>

namespace orvex::Test {
namespace {

using namespace std::chrono_literals;

constexpr int bound = 20000; // ms; the page reads everything again every 5 s

/// The page of the only unit there is, driven as a person would.
class DevicePageTest : public WindowFixture {
protected:
    void SetUp() override {
        WindowFixture::SetUp();
        unit = makeUnit("kelm", "Sofa");
    }

    /// A lone unit opens by itself.
    bool openPage() {
        if (!QTest::qWaitForWindowExposed(window.window())) {
            return false;
        }
        QTest::mouseClick(window.window(), Qt::LeftButton, {}, {5, 5}); // away with the splash
        return QTest::qWaitFor([this] { return item("modeChoice") != nullptr; }, 60000) && isDrawn();
    }
    /// What has just been shown has its place once it is drawn.
    bool isDrawn() const {
        QSignalSpy frames(window.window(), &QQuickWindow::frameSwapped);
        window.window()->update();
        return frames.wait(bound);
    }

    QQuickItem* item(const QString& name) const { return window.item(name); }
    /// A part of a control, by the names of both.
    QQuickItem* part(const QString& control, const QString& name) const {
        QQuickItem* const whole = item(control);
        return whole ? whole->findChild<QQuickItem*>(name) : nullptr;
    }
    QQuickItem* slider(const QString& control) const { return part(control, "slider"); }
    static std::string text(QQuickItem* shown) {
        return shown ? shown->property("text").toString().toStdString() : "nothing is shown";
    }

    /// By the keyboard's way to it, which also brings it into view.
    static void focus(QQuickItem* control) { control->forceActiveFocus(Qt::TabFocusReason); }
    void press(QQuickItem* control, Qt::Key key) const {
        focus(control);
        QTest::keyClick(window.window(), key);
    }
    static QPoint placeOf(QQuickItem* control, qreal share = 0.5) {
        return control->mapToScene({control->width() * share, control->height() / 2}).toPoint();
    }
    void click(QQuickItem* control) const {
        focus(control);
        QTest::mouseClick(window.window(), Qt::LeftButton, {}, placeOf(control));
    }
    void choose(QQuickItem* comboBox, int index) const {
        // Not over the list that opens: it would choose by itself.
        QTest::mouseMove(window.window(), {1, 1});
        press(comboBox, Qt::Key_Return);
        const int steps = index - comboBox->property("currentIndex").toInt();
        for (int step = 0; step < std::abs(steps); ++step) {
            QTest::keyClick(window.window(), steps > 0 ? Qt::Key_Down : Qt::Key_Up);
        }
        QTest::keyClick(window.window(), Qt::Key_Return);
    }
    static bool waitFor(const std::function<bool()>& condition) { return QTest::qWaitFor(condition, bound); }
    std::uint64_t requests(const char* type) const { return unit->counters().requestsOf(type); }
    static bool canBeUsed(QQuickItem* control) { return control && control->isEnabled(); }
    static double valueOf(QQuickItem* control) { return control->property("value").toDouble(); }

    Unit unit;
};

TEST_F(DevicePageTest, NothingCanBeSetWhileTheModeChangesAndItsEndIsTold) {
    ASSERT_TRUE(openPage());
    EXPECT_TRUE(item("codedVideoCard"));
    choose(part("modeChoice", "comboBox"), 2);
    ASSERT_TRUE(waitFor([this] { return item("modeTransition") != nullptr; }));
    EXPECT_FALSE(canBeUsed(part("modeChoice", "comboBox")));
    ASSERT_EQ(unit->state().experience.selected, 2);
    ASSERT_TRUE(slider("captureVolume"));
    EXPECT_FALSE(canBeUsed(slider("captureVolume")));
    EXPECT_FALSE(canBeUsed(part("muted", "switch")));
    QTest::mouseClick(window.window(), Qt::LeftButton, {}, placeOf(slider("captureVolume"), 0.9));
    ASSERT_TRUE(waitFor([this] { return item("modeTransition") == nullptr; }));
    EXPECT_TRUE(canBeUsed(slider("captureVolume")));
    EXPECT_TRUE(canBeUsed(part("muted", "switch")));
    EXPECT_FALSE(item("codedVideoCard"));
    EXPECT_EQ(text(item("modeAnnouncement")), "The mode is now Adaptive Audio.");
    EXPECT_EQ(unit->state().experience.selected, 2);
    EXPECT_EQ(requests("SetExperienceMode"), 1U);
    EXPECT_EQ(requests("SetCaptureVolume"), 0U) << "by the click while it could not be used";

    unit->changeState([](Simulator::UnitState& state) { state.experience.failure = 101; });
    choose(part("modeChoice", "comboBox"), 3);
    ASSERT_TRUE(waitFor([this] { return item("modeError") != nullptr; }));
    EXPECT_EQ(text(item("modeError")), "Error with haptic device (101) - try replugging your cables");
    EXPECT_EQ(part("modeChoice", "comboBox")->property("currentIndex"), 2) << "as the unit has it";
}

TEST_F(DevicePageTest, ASliderStaysInTheHandReachesTheUnitOnceAndThenFollowsIt) {
    ASSERT_TRUE(openPage());
    QQuickItem* const delay = slider("motionDelay");
    focus(delay);
    QTest::mousePress(window.window(), Qt::LeftButton, {}, placeOf(delay));
    for (int step = 1; step <= 10; ++step) {
        QTest::mouseMove(window.window(), placeOf(delay, 0.5 + 0.02 * step));
    }
    const double inHand = valueOf(delay);
    EXPECT_GT(inHand, 0);
    unit->changeState([](Simulator::UnitState& state) {
        state.motionDelay = -900;
        state.recognitionTolerance = 42;
    });
    ASSERT_TRUE(waitFor([this] { return valueOf(slider("recognitionTolerance")) == 42; }));
    EXPECT_EQ(valueOf(delay), inHand) << "a refresh must not move it";
    EXPECT_EQ(requests("SetMotionDelay"), 0U);

    QTest::mouseRelease(window.window(), Qt::LeftButton, {}, placeOf(delay, 0.7));
    ASSERT_TRUE(waitFor([&] { return unit->state().motionDelay == static_cast<int>(inHand); }));
    press(delay, Qt::Key_Right);
    ASSERT_TRUE(waitFor([&] { return unit->state().motionDelay == static_cast<int>(inHand) + 10; }));
    EXPECT_EQ(requests("SetMotionDelay"), 2U);
    EXPECT_EQ(text(part("motionDelay", "valueText")), QStringLiteral("%1 ms").arg(inHand + 10).toStdString());

    unit->changeState([](Simulator::UnitState& state) { state.motionDelay = -30; });
    EXPECT_TRUE(waitFor([&] { return valueOf(delay) == -30; })) << "it still follows the unit";
    EXPECT_EQ(text(part("motionDelay", "valueText")), "-30 ms");
}

TEST_F(DevicePageTest, AControlReturnsToTheUnitsValueWhenTheUnitRefuses) {
    ASSERT_TRUE(openPage());
    unit->changeState([](Simulator::UnitState& state) {
        state.seats[0].condition = Simulator::SeatCondition::NoCommunication;
    });
    ASSERT_TRUE(waitFor(
        [this] { return item("seatHealth")->property("statusText") == "No Communication with System"; }));
    QQuickItem* const muted = part("muted", "switch");
    click(muted);
    EXPECT_TRUE(muted->property("checked").toBool()) << "shown at once";
    ASSERT_TRUE(waitFor([&] { return !muted->property("checked").toBool(); }));
    EXPECT_TRUE(item("refusal")) << "the user is told";
    EXPECT_EQ(requests("SetSeatSetting"), 1U);
    unit->changeState([](Simulator::UnitState& state) { state.seats[0].muted = true; });
    EXPECT_TRUE(waitFor([&] { return muted->property("checked").toBool(); }));
    EXPECT_FALSE(item("refusal"));
}

TEST_F(DevicePageTest, TheLevelsOfASeatMoveTogetherWhileTheyAreKeptSo) {
    ASSERT_TRUE(openPage());
    press(part("locked", "switch"), Qt::Key_Space);
    ASSERT_TRUE(waitFor([this] { return unit->state().seats[0].chained; }));
    press(slider("motion"), Qt::Key_PageDown);
    ASSERT_TRUE(waitFor([this] { return unit->state().seats[0].motion == -8; }));
    EXPECT_EQ(unit->state().seats[0].vibration, -8);
    EXPECT_EQ(text(part("vibration", "valueText")), "-8 dB");
    press(part("locked", "switch"), Qt::Key_Space);
    press(slider("vibration"), Qt::Key_End);
    ASSERT_TRUE(waitFor([this] { return unit->state().seats[0].vibration == 0; }));
    EXPECT_EQ(unit->state().seats[0].motion, -8);
    EXPECT_FALSE(unit->state().seats[0].chained);
}

TEST_F(DevicePageTest, SaysSoWhenTheUnitIsGoneAndFillsAgainWhenItIsBack) {
    ASSERT_TRUE(openPage());
    unit->stop();
    ASSERT_TRUE(waitFor([this] { return text(item("noticeHeading")) == "This device does not answer"; }));
    EXPECT_FALSE(item("modeChoice"));
    unit->start();
    EXPECT_TRUE(waitFor([this] { return item("modeChoice") && !item("noticeHeading"); }));
}

TEST_F(DevicePageTest, AUnitThatLeavesQuestionsUnansweredIsShownWithWhatItTellsAndNeedsAnUpdate) {
    Simulator::Faults faults;
    faults.answer = Simulator::AnswerFault::Drop;
    faults.types = {"GetSoftwareHealthStatus"};
    unit->setFaults(faults);
    ASSERT_TRUE(openPage());
    EXPECT_EQ(text(item("noticeHeading")), "System Update Required");
    EXPECT_TRUE(canBeUsed(part("modeChoice", "comboBox")));
    unit->setFaults({});
    EXPECT_TRUE(waitFor([this] { return item("modeChoice") && !item("noticeHeading"); })) << "once it is new";
}

TEST_F(DevicePageTest, FindsATitleAmongThousandsAndSortsThem) {
    unit->changeState([](Simulator::UnitState& state) { state.media.count = 5000; });
    ASSERT_TRUE(openPage());
    click(item("mediaListButton"));
    ASSERT_TRUE(waitFor([this] { return text(item("countText")) == "Titles: 5,000"; }));
    const auto first = [this](const char* role) {
        QQuickItem* row = nullptr;
        QMetaObject::invokeMethod(item("mediaList"), "itemAtIndex", Q_RETURN_ARG(QQuickItem*, row),
                                  Q_ARG(int, 0));
        return row ? row->property(role).toString().toStdString() : "no row";
    };
    click(item("durationHeading"));
    EXPECT_TRUE(waitFor([&] { return first("duration") == "01:20:00"; }));
    click(item("durationHeading"));
    EXPECT_TRUE(waitFor([&] { return first("duration") > "02:49:00"; }));

    for (const QChar letter : QStringLiteral("the golden orbit 7")) {
        QTest::keyClick(window.window(), letter.toLatin1());
    }
    ASSERT_TRUE(waitFor([this] { return item("mediaList")->property("count").toInt() < 10; }));
    EXPECT_EQ(first("title"), "The Golden Orbit 7");
    QTest::keyClick(window.window(), '(');
    ASSERT_TRUE(waitFor([this] { return item("mediaNotice") != nullptr; })) << "no title has a bracket";

    QTest::keyClick(window.window(), Qt::Key_Escape);
    EXPECT_TRUE(waitFor([this] { return item("mediaList")->property("count") == 5000; }));
    QTest::keyClick(window.window(), Qt::Key_Escape);
    ASSERT_TRUE(waitFor([this] { return item("mediaListButton") != nullptr; }));
    click(item("mediaListButton"));
    EXPECT_TRUE(waitFor([this] { return item("mediaList") && item("mediaList")->property("count") == 5000; }))
        << "the search of the last time is gone";
}

TEST_F(DevicePageTest, TheModulesAreShownAsTheFilterSays) {
    ASSERT_TRUE(openPage());
    click(item("seatHealth"));
    ASSERT_TRUE(
        waitFor([this] { return item("statusList") && item("statusList")->property("count").toInt() > 0; }));
    const auto rowsWith = [this](int filter) {
        choose(item("statusFilter"), filter);
        return item("statusList")->property("count").toInt();
    };
    const int full = rowsWith(0);
    const int outline = rowsWith(3);
    const int details = rowsWith(4);
    EXPECT_LT(outline, details);
    EXPECT_LT(details, full);
    EXPECT_FALSE(item("allWell"));
    EXPECT_LT(rowsWith(1), full) << "a healthy unit has no faults to show";
    EXPECT_TRUE(item("allWell"));
    unit->changeState([](Simulator::UnitState& state) {
        state.seats[0].condition = Simulator::SeatCondition::NoCommunication;
    });
    EXPECT_TRUE(waitFor([this] { return !item("allWell"); }));
    EXPECT_TRUE(item("statusSymbol")) << "not by colour alone";
}

} // namespace
} // namespace orvex::Test
