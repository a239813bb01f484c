#pragma once

#include "tests/device/ProgramLogCapture.h"
#include "tests/e2e/ShownWindow.h"

#include <algorithm>
#include <map>

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

    /// What the pages tell that tell one thing only.
    static const std::map<std::string, std::string>& messages() {
        static const std::map<std::string, std::string> all = {
            {"pageMain051NetworkReset", "This will remove all personalized network settings, including Wi-Fi "
                                        "networks. Device will need to "
                                        "be setup again from the home screen."},
            {"pageMain052NetworkResetWait", "Resetting..."},
            {"pageMain053NetworkResetDone", "Your Quivera device\nnetwork settings\nare reset."},
            {"pageMain060WiFiWaitList", "Quivera device is\nsearching for Wi-Fi"},
            {"pageMain064WiFiWaitConnect", "Waiting for your Quivera device to appear on selected network"},
            {"pageMain065WiFiSameNetwork", "Quivera device is already connected to selected network.\nTap "
                                           "the 'Back' button above and select "
                                           "another network."},
            {"pageMain066WiFiConnectError", "Quivera device cannot connect to selected network.\nTap the "
                                            "'Back' button above and try selecting "
                                            "the network again."},
            {"pageMain067WiFiConnectSuccess",
             "Your Quivera device\nsuccessfully connected\nto selected network."},
            {"pageSetup020WaitWiFiList", "Quivera device is\nsearching for Wi-Fi..."},
            {"pageSetup050WaitForConnect", "Waiting for\nQuivera device\nto connect to\nyour network..."},
            {"pageSetup060Error", "Quivera device cannot connect to your network.\nTap the 'Back' button "
                                  "above and try selecting the "
                                  "network again."},
            {"pageSetup060Success", "Your Quivera device\nsuccessfully connected\nto your network."},
        };
        return all;
    }

    /// Whether that page comes within the bound in ms (or is there already) and tells what it has to.
    bool arrives(const std::string& page, int bound = 30000) const {
        const bool here = QTest::qWaitFor([&] { return shownPage() == page; }, bound);
        EXPECT_EQ(shownPage(), page);
        const auto told = messages().find(page);
        if (here && readsEnglish && told != messages().end()) {
            EXPECT_EQ(message(), told->second);
        }
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
            const QPoint place = placeOf(item).center().toPoint();
            EXPECT_TRUE(window.window()->contentItem()->contains(place)) << "out of sight";
            QTest::mouseClick(window.window(), Qt::LeftButton, {}, place);
        }
    }

    void press(const QString& name) const { pressAt(awaitItem(name)); }

    /// The row in whose property that name stands, as soon as it can be pressed.
    QQuickItem* awaitRow(const QString& rows, const char* property, const QString& name) const {
        QQuickItem* row = nullptr;
        EXPECT_TRUE(QTest::qWaitFor(
            [&] {
                const auto all = ShownWindow::items(window.window()->contentItem(), rows);
                const auto found = std::find_if(all.begin(), all.end(), [&](const QQuickItem* item) {
                    return item->property(property) == name;
                });
                row = found == all.end() ? nullptr : *found;
                return row && !isSettling();
            },
            30000))
            << name.toStdString();
        return row;
    }

    QQuickItem* awaitNetwork(const QString& network) const {
        return awaitRow("networkRow", "networkName", network);
    }

    void pressNetwork(const QString& network) const { pressAt(awaitNetwork(network)); }
    void pressDevice(const QString& name) const { pressAt(awaitRow("deviceRow", "deviceName", name)); }

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

    /// Texts that are read as markup, that reach over the window's side or over their own place.
    QStringList strayTexts() const {
        QStringList stray;
        QList<QQuickItem*> open{window.window()->contentItem()};
        while (!open.isEmpty()) {
            QQuickItem* const item = open.takeFirst();
            if (!item->isVisible()) {
                continue;
            }
            open << item->childItems();
            if (!item->inherits("QQuickText")) {
                continue;
            }
            const QString text = item->property("text").toString();
            const bool isPlain = item->property("textFormat") == Qt::PlainText || !text.contains('<');
            const bool isWithin = window.window()
                                      ->contentItem()
                                      ->boundingRect()
                                      .adjusted(-1, -1e6, 1, 1e6)
                                      .contains(placeOf(item));
            if (!isPlain || !isWithin || item->property("contentWidth").toReal() > item->width() + 1) {
                stray << text;
            }
        }
        return stray;
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

    bool readsEnglish = true;
    const QString secret = QStringLiteral("correct horse 7");
    ProgramLogCapture log;
};

} // namespace orvex::Test
