#include "device/states/UpdateSelectedDeviceFieldsState.h"

namespace orvex {

namespace {

constexpr std::uint32_t requestTimeout = 5000; // ms

} // namespace

void UpdateSelectedDeviceFieldsState::configure(std::uint32_t fields, int firstInterval, int repeatInterval) {
    m_fields = fields;
    m_firstInterval = firstInterval;
    m_repeatInterval = repeatInterval;
}

void UpdateSelectedDeviceFieldsState::enter() {
    cancelPoll();
    startTimer(m_firstInterval);
}

void UpdateSelectedDeviceFieldsState::onTimer() {
    if (isCommunicatorIdle()) {
        requestFields(selected(), m_fields, requestTimeout);
    }
}

void UpdateSelectedDeviceFieldsState::onRequestComplete(bool) {
    startTimer(m_repeatInterval);
}

} // namespace orvex
