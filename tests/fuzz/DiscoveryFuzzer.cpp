#include "velto/wire/Announcement.h"

#include <cstdint>
#include <cstdlib>

using namespace Velto::Wire;

// What was taken for good can be announced again and is taken again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view datagram(reinterpret_cast<const char*>(data), size);
    if (const auto probe = decodeProbe(datagram)) {
        const auto again = decodeProbe(encode(*probe));
        if (again && again->id != probe->id)
            std::abort();
    }
    if (const auto announcement = decodeAnnouncement(datagram)) {
        const auto text = encode(*announcement);
        const auto again = decodeAnnouncement(text);
        // Only texts that grow by escaping, in members that are never cut, may leave it too large.
        if (!again && text.size() <= maximumDatagramSize)
            std::abort();
        if (again && (again->uid != announcement->uid || again->port != announcement->port))
            std::abort();
    }
    return 0;
}
