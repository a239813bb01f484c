#include "device/PendingSettings.h"

#include <algorithm>
#include <utility>

namespace orvex {

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

const PendingSettings::Setting& PendingSettings::take() {
    m_inFlight = std::move(m_waiting.front());
    m_waiting.pop_front();
    return m_inFlight;
}

void PendingSettings::finish(bool sent) {
    Setting ended = std::exchange(m_inFlight, {});
    if (!ended.request || sent || ended.isSecondTry) {
        return;
    }
    const bool isOutdated = std::any_of(m_waiting.begin(), m_waiting.end(),
                                        [&](const Setting& waiting) { return supersedes(waiting, ended); });
    if (!isOutdated) {
        ended.isSecondTry = true;
        m_waiting.push_front(std::move(ended));
    }
}

bool PendingSettings::supersedes(const Setting& newer, const Setting& older) {
    if (newer.unit != older.unit || newer.request->requestType != older.request->requestType) {
        return false;
    }
    if (newer.request->requestType != DeviceUpdateRequest::SetSeatSetting) {
        return true;
    }
    const auto seatOf = [](const Setting& setting) {
        return static_cast<const SetSeatSettingRequest&>(*setting.request).seat->index;
    };
    return seatOf(newer) == seatOf(older);
}

} // namespace orvex
