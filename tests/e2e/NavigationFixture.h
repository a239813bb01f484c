#pragma once

#include "tests/device/ProgramLogCapture.h"
#include "tests/e2e/ShownWindow.h"

namespace orvex::Test {

/// A person at the window: looks for what is shown, presses it, types, and sees which page comes.
class NavigationFixture : public WindowFixture {
protected:
    void SetUp() override {
        WindowFixture::SetUp();
        spdlog::get("orvex.QuiveraApp")->set_level(spdlog::level::trace);
        window.window()->resize(800, 1600);
        window.window()->requestActivate();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.window()));
        // The splash.
        QTest::mouseClick(window.window(), Qt::LeftButton, {}, QPoint(400, 5));
        ASSERT_TRUE(QTest::qWaitFor([this] { return stack("WindowMain") != nullptr; }));
    }

    QQuickItem* stack(const QString& windowName) const {
        QList<QQuickItem*> open{window.window()->contentItem()};
        while (!open.isEmpty()) {
            QQuickItem* const item = open.takeFirst();
            if (item->property("windowName") == windowName) {
                return item;
            }
            open << item->childItems();
        }
        return nullptr;
    }

    QQuickItem* shownStack() const {
        QQuickItem* const setup = stack("WindowSetup");
        return setup && setup->isVisible() ? setup : stack("WindowMain");
    }

    std::string shownPage() const { return shownStack()->property("currentId").toString().toStdString(); }

    /// Whether that page comes within the bound in ms (or is there already).
    bool arrives(const std::string& page, int bound = 30000) const {
        const bool here = QTest::qWaitFor([&] { return shownPage() == page; }, bound);
        EXPECT_EQ(shownPage(), page);
        return here;
    }

    /// Whether a click may still be taken for the rest of a double click.
    bool isSettling() const {
        return window.window()->findChild<QObject*>("pressGuard")->property("isSettling").toBool();
    }

    /// The visible item of that name, as soon as it can be pressed; none after 30 s.
    QQuickItem* awaitItem(const QString& name) const {
        QQuickItem* found = nullptr;
        const bool here = QTest::qWaitFor(
            [&] {
                found = window.item(name);
                return found && found->isEnabled() && found->width() > 0 && !isSettling();
            },
            30000);
        EXPECT_TRUE(here) << name.toStdString() << " on " << shownPage();
        return here ? found : nullptr;
    }

    static QRectF placeOf(QQuickItem* item) {
        return item->mapRectToScene(QRectF(0, 0, item->width(), item->height()));
    }

    void pressAt(QQuickItem* item) const {
        if (item) {
            QTest::mouseClick(window.window(), Qt::LeftButton, {}, placeOf(item).center().toPoint());
        }
    }

    void press(const QString& name) const { pressAt(awaitItem(name)); }

    /// The row of the Wi-Fi network of that name, as soon as it can be pressed.
    QQuickItem* awaitNetwork(const QString& network) const {
        QQuickItem* row = nullptr;
        EXPECT_TRUE(QTest::qWaitFor(
            [&] {
                for (QQuickItem* item : ShownWindow::items(window.window()->contentItem(), "networkRow")) {
                    if (item->property("networkName") == network) {
                        row = item;
                    }
                }
                return row && !isSettling();
            },
            30000))
            << network.toStdString();
        return row;
    }

    void pressNetwork(const QString& network) const { pressAt(awaitNetwork(network)); }

    void key(int code) const { QTest::keyClick(window.window(), static_cast<Qt::Key>(code)); }
    void type(const QString& text) const {
        for (const QChar letter : text) {
            QTest::sendKeyEvent(QTest::Click, window.window(), Qt::Key_unknown, QString(letter),
                                Qt::NoModifier);
        }
    }

    /// What the page that is shown tells.
    std::string message() const {
        QQuickItem* const text = window.item("messageText");
        return text ? text->property("text").toString().toStdString() : std::string();
    }

    /// Each step since the last call: the page ids of the console lines, without "page".
    std::string steps() const {
        QStringList pages;
        for (const QString& line : WarningCapture::takeNotes()) {
            if (line.startsWith("WindowMain: ") || line.startsWith("WindowSetup: ")) {
                pages << line.section(QStringLiteral(": page"), 1);
            }
            EXPECT_FALSE(line.contains(secret));
        }
        return pages.join(QLatin1Char(' ')).toStdString();
    }

    /// Reached by itself: the only unit around is opened.
    Unit openOnlyUnit(const std::string& name) {
        Unit unit = makeUnit("kelm", name);
        EXPECT_TRUE(arrives("pageMain040DeviceInfo"));
        EXPECT_EQ(steps(), "Main040DeviceInfo");
        return unit;
    }

    void TearDown() override {
        EXPECT_EQ(log.count(secret.toStdString()), 0U) << "a pass phrase in the log";
        WindowFixture::TearDown();
    }

    const QString secret = QStringLiteral("correct horse 7");
    ProgramLogCapture log;
};

} // namespace orvex::Test
