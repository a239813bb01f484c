#include "device/states/UpdateSelectedDeviceState.h"

#include "device/DeviceField.h"

namespace orvex {

namespace {

constexpr int firstRefreshAfter = 10; // ms
constexpr std::chrono::milliseconds fullInterval{5000};
constexpr std::chrono::milliseconds progressInterval{500};
constexpr std::uint32_t refreshTimeout = 15000; // ms

} // namespace

void UpdateSelectedDeviceState::enter() {
    m_lastFull.reset();
    m_last.reset();
    m_inFlight = Refresh::None;
    startTimer(firstRefreshAfter);
}

void UpdateSelectedDeviceState::onTimer() {
    if (!selected()) {
        return;
    }
    if (!isCommunicatorIdle()) {
        tellNews(); // a unit that answers slowly, or not everything, is shown with what it has told
        return;
    }
    m_inFlight = dueRefresh();
    if (m_inFlight == Refresh::Full) {
        requestFields(selected(), DeviceField::details, refreshTimeout);
    } else if (m_inFlight == Refresh::Progress) {
        requestFields(selected(), DeviceField::mask({DeviceField::MediaProgress}), refreshTimeout);
    }
}

UpdateSelectedDeviceState::Refresh UpdateSelectedDeviceState::dueRefresh() const {
    const auto time = now();
    if (!m_lastFull || time - *m_lastFull >= fullInterval) {
        return Refresh::Full;
    }
    return !m_last || time - *m_last >= progressInterval ? Refresh::Progress : Refresh::None;
}

void UpdateSelectedDeviceState::onRequestComplete(bool) {
    const auto time = now();
    if (m_inFlight == Refresh::Full) {
        m_lastFull = time;
    }
    if (m_inFlight != Refresh::None) {
        m_last = time;
    }
    m_inFlight = Refresh::None;
}

} // namespace orvex
