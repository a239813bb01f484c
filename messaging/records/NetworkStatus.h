#pragma once

#include <QMetaType>
#include <QSharedPointer>
#include <QString>
#include <QVector>

namespace orvex {

struct NetworkStatus;

/// One network interface of a unit.
struct NetworkInterfaceInfo {
    /// Codes of `type`, as the user interface knows them.
    enum Type { Unknown = -1, AccessPoint = 0, Ethernet = 1, WiFi = 2 };

    int type = Unknown;
    QString interfaceName;
    QString ip;
    QString hardwareAddress;
    QString netmask;
    QString broadcast;
    bool active = false;

    /// Derives `type` from `interfaceName` (exact spelling) and `active` from the flags that `owner` has by
    /// now.
    void classify(const NetworkStatus& owner);

    /// For log lines; leaves the netmask out.
    QString toString() const;

    bool operator==(const NetworkInterfaceInfo& other) const;
};

/// How a unit is connected.
struct NetworkStatus {
    enum class Rendering { Short, Verbose };

    bool valid = false; ///< made from a body that held something
    bool online = false;
    bool wifiOnline = false;
    bool hotspotActive = false; ///< the unit's own access point is up
    QString ssid;
    QVector<NetworkInterfaceInfo> interfaces;

    /// "Owh 'network' 2": a capital for each flag that is set; verbose adds one line for each interface.
    QString toString(Rendering rendering = Rendering::Short) const;

    bool operator==(const NetworkStatus& other) const;
};

} // namespace orvex

Q_DECLARE_METATYPE(QSharedPointer<orvex::NetworkStatus>)
