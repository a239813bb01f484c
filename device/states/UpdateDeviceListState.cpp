#include "device/states/UpdateDeviceListState.h"

#include "device/DeviceField.h"
#include "device/DeviceInfo.h"
#include "device/ProgramLog.h"

namespace orvex {

namespace {

/// What a row shows.
constexpr std::uint32_t listedFields = DeviceField::mask(
    {DeviceField::Name, DeviceField::LibraryUpdateTime, DeviceField::ContentUpdate, DeviceField::Network});

constexpr std::uint32_t pollTimeout = 15000; // ms
constexpr int roundTime = 1800;              // ms for one round over the list, whatever its length
constexpr int failuresToDrop = 2;

bool isFullyKnown(const DeviceInfo& unit) {
    return (DeviceField::Set(listedFields) & ~unit.validFields()).none();
}

} // namespace

void UpdateDeviceListState::enter() {
    // The cancellation completes inside its call; that completion is no answer to a poll of this state.
    m_pollInFlight = false;
    cancelPoll();
    if (selected() && !selected()->isOnline()) {
        remove(selected());
    }
    select(nullptr);
    restartDiscovery();
    m_lastPolled.reset();
}

void UpdateDeviceListState::onTimer() {
    drainDiscovery();
    if (devices().empty() || !isCommunicatorIdle()) {
        return;
    }
    m_lastPolled = nextToPoll();
    m_pollInFlight = true;
    m_wasKnown = isFullyKnown(*m_lastPolled);
    requestFields(m_lastPolled, listedFields, pollTimeout);
}

/// Of a list that is not empty: the first unit after the one polled last of which something is still unknown,
/// else simply the next one.
std::shared_ptr<DeviceInfo> UpdateDeviceListState::nextToPoll() const {
    const auto count = devices().size();
    const int last = positionOf(m_lastPolled);
    const auto start = (last < 0 ? count - 1 : static_cast<std::size_t>(last)) + 1;
    for (std::size_t step = 0; step < count; ++step) {
        const auto& unit = devices()[(start + step) % count];
        if (!isFullyKnown(*unit)) {
            return unit;
        }
    }
    return devices()[start % count];
}

void UpdateDeviceListState::onRequestComplete(bool success) {
    if (!m_pollInFlight) {
        return;
    }
    m_pollInFlight = false;
    const int index = positionOf(m_lastPolled);
    if (index < 0) {
        return;
    }
    if (success) {
        if (!m_wasKnown) {
            const auto network = m_lastPolled->networkStatus();
            programLog()->info("DeviceInfoManager: {} read, network {}", m_lastPolled->name().toStdString(),
                               (network ? *network : NetworkStatus{}).toString().toStdString());
        }
        reportUpdated(index);
    } else if (!isCancelling()) {
        m_lastPolled->incrementFailureCount();
        if (m_lastPolled->failureCount() >= failuresToDrop) {
            remove(m_lastPolled);
            m_lastPolled.reset();
        }
    }
    if (!devices().empty() && !isTimerRunning()) {
        startTimer(roundTime / static_cast<int>(devices().size()));
    }
}

} // namespace orvex
