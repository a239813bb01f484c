#pragma once

#include "device/states/State.h"

namespace orvex {

/// Waits until the queued settings are sent, then goes back to what the page polls.
class SetDevicePropertyState : public DeviceInfoManager::State {
public:
    using State::State;

    void returnTo(State& state) { m_returnState = &state; }

    void enter() override;
    void onTimer() override;

private:
    State* m_returnState = nullptr;
};

} // namespace orvex
