#pragma once

#include "device/DeviceUpdateRequest.h"

#include <deque>
#include <memory>

namespace orvex {

class DeviceInfo;

/// The settings that wait to be sent: of each kind (of seats: for each seat) and unit the newest, in the
/// order in which they were asked for. One that could not be sent is tried once more. GUI thread.
class PendingSettings {
public:
    struct Setting {
        std::shared_ptr<DeviceInfo> unit;
        std::shared_ptr<DeviceUpdateRequest> request;
        bool isSecondTry = false;
    };

    void add(std::shared_ptr<DeviceInfo> unit, std::shared_ptr<DeviceUpdateRequest> request);

    bool isEmpty() const { return m_waiting.empty(); }
    bool isInFlight() const { return m_inFlight.request != nullptr; }

    /// Whether a setting of that seat waits or is in flight: what the unit told of it before may be outdated.
    bool holdsSeat(const std::shared_ptr<DeviceInfo>& unit, int index) const;

    /// Drops what waits for a unit that is gone, and tries nothing for it again.
    void forget(const std::shared_ptr<DeviceInfo>& unit);

    /// The next one to send, which is in flight from now on. Not while empty or in flight.
    const Setting& take();

    /// The request in flight has ended. A setting that the unit may not have heard waits again, unless it has
    /// failed twice or a newer one of its kind waits.
    void finish(bool heard);

private:
    static bool supersedes(const Setting& newer, const Setting& older);

    std::deque<Setting> m_waiting;
    Setting m_inFlight;
};

} // namespace orvex
