#include "messaging/records/SoftwareHealthStatus.h"

#include <tuple>

namespace orvex {

bool SoftwareHealthEntry::operator==(const SoftwareHealthEntry& other) const {
    const auto members = [](const SoftwareHealthEntry& e) {
        return std::tie(e.name, e.status, e.statusMessage, e.timestamp, e.userName);
    };
    return members(*this) == members(other);
}

bool SoftwareHealthStatus::operator==(const SoftwareHealthStatus& other) const {
    return overallState == other.overallState && currentUserName == other.currentUserName &&
           entries == other.entries;
}

} // namespace orvex
