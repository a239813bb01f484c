#include "app/LogSinks.h"

#include <spdlog/sinks/syslog_sink.h>

#include <memory>

namespace orvex {

spdlog::sink_ptr makeSystemLogSink(bool multiThread, const std::string& identity) {
    constexpr bool useOwnPattern = true;
    if (multiThread) {
        return std::make_shared<spdlog::sinks::syslog_sink_mt>(identity, LOG_PID, LOG_USER, useOwnPattern);
    }
    return std::make_shared<spdlog::sinks::syslog_sink_st>(identity, LOG_PID, LOG_USER, useOwnPattern);
}

spdlog::sink_ptr makeDebuggerSink(bool /*multiThread*/) {
    return nullptr;
}

} // namespace orvex
