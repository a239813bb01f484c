#pragma once

#include "device/states/State.h"

namespace orvex {

/// Looks for a unit that waits in access-point mode: asks one after the other how it is connected.
class InitNetworkSetupState : public DeviceInfoManager::State {
public:
    InitNetworkSetupState(DeviceInfoManager& manager, State& wiFiListState)
        : State(manager)
        , m_wiFiListState(wiFiListState) {}

    void enter() override;
    void onTimer() override;
    void onRequestComplete(bool success) override;

private:
    std::shared_ptr<DeviceInfo> nextToAsk() const;
    std::shared_ptr<DeviceInfo> nextUnknown(bool online) const;

    State& m_wiFiListState;
    std::shared_ptr<DeviceInfo> m_asked;
    bool m_isAsking = false;
};

} // namespace orvex
