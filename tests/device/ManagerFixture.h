#pragma once

#include "device/DeviceInfoManager.h"
#include "tests/messaging/CommunicatorFixture.h"

#include <QStringList>

namespace orvex::Test {

/// A manager whose discoverer is told of units by the test, and whose `Communicator` talks to real ones.
class ManagerFixture : public CommunicatorFixture {
public:
    ~ManagerFixture() override { manager.reset(); }

protected:
    ManagerFixture() { manager->setCommunicator(communicator); }

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

    std::shared_ptr<DeviceInfoManager> manager = std::make_shared<DeviceInfoManager>();
    QSignalSpy added{manager.get(), &DeviceInfoManager::itemsAdded};
    QSignalSpy updated{manager.get(), &DeviceInfoManager::itemUpdated};
    QSignalSpy removed{manager.get(), &DeviceInfoManager::itemsRemoved};
};

} // namespace orvex::Test
