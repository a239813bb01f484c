#include "device/states/InitNetworkSetupState.h"

#include "device/DeviceField.h"
#include "device/DeviceInfo.h"

#include <algorithm>

namespace orvex {

namespace {

constexpr std::uint32_t requestTimeout = 3000; // ms

bool isHotspotActive(const DeviceInfo& unit) {
    const auto status = unit.networkStatus();
    return status && status->hotspotActive;
}

} // namespace

void InitNetworkSetupState::enter() {
    cancelPoll();
    m_asked.reset();
    m_isAsking = false;
    if (!selected()) {
        const auto found = std::find_if(devices().begin(), devices().end(),
                                        [](const auto& unit) { return isHotspotActive(*unit); });
        if (found != devices().end()) {
            select(*found);
        }
    }
    if (selected()) {
        switchTo(m_wiFiListState);
    }
}

void InitNetworkSetupState::onTimer() {
    if (!isCommunicatorIdle()) {
        return;
    }
    drainDiscovery(Relocation::AskedAgain);
    m_asked = nextToAsk();
    m_isAsking = m_asked != nullptr;
    requestFields(m_asked, DeviceField::mask({DeviceField::Network}), requestTimeout);
}

/// The next unit, after the one asked last, that has not told how it is connected: one that answers, else one
/// that did not answer the last time.
std::shared_ptr<DeviceInfo> InitNetworkSetupState::nextToAsk() const {
    const auto answering = nextUnknown(true);
    return answering ? answering : nextUnknown(false);
}

std::shared_ptr<DeviceInfo> InitNetworkSetupState::nextUnknown(bool online) const {
    const auto count = devices().size();
    const int next = positionOf(m_asked) + 1;
    const auto start = static_cast<std::size_t>(next);
    for (std::size_t step = 0; step < count; ++step) {
        const auto& unit = devices()[(start + step) % count];
        if (unit->isOnline() == online && !unit->isFieldValid(DeviceField::Network)) {
            return unit;
        }
    }
    return nullptr;
}

void InitNetworkSetupState::onRequestComplete(bool success) {
    if (std::exchange(m_isAsking, false) && success && isHotspotActive(*m_asked)) {
        select(m_asked);
        switchTo(m_wiFiListState);
    }
}

} // namespace orvex
