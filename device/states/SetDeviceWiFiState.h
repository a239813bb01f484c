#pragma once

#include "device/states/State.h"

namespace orvex {

/// Waits for the selected unit's word on the network it was told to join.
class SetDeviceWiFiState : public DeviceInfoManager::State {
public:
    SetDeviceWiFiState(DeviceInfoManager& manager, State& monitorState, State& idleState)
        : State(manager)
        , m_monitorState(monitorState)
        , m_idleState(idleState) {}

    void onRequestComplete(bool success) override;

private:
    State& m_monitorState;
    State& m_idleState;
};

} // namespace orvex
