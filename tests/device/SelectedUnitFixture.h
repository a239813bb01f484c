#pragma once

#include "device/DeviceInfo.h"
#include "tests/device/ManagerFixture.h"

namespace orvex::Test {

/// Two listed units that are not there: what they have said is what the test puts into their records.
class SelectedUnitFixture : public TimedManagerFixture {
protected:
    SelectedUnitFixture() {
        announce(absent("1", "A"));
        announce(absent("2", "B"));
        pass(800);
        EXPECT_EQ(manager->deviceCount(), 2);
        manager->goIdle();
        communicator->cancelRequest();
        first = manager->deviceAt(0);
        second = manager->deviceAt(1);
    }

    /// What the manager does at the end of a request whose answers changed the unit.
    void refresh(const std::function<void(DeviceInfo&)>& answer) {
        const auto unit = manager->selectedDevice();
        unit->clearChangedFields();
        answer(*unit);
        emit manager->selectedDeviceUpdated();
    }

    std::shared_ptr<DeviceInfo> first;
    std::shared_ptr<DeviceInfo> second;
};

} // namespace orvex::Test
