#pragma once

#include <QString>

namespace orvex {

/// A Wi-Fi network that a unit sees.
struct WiFiListEntry {
    QString name;
    bool active = false; ///< the unit is joined to it

    bool operator==(const WiFiListEntry& other) const { return name == other.name && active == other.active; }
};

} // namespace orvex
