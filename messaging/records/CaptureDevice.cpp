#include "messaging/records/CaptureDevice.h"

#include <tuple>

namespace orvex {

void CaptureDevice::prefixDisplayName() {
    if (loopback == QLatin1String("Regular")) {
        friendlyName.prepend(QLatin1String("IN: "));
    } else if (isOutput()) {
        friendlyName.prepend(QLatin1String("OUT: "));
    }
}

bool CaptureDevice::operator==(const CaptureDevice& other) const {
    const auto members = [](const CaptureDevice& d) {
        return std::tie(d.friendlyName, d.description, d.identification, d.interfaceName, d.loopback,
                        d.status, d.connected);
    };
    return members(*this) == members(other);
}

} // namespace orvex
