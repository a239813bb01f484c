#include "tests/e2e/NavigationFixture.h"

#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>

namespace orvex::Test {
namespace {

/// Companion programs of one's own, recorded where the program looks for them.
class CompanionButtonsTest : public NavigationFixture {
protected:
    void SetUp() override {
        for (const char* name : {"panel", "configurator", "center"}) {
            ASSERT_TRUE(QFile::copy(QStringLiteral(SMALL_PROGRAM), m_folder.filePath(name)));
        }
        QFile settings(m_folder.filePath("Orvex.conf"));
        ASSERT_TRUE(settings.open(QIODevice::WriteOnly));
        settings.write(QStringLiteral("[MotionService]\nPanel=%1/panel\n[InputModeControl]\n"
                                      "AppPerMode\\2\\Path=%1/center\n"
                                      "AppPerMode\\3\\Path=%1/configurator\n")
                           .arg(m_folder.path())
                           .toUtf8());
        settings.close();
        qputenv("XDG_CONFIG_DIRS", m_folder.path().toLocal8Bit());
        NavigationFixture::SetUp();
    }
    void TearDown() override {
        NavigationFixture::TearDown();
        qputenv("XDG_CONFIG_DIRS", m_earlier);
    }

    void pressIn(const QString& place) const {
        if (QQuickItem* const card = awaitItem(place)) {
            QQuickItem* const button = card->findChild<QQuickItem*>("companionButton");
            button->forceActiveFocus(Qt::TabFocusReason);
            key(Qt::Key_Space);
        }
    }
    bool starts(const QString& program) const {
        return QTest::qWaitFor([&] { return QFile::exists(m_folder.filePath(program + ".started")); }, 10000);
    }
    /// The unit takes that mode by itself, and its part of the page is shown.
    bool showsMode(const Unit& unit, int mode, const QString& card) const {
        unit->changeState([mode](Simulator::UnitState& state) { state.experience.selected = mode; });
        return awaitItem(card) != nullptr;
    }

    QTemporaryDir m_folder;
    const QByteArray m_earlier = qgetenv("XDG_CONFIG_DIRS");
};

TEST_F(CompanionButtonsTest, EachStartsItsProgramOrTellsThatItDidNotStart) {
    const Unit unit = openOnlyUnit("Sofa");
    pressIn("controlPanelApp");
    EXPECT_TRUE(starts("panel"));
    ASSERT_TRUE(showsMode(unit, 3, "adaptiveGamingCard"));
    pressIn("adaptiveGamingApp");
    EXPECT_TRUE(starts("configurator"));
    ASSERT_TRUE(showsMode(unit, 1, "codedGamingCard"));
    QFile::setPermissions(m_folder.filePath("center"), QFile::ReadOwner);
    pressIn("codedGamingApp");
    EXPECT_TRUE(awaitItem("companionFailed"));
    QFile::setPermissions(m_folder.filePath("center"), QFile::ReadOwner | QFile::ExeOwner);
    pressIn("codedGamingApp");
    EXPECT_TRUE(starts("center"));
    EXPECT_FALSE(window.item("companionFailed"));
    EXPECT_EQ(shownPage(), "pageMain040DeviceInfo");
}

} // namespace
} // namespace orvex::Test
