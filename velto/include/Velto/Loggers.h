#pragma once

#include <functional>
#include <memory>
#include <string>

namespace spdlog {
class logger;
}

namespace Velto {

/// Hands out the logger of a name, made after the program's logging configuration; never none.
using LoggerSource = std::function<std::shared_ptr<spdlog::logger>(const std::string& name)>;

/// One initialiser per area of this library: takes its logger from the source and logs there from now on.
/// Before that, and after `ReleaseLoggers`, the area logs nothing. Call on the main thread before the
/// components are resumed.
using LoggerInitialiser = void (*)(const LoggerSource& source);

void InitLoggerBaseComm(const LoggerSource& source);           ///< "Velto.BaseComm": connections
void InitLoggerCoreUtils(const LoggerSource& source);          ///< "Velto.CoreUtils": application, crashes
void InitLoggerInterprocMessaging(const LoggerSource& source); ///< "Velto.InterprocMessaging": messages
void InitLoggerQAutoDiscoveryComponent(const LoggerSource& source); ///< "Velto.QAutoDiscovery": discovery
void InitLoggerThreading(const LoggerSource& source);      ///< "Velto.Threading": components, threads
void InitLoggerZCommComponent(const LoggerSource& source); ///< "Velto.ZComm": the messenger

/// Lets go of all of them, before the program shuts its logging down.
void ReleaseLoggers();

} // namespace Velto
