#pragma once

#include <QString>

namespace orvex {

/// Where the background companion's path is recorded.
inline constexpr const char* backgroundCompanionValue = "QuiveraBgApp/InstallPath";

/// The path of a companion program as its set-up recorded it for all users of this computer; empty when it is
/// not installed. `valueName` is the value's place below the maker's own, such as "MotionService/Panel".
/// Windows: the registry below HKEY_LOCAL_MACHINE\SOFTWARE\Orvex. Elsewhere the same names in Orvex.conf, the
/// first found in $XDG_CONFIG_DIRS (/etc/xdg when not set).
QString companionPath(const QString& valueName);

} // namespace orvex
