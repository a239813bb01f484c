#include "device/states/SetDevicePropertyState.h"

namespace orvex {

namespace {

constexpr int beat = 100; // ms

} // namespace

void SetDevicePropertyState::enter() {
    startTimer(beat);
}

// The manager sends them, whatever state is current.
void SetDevicePropertyState::onTimer() {
    if (areSettingsPending()) {
        startTimer(beat);
    } else {
        switchTo(*m_returnState);
    }
}

} // namespace orvex
