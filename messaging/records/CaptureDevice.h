#pragma once

#include <QString>

#include <memory>
#include <vector>

namespace orvex {

/// A source of audio that the unit can listen to. All values are the unit's own text.
struct CaptureDevice {
    QString friendlyName; ///< once parsed: the display name, see `prefixDisplayName`
    QString description;
    QString identification; ///< what the unit is told to select it by
    QString interfaceName;
    QString loopback; ///< "Regular" for an input, "Loopback" for an output that is listened to
    QString status;   ///< "OnCapture" for the one in use
    QString connected;

    bool isOutput() const { return loopback == QLatin1String("Loopback"); }

    /// Puts "IN: " or "OUT: " before the name, by `loopback`'s exact spelling.
    void prefixDisplayName();

    bool operator==(const CaptureDevice& other) const;
};

/// Sorted by display name; devices of equal name in the order of their arrival.
using CaptureDeviceList = std::vector<std::shared_ptr<CaptureDevice>>;

} // namespace orvex
