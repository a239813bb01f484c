#include "device/states/SetDeviceWiFiState.h"

#include "device/DeviceField.h"
#include "device/DeviceInfo.h"

namespace orvex {

// A unit that leaves its access point for the new network answers nothing more: no answer is no refusal.
void SetDeviceWiFiState::onRequestComplete(bool success) {
    if (!selected()) {
        return;
    }
    DeviceInfo& unit = *selected();
    if (success && unit.isFieldValid(DeviceField::WiFiSetupResult) && !unit.wiFiSetupResult()) {
        unit.setFieldChanged(DeviceField::WiFiSetupResult, true);
        switchTo(m_idleState);
        return;
    }
    unit.setFieldValid(DeviceField::WiFiSetupResult, false);
    switchTo(m_monitorState);
}

} // namespace orvex
