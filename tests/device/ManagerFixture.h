#pragma once

#include "device/DeviceInfoManager.h"
#include "tests/device/TurnedTime.h"
#include "tests/messaging/CommunicatorFixture.h"

#include <QStringList>

namespace orvex::Test {

/// A manager whose discoverer is told of units by the test, and whose `Communicator` talks to real ones.
class ManagerFixture : public CommunicatorFixture {
public:
    ~ManagerFixture() override { manager.reset(); }

protected:
    explicit ManagerFixture(TimeSource& time = TimeSource::system())
        : CommunicatorFixture(time)
        , manager(std::make_shared<DeviceInfoManager>(time)) {
        manager->setCommunicator(communicator);
    }

    void announce(const RunningUnit& unit) { announce(unit.announced()); }
    void announce(Messaging::Discovered::Values values) {
        messenger->getDiscoverer()->announce(std::move(values), std::chrono::hours(1));
    }

    /// A unit that is announced and not there.
    static Messaging::Discovered::Values absent(const std::string& uid, const std::string& name) {
        Messaging::Discovered::Values values;
        values.uid = uid;
        values.name = name;
        values.address = "127.7.250.1";
        values.port = 1;
        values.encrypted = true;
        return values;
    }

    QStringList names() const {
        QStringList listed;
        for (int row = 0; row < manager->deviceCount(); ++row) {
            listed << manager->deviceAt(row)->name();
        }
        return listed;
    }

    bool areAllKnown() const {
        for (int row = 0; row < manager->deviceCount(); ++row) {
            if (!manager->deviceAt(row)->networkStatus()) {
                return false;
            }
        }
        return manager->deviceCount() > 0;
    }

    std::shared_ptr<DeviceInfoManager> manager;
    QSignalSpy added{manager.get(), &DeviceInfoManager::itemsAdded};
    QSignalSpy updated{manager.get(), &DeviceInfoManager::itemUpdated};
    QSignalSpy removed{manager.get(), &DeviceInfoManager::itemsRemoved};
};

/// Made before the fixture that uses it.
class OwnTime {
protected:
    TurnedTime time;
};

/// A manager whose time the test turns. The units answer over real sockets all the same.
class TimedManagerFixture : OwnTime, public ManagerFixture {
protected:
    TimedManagerFixture()
        : ManagerFixture(time) {}

    using OwnTime::time;

    /// Until the request under way is answered. Time stands still meanwhile.
    void settle() {
        EXPECT_TRUE(eventually([&] { return communicator->isIdle(); }));
        EXPECT_LE(time.pending(*manager), 2) << "one timer, and that of a content update";
    }

    void pass(int milliseconds) { time.pass(TurnedTime::Span(milliseconds)); }

    /// Turns the time from timer to timer until the condition holds, at most for an hour.
    template <class Condition>
    bool inTime(Condition condition) {
        const auto end = time.now() + std::chrono::hours(1);
        settle();
        while (!condition() && time.now() < end) {
            time.pass(time.untilNext());
            settle();
        }
        return condition();
    }

    /// Lets time flow, ten times as fast as it does, until the condition holds. For units that do not answer,
    /// and for what they do in their own time.
    template <class Condition>
    bool comes(Condition condition) {
        QElapsedTimer waited;
        waited.start();
        while (!condition() && waited.elapsed() < patience) {
            QTest::qWait(5);
            pass(50);
        }
        return condition();
    }

    void list(const RunningUnit& unit) {
        announce(unit);
        const int rows = manager->deviceCount();
        EXPECT_TRUE(comes([&] { return manager->deviceCount() > rows; }));
    }

    /// Lists a unit and opens its page.
    void open(const RunningUnit& unit) {
        list(unit);
        EXPECT_TRUE(comes([&] { return areAllKnown(); }));
        for (int row = 0; row < manager->deviceCount(); ++row) {
            if (manager->deviceAt(row)->uid().toStdString() == unit.uid()) {
                manager->selectDevice(row);
            }
        }
        manager->showingDeviceInfo();
        EXPECT_TRUE(comes([&] {
            return (DeviceField::Set(DeviceField::details) & ~manager->selectedDevice()->validFields())
                .none();
        }));
    }

    /// How long it takes until the next request starts, in ms; it is answered then.
    int untilNextRequest() {
        const auto start = time.now();
        const int before = ended.size(); // what expects no answer ends as it starts
        while (communicator->isIdle() && ended.size() == before &&
               time.now() - start < std::chrono::hours(1)) {
            time.pass(time.untilNext());
        }
        const auto taken = std::chrono::duration_cast<TurnedTime::Span>(time.now() - start);
        settle();
        return static_cast<int>(taken.count());
    }
};

} // namespace orvex::Test
