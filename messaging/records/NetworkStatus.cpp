#include "messaging/records/NetworkStatus.h"

#include <tuple>

namespace orvex {

void NetworkInterfaceInfo::classify(const NetworkStatus& owner) {
    if (interfaceName == QLatin1String("Access Point")) {
        type = AccessPoint;
        active = owner.hotspotActive;
    } else if (interfaceName == QLatin1String("Ethernet")) {
        type = Ethernet;
        active = owner.online && !owner.wifiOnline;
    } else if (interfaceName == QLatin1String("Wi-Fi")) {
        type = WiFi;
        active = owner.wifiOnline;
    } else {
        type = Unknown;
        active = false;
    }
}

QString NetworkInterfaceInfo::toString() const {
    return QStringLiteral("{name:") + interfaceName + QStringLiteral(", ip:") + ip +
           QStringLiteral(", mac:") + hardwareAddress + QStringLiteral(", broadcast:") + broadcast +
           QStringLiteral(", ") + (active ? QStringLiteral("active") : QStringLiteral("inactive")) +
           QLatin1Char('}');
}

bool NetworkInterfaceInfo::operator==(const NetworkInterfaceInfo& other) const {
    const auto members = [](const NetworkInterfaceInfo& i) {
        return std::tie(i.type, i.interfaceName, i.ip, i.hardwareAddress, i.netmask, i.broadcast, i.active);
    };
    return members(*this) == members(other);
}

QString NetworkStatus::toString(Rendering rendering) const {
    if (!valid) {
        return QStringLiteral("not valid");
    }
    QString text;
    text += QLatin1Char(online ? 'O' : 'o');
    text += QLatin1Char(wifiOnline ? 'W' : 'w');
    text += QLatin1Char(hotspotActive ? 'H' : 'h');
    text += QStringLiteral(" '") + ssid + QStringLiteral("' ") + QString::number(interfaces.size());
    if (rendering == Rendering::Verbose) {
        for (const NetworkInterfaceInfo& entry : interfaces) {
            text += QLatin1Char('\n') + entry.toString();
        }
    }
    return text;
}

bool NetworkStatus::operator==(const NetworkStatus& other) const {
    const auto members = [](const NetworkStatus& s) {
        return std::tie(s.valid, s.online, s.wifiOnline, s.hotspotActive, s.ssid, s.interfaces);
    };
    return members(*this) == members(other);
}

} // namespace orvex
