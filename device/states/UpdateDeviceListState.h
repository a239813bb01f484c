#pragma once

#include "device/states/State.h"

namespace orvex {

/// Shows the list of units: takes in what discovery announces, and polls the units in turn, so that one round
/// over the list takes about 1.8 s. Two failed polls one after the other end a unit's row.
class UpdateDeviceListState : public DeviceInfoManager::State {
public:
    using State::State;

    void enter() override;
    void onTimer() override;
    void onRequestComplete(bool success) override;

private:
    std::shared_ptr<DeviceInfo> nextToPoll() const;

    std::shared_ptr<DeviceInfo> m_lastPolled;
    bool m_pollInFlight = false;
    bool m_wasKnown =
        false; ///< the unit polled last had answered before, so its first reading is not worth a line
};

} // namespace orvex
