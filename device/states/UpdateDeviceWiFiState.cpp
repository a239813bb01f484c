#include "device/states/UpdateDeviceWiFiState.h"

#include "device/DeviceField.h"

namespace orvex {

namespace {

constexpr int firstRequestAfter = 10;          // ms
constexpr int repeatInterval = 3000;           // ms
constexpr std::uint32_t requestTimeout = 5000; // ms

} // namespace

void UpdateDeviceWiFiState::enter() {
    startTimer(firstRequestAfter);
}

void UpdateDeviceWiFiState::onTimer() {
    if (isCommunicatorIdle()) {
        requestFields(selected(), DeviceField::mask({DeviceField::WiFiPoints}), requestTimeout);
    }
}

// After a failure the manager's own tick tries again sooner.
void UpdateDeviceWiFiState::onRequestComplete(bool success) {
    if (success) {
        startTimer(repeatInterval);
    }
}

} // namespace orvex
