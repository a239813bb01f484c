#include "device/PendingSettings.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace orvex {

namespace {

/// None for a setting that concerns the whole unit.
std::optional<int> seatOf(const DeviceUpdateRequest& request) {
    if (request.requestType != DeviceUpdateRequest::SetSeatSetting) {
        return std::nullopt;
    }
    return static_cast<const SetSeatSettingRequest&>(request).seat->index;
}

} // namespace

void PendingSettings::add(std::shared_ptr<DeviceInfo> unit, std::shared_ptr<DeviceUpdateRequest> request) {
    Setting setting{std::move(unit), std::move(request)};
    const auto older = std::find_if(m_waiting.begin(), m_waiting.end(),
                                    [&](const Setting& waiting) { return supersedes(setting, waiting); });
    if (older != m_waiting.end()) {
        *older = std::move(setting);
        return;
    }
    m_waiting.push_back(std::move(setting));
}

void PendingSettings::forget(const std::shared_ptr<DeviceInfo>& unit) {
    const auto concerns = [&unit](const Setting& setting) { return setting.unit == unit; };
    m_waiting.erase(std::remove_if(m_waiting.begin(), m_waiting.end(), concerns), m_waiting.end());
    m_inFlight.isSecondTry = m_inFlight.isSecondTry || concerns(m_inFlight);
}

const PendingSettings::Setting& PendingSettings::take() {
    m_inFlight = std::move(m_waiting.front());
    m_waiting.pop_front();
    return m_inFlight;
}

void PendingSettings::finish(bool heard) {
    Setting ended = std::exchange(m_inFlight, {});
    // A page that is opened asks for a content update by itself: the next one will.
    if (!ended.request || heard || ended.isSecondTry ||
        ended.request->requestType == DeviceUpdateRequest::SetContentUpdate) {
        return;
    }
    const bool isOutdated = std::any_of(m_waiting.begin(), m_waiting.end(),
                                        [&](const Setting& waiting) { return supersedes(waiting, ended); });
    if (!isOutdated) {
        ended.isSecondTry = true;
        m_waiting.push_front(std::move(ended));
    }
}

bool PendingSettings::holdsSeat(const std::shared_ptr<DeviceInfo>& unit, int index) const {
    const auto concerns = [&](const Setting& setting) {
        return setting.request && setting.unit == unit && seatOf(*setting.request) == index;
    };
    return concerns(m_inFlight) || std::any_of(m_waiting.begin(), m_waiting.end(), concerns);
}

bool PendingSettings::supersedes(const Setting& newer, const Setting& older) {
    if (newer.unit != older.unit || newer.request->requestType != older.request->requestType) {
        return false;
    }
    return seatOf(*newer.request) == seatOf(*older.request);
}

} // namespace orvex
