#include "messaging/records/MediaList.h"

#include <tuple>

namespace orvex {

bool MediaEntry::operator==(const MediaEntry& other) const {
    const auto members = [](const MediaEntry& e) {
        return std::tie(e.title, e.cut, e.language, e.releaseDate, e.imdbRef, e.duration, e.trackReleaseDate);
    };
    return members(*this) == members(other);
}

} // namespace orvex
