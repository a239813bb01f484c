#pragma once

#include "device/states/State.h"

namespace orvex {

/// Waits until the selected unit is seen on the network it was told to join.
class MonitorDeviceWiFiState : public DeviceInfoManager::State {
public:
    MonitorDeviceWiFiState(DeviceInfoManager& manager, State& idleState)
        : State(manager)
        , m_idleState(idleState) {}

    /// The network that the unit was on when it was told to join another.
    void setFormerNetwork(QString name) { m_formerNetwork = std::move(name); }

    void onTimer() override;
    void onRequestComplete(bool success) override;

private:
    State& m_idleState;
    QString m_formerNetwork;
};

} // namespace orvex
