#include "device/states/MonitorDeviceWiFiState.h"

#include "device/DeviceField.h"
#include "device/DeviceInfo.h"

namespace orvex {

namespace {

constexpr std::uint32_t requestTimeout = 5000; // ms

} // namespace

void MonitorDeviceWiFiState::onTimer() {
    if (isCommunicatorIdle()) {
        drainDiscovery(Relocation::Followed);
        requestFields(selected(), DeviceField::mask({DeviceField::Network}), requestTimeout);
    }
}

void MonitorDeviceWiFiState::onRequestComplete(bool success) {
    if (!success || !selected()) {
        return;
    }
    const auto status = selected()->networkStatus();
    if (status && status->valid && !status->hotspotActive && status->wifiOnline &&
        status->ssid != m_formerNetwork) {
        selected()->setWiFiSetupResult(true);
        switchTo(m_idleState);
    }
}

} // namespace orvex
