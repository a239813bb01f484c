#pragma once

#include "device/states/State.h"

#include <optional>

namespace orvex {

/// Shows the page of the selected unit: reads everything it shows every 5 s, and the playback's progress in
/// between.
class UpdateSelectedDeviceState : public DeviceInfoManager::State {
public:
    using State::State;

    void enter() override;
    void onTimer() override;
    void onRequestComplete(bool success) override;

private:
    enum class Refresh { None, Full, Progress };

    Refresh dueRefresh() const;

    std::optional<TimeSource::TimePoint> m_lastFull;
    std::optional<TimeSource::TimePoint> m_last; ///< of either kind
    Refresh m_inFlight = Refresh::None;
};

} // namespace orvex
