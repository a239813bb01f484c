#include "tests/e2e/NavigationFixture.h"

#include <QRegularExpression>

namespace orvex::Test {
namespace {

using NamesTest = NavigationFixture;

TEST_F(NamesTest, ShowsAnyNameAsTextInItsPlace) {
    const Unit unit = openOnlyUnit("Sofa");
    const QString names[] = {
        QStringLiteral("<img src='file:///x'><h1>Sofa</h1> &amp; %1 %2"),
        QStringLiteral("\u202E\u05E1\u05E4\u05D4 \u0623\u0631\u064A\u0643\u0629\nabc\u2028\U0001F6CB\uFE0F"),
        QString(128, QLatin1Char('W'))};
    for (const QString& name : names) {
        const QString network = name + name.repeated(300 / name.size());
        const QString line = QString(name).replace(QRegularExpression("[\n\u2028]"), " ");
        const bool turns = name.contains(QChar(0x202E));
        const QString inList = turns ? QChar(0x2068) + name + QChar(0x2069) : name;
        SCOPED_TRACE(name.toStdString());
        unit->changeState(
            [text = name.toStdString(), ssid = network.toStdString()](Simulator::UnitState& state) {
                state.name = text;
                state.wifi.seen = {{ssid, ""}};
                state.network.ssid = ssid;
            });
        const auto isTold = [&] {
            return QTest::qWaitFor(
                [&] {
                    QQuickItem* const title = window.item("titleText");
                    return title && title->property("text") == line;
                },
                30000);
        };
        press("rightButton");
        ASSERT_TRUE(arrives("pageMain070DeviceAbout"));
        ASSERT_TRUE(isTold());
        EXPECT_EQ(strayTexts(), QStringList());
        press("rightButton");
        ASSERT_TRUE(arrives("pageMain071DeviceRename"));
        EXPECT_EQ(strayTexts(), QStringList());
        key(Qt::Key_Return);
        ASSERT_TRUE(arrives("pageMain070DeviceAbout"));
        press("backButton");
        ASSERT_TRUE(awaitItem("infoIcon"));
        EXPECT_EQ(strayTexts(), QStringList());
        press("infoIcon");
        press("setUpButton");
        ASSERT_TRUE(awaitNetwork(network));
        EXPECT_EQ(strayTexts(), QStringList());
        press("backButton");
        press("backButton");
        press("backButton");
        ASSERT_TRUE(shows({inList + " (Local) | KELM"}));
        EXPECT_EQ(strayTexts(), QStringList());
        press("deviceRow");
        ASSERT_TRUE(arrives("pageMain040DeviceInfo"));
    }
    EXPECT_EQ(unit->counters().requestsOf("SetKelmName"), 0U) << "by a name that was only looked at";
}

} // namespace
} // namespace orvex::Test
