#pragma once

#include "app/Facade.h"
#include "device/DeviceInfoManager.h"
#include "qml/UserInterface.h"
#include "simulator/SimulatedUnit.h"
#include "simulator/SimulatorHost.h"

#include <Velto/ComponentConfigurator.h>

#include <QQmlApplicationEngine>
#include <QQmlContext>
#include <QQuickItem>
#include <QQuickWindow>
#include <QStringList>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>
#include <mutex>
#include <utility>

namespace orvex::Test {

/// Keeps what Qt and the documents utter while it lives.
class WarningCapture {
public:
    WarningCapture() {
        all().clear();
        notes().clear();
        qInstallMessageHandler(&take);
    }
    ~WarningCapture() { qInstallMessageHandler(nullptr); }
    WarningCapture(const WarningCapture&) = delete;
    WarningCapture& operator=(const WarningCapture&) = delete;

    static QStringList warnings() {
        const std::lock_guard lock(mutex());
        return all();
    }
    /// What was no warning, since the last call.
    static QStringList takeNotes() {
        const std::lock_guard lock(mutex());
        return std::exchange(notes(), {});
    }

private:
    static void take(QtMsgType type, const QMessageLogContext&, const QString& text) {
        const std::lock_guard lock(mutex());
        (type == QtDebugMsg || type == QtInfoMsg ? notes() : all()) << text;
    }
    static std::mutex& mutex() {
        static std::mutex m;
        return m;
    }
    static QStringList& all() {
        static QStringList list;
        return list;
    }
    static QStringList& notes() {
        static QStringList list;
        return list;
    }
};

/// The program's window over the program's core, found and torn down in the program's order.
class ShownWindow {
public:
    ShownWindow() {
        VeltoExportQAutoDiscoveryComponent();
        VeltoExportZCommComponent();
        prepareUserInterface();
        m_facade = std::make_shared<Facade>(std::string());
        m_components.Init(false);
        const std::pair<const char*, QObject*> published[] = {
            {"api", m_facade.get()},
            {"deviceManager", m_facade->deviceManager()},
            {"deviceListModel", m_facade->deviceListModel()},
            {"currDevice", m_facade->deviceProxy()},
            {"seatListModel", m_facade->seatListModel()},
            {"mediaListModel", m_facade->mediaListModel()},
            {"detailedStatusModel", m_facade->detailedStatusModel()},
        };
        for (const auto& [name, object] : published) {
            m_engine->rootContext()->setContextProperty(QString::fromLatin1(name), object);
        }
        m_engine->load(QUrl(QStringLiteral("qrc:/qml/main.qml")));
        m_components.Resume();
        m_facade->start();
    }

    ~ShownWindow() { close(); }

    void close() {
        if (!m_facade) {
            return;
        }
        m_engine.reset();
        m_facade.reset();
        m_components.Suspend();
        m_components.Shutdown();
    }

    /// What the documents know by that name, as "currDevice".
    QObject* published(const char* name) const {
        return m_engine->rootContext()->contextProperty(QString::fromLatin1(name)).value<QObject*>();
    }

    DeviceInfoManager* manager() const { return qobject_cast<DeviceInfoManager*>(m_facade->deviceManager()); }

    QQuickWindow* window() const {
        return m_engine->rootObjects().isEmpty()
                   ? nullptr
                   : qobject_cast<QQuickWindow*>(m_engine->rootObjects().first());
    }

    /// The visible item of that name.
    QQuickItem* item(const QString& name) const {
        const auto found = items(window()->contentItem(), name);
        return found.isEmpty() ? nullptr : found.first();
    }

    /// Each row as a person reads it, from the top to the bottom: "name | product | what needs doing".
    QStringList rows() const {
        QMap<qreal, QString> byPlace;
        for (QQuickItem* row : items(window()->contentItem(), QStringLiteral("deviceRow"))) {
            QString text =
                row->property("displayName").toString() + " | " + row->property("productName").toString();
            for (QQuickItem* status : items(row, QStringLiteral("statusText"))) {
                text += " | " + status->property("text").toString();
            }
            byPlace.insert(row->y(), text);
        }
        return byPlace.values();
    }

    /// The visible items of that name.
    static QList<QQuickItem*> items(QQuickItem* parent, const QString& name) {
        QList<QQuickItem*> found;
        for (QQuickItem* child : parent->childItems()) {
            if (!child->isVisible()) {
                continue;
            }
            if (child->objectName() == name) {
                found << child;
            }
            found << items(child, name);
        }
        return found;
    }

private:
    Velto::ComponentConfigurator m_components;
    std::shared_ptr<Facade> m_facade;
    std::unique_ptr<QQmlApplicationEngine> m_engine = std::make_unique<QQmlApplicationEngine>();
};

/// The window and the units around it. Units are heard on the port that the program asks on.
class WindowFixture : public testing::Test {
protected:
    using Unit = std::unique_ptr<Simulator::SimulatedUnit>;

    void SetUp() override { ASSERT_EQ(host.discoveryProblem(), ""); }
    void TearDown() override {
        window.close();
        EXPECT_EQ(WarningCapture::warnings().join(QLatin1Char('\n')).toStdString(), "");
    }

    Unit makeUnit(const std::string& product, const std::string& name, bool accessPoint = false) {
        static int count = 0;
        Simulator::UnitOptions options;
        options.product = product;
        options.name = name;
        options.accessPoint = accessPoint;
        options.number = static_cast<std::size_t>(++count);
        auto unit = std::make_unique<Simulator::SimulatedUnit>(host, options);
        unit->start();
        return unit;
    }

    bool shows(const QStringList& rows, int bound = 30000) const {
        const bool shown = QTest::qWaitFor([&] { return window.rows() == rows; }, bound);
        EXPECT_EQ(window.rows().join(QLatin1Char('\n')).toStdString(),
                  rows.join(QLatin1Char('\n')).toStdString());
        return shown;
    }

    WarningCapture warnings;
    Simulator::SimulatorHost host;
    ShownWindow window;
};

} // namespace orvex::Test
