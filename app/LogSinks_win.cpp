#include "app/LogSinks.h"

#include <spdlog/sinks/msvc_sink.h>

#include <memory>

namespace orvex {

spdlog::sink_ptr makeSystemLogSink(bool /*multiThread*/, const std::string& /*identity*/) {
    return nullptr;
}

spdlog::sink_ptr makeDebuggerSink(bool multiThread) {
    if (multiThread) {
        return std::make_shared<spdlog::sinks::msvc_sink_mt>();
    }
    return std::make_shared<spdlog::sinks::msvc_sink_st>();
}

} // namespace orvex
