#pragma once

#include "simulator/StateSettings.h"
#include "tests/e2e/NavigationFixture.h"
#include "tools/screenshots/Picture.h"

#include <QDir>
#include <QElapsedTimer>
#include <QImage>

#include <algorithm>
#include <chrono>
#include <functional>
#include <memory>
#include <string>

namespace orvex::Screenshots {

/// A walk through the window that takes pictures. The environment says how: `SCREENSHOT_FOLDER` where to,
/// `SCREENSHOT_WIDTH` and `SCREENSHOT_HEIGHT` the window's size (750 × 900 unless told).
class TourFixture : public Test::NavigationFixture {
protected:
    void SetUp() override {
        NavigationFixture::SetUp();
        readsEnglish = false; // but whatever the pictures are made in
        window.window()->resize(sizeOf("SCREENSHOT_WIDTH", 750), sizeOf("SCREENSHOT_HEIGHT", 900));
    }

    /// A unit as it is after `settings`, which are those of simulator/StateSettings.h.
    Unit makeUnit(const std::string& product, const std::string& name, const std::string& settings = "{}",
                  bool accessPoint = false) {
        // Every unit has an address of its own: the program holds an address to the first key it saw there.
        static std::size_t count = 0;
        Simulator::UnitOptions options;
        options.product = product;
        options.name = name;
        options.number = ++count;
        options.address = "127.0.0." + std::to_string(count + 1);
        options.seats = product == "hub" ? 4 : 2;
        options.media = 5000;
        options.state = settings;
        options.accessPoint = accessPoint;
        auto unit = std::make_unique<Simulator::SimulatedUnit>(host, options);
        unit->start();
        return unit;
    }

    /// While it runs; clients are told.
    static void set(const Unit& unit, const char* settings) {
        unit->changeState([settings](Simulator::UnitState& state) {
            Simulator::applyAndTell(state, settings, "settings of a screenshot");
        });
    }

    /// Takes its time to tell the Wi-Fi networks around.
    static void searchSlowly(const Unit& unit) {
        Simulator::Faults faults;
        faults.delay = std::chrono::milliseconds(2500);
        faults.types = {"GetWifiList", "SetWifiSetting"}; // long enough for a picture of each wait
        unit->setFaults(faults);
    }

    void pressUnit(const QString& name) const {
        for (QQuickItem* row : window.items(window.window()->contentItem(), "deviceRow")) {
            if (row->property("deviceName") == name) {
                pressAt(row);
            }
        }
    }

    /// A lone unit opens by itself.
    bool opensByItself() const {
        return arrives("pageMain040DeviceInfo") && awaitItem(QStringLiteral("modeChoice"));
    }

    bool appears(const QString& name) const {
        return await([&] { return window.item(name) != nullptr; });
    }

    /// Types the pass phrase of the network that is asked for.
    void enterPassword(const QString& password) const {
        ASSERT_TRUE(awaitItem(QStringLiteral("nextButton")));
        type(password);
    }

    bool listed(int units) const {
        return await([&] { return window.rows().size() == units; });
    }

    static bool await(const std::function<bool()>& condition) {
        const bool came = QTest::qWaitFor(condition, 30000);
        EXPECT_TRUE(came);
        return came;
    }

    /// Brings that item to the top of the page, as far as the page scrolls.
    void scrollTo(const QString& name) const {
        QQuickItem* const item = awaitItem(name);
        QQuickItem* const area = window.item(QStringLiteral("scrollArea"));
        ASSERT_TRUE(item && area);
        auto* const content = area->property("contentItem").value<QQuickItem*>();
        const double longest = area->property("contentHeight").toDouble() +
                               area->property("bottomMargin").toDouble() - area->height();
        constexpr double margin = 16;
        area->setProperty("contentY",
                          std::clamp(item->mapToItem(content, {}).y() - margin, 0.0, std::max(0.0, longest)));
    }

    /// As soon as nothing moves any more. What does not rest by then is taken as it is.
    void shoot(const char* name, int longest = 1000) const {
        QElapsedTimer taken;
        taken.start();
        QImage picture;
        QImage before;
        do {
            before = picture;
            QTest::qWait(100); // several frames
            picture = window.window()->grabWindow();
        } while (picture != before && taken.elapsed() < longest);
        const QDir folder(qEnvironmentVariable("SCREENSHOT_FOLDER", QStringLiteral(".")));
        ASSERT_TRUE(
            savePicture(picture, folder.filePath(QString::fromLatin1(name) + QStringLiteral(".png"))));
    }

    /// Before what is waited for is there.
    void shootWait(const char* name) const { shoot(name, 250); }

private:
    static int sizeOf(const char* variable, int usual) {
        return qEnvironmentVariableIsSet(variable) ? qEnvironmentVariableIntValue(variable) : usual;
    }
};

} // namespace orvex::Screenshots
