#pragma once

#include "device/states/State.h"

namespace orvex {

/// Shows the Wi-Fi networks that the selected unit sees.
class UpdateDeviceWiFiState : public DeviceInfoManager::State {
public:
    using State::State;

    void enter() override;
    void onTimer() override;
    void onRequestComplete(bool success) override;
};

} // namespace orvex
