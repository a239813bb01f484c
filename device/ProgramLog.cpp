#include "device/ProgramLog.h"

#include <spdlog/sinks/null_sink.h>
#include <spdlog/spdlog.h>

namespace orvex {

std::shared_ptr<spdlog::logger> programLog() {
    if (auto logger = spdlog::get("orvex.QuiveraApp")) {
        return logger;
    }
    static const auto silent =
        std::make_shared<spdlog::logger>("orvex.QuiveraApp", std::make_shared<spdlog::sinks::null_sink_mt>());
    return silent;
}

} // namespace orvex
