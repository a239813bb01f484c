#pragma once

#include <memory>

namespace spdlog {
class logger;
}

namespace Velto::detail {

/// The parts of this library that log under a name of their own.
enum class Area { BaseComm, CoreUtils, InterprocMessaging, QAutoDiscovery, Threading, ZComm };

/// The logger of an area; one that drops everything before its initialiser ran and after `ReleaseLoggers`,
/// never none. Any thread.
std::shared_ptr<spdlog::logger> areaLogger(Area area);

} // namespace Velto::detail
