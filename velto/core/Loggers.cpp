#include "core/Areas.h"

#include <Velto/Loggers.h>

#include <spdlog/logger.h>
#include <spdlog/sinks/null_sink.h>

#include <array>
#include <mutex>

namespace Velto {

namespace {

constexpr std::array<const char*, 6> areaNames = {"Velto.BaseComm",           "Velto.CoreUtils",
                                                  "Velto.InterprocMessaging", "Velto.QAutoDiscovery",
                                                  "Velto.Threading",          "Velto.ZComm"};

std::shared_ptr<spdlog::logger> makeSilentLogger() {
    auto logger = std::make_shared<spdlog::logger>("", std::make_shared<spdlog::sinks::null_sink_mt>());
    logger->set_level(spdlog::level::off);
    return logger;
}

/// The loggers in use, by area.
class AreaLoggers {
public:
    std::shared_ptr<spdlog::logger> get(std::size_t area) {
        const std::lock_guard lock(m_mutex);
        return m_loggers[area] ? m_loggers[area] : m_silent;
    }

    void set(std::size_t area, std::shared_ptr<spdlog::logger> logger) {
        const std::lock_guard lock(m_mutex);
        m_loggers[area].swap(logger);
    }

private:
    std::mutex m_mutex;
    std::array<std::shared_ptr<spdlog::logger>, areaNames.size()> m_loggers;
    const std::shared_ptr<spdlog::logger> m_silent = makeSilentLogger();
};

AreaLoggers& areaLoggers() {
    static AreaLoggers loggers;
    return loggers;
}

void initialise(detail::Area area, const LoggerSource& source) {
    const auto index = static_cast<std::size_t>(area);
    areaLoggers().set(index, source ? source(areaNames[index]) : nullptr);
}

} // namespace

namespace detail {

std::shared_ptr<spdlog::logger> areaLogger(Area area) {
    return areaLoggers().get(static_cast<std::size_t>(area));
}

} // namespace detail

void InitLoggerBaseComm(const LoggerSource& source) {
    initialise(detail::Area::BaseComm, source);
}
void InitLoggerCoreUtils(const LoggerSource& source) {
    initialise(detail::Area::CoreUtils, source);
}
void InitLoggerInterprocMessaging(const LoggerSource& source) {
    initialise(detail::Area::InterprocMessaging, source);
}
void InitLoggerQAutoDiscoveryComponent(const LoggerSource& source) {
    initialise(detail::Area::QAutoDiscovery, source);
}
void InitLoggerThreading(const LoggerSource& source) {
    initialise(detail::Area::Threading, source);
}
void InitLoggerZCommComponent(const LoggerSource& source) {
    initialise(detail::Area::ZComm, source);
}

void ReleaseLoggers() {
    for (std::size_t area = 0; area < areaNames.size(); ++area) {
        areaLoggers().set(area, nullptr);
    }
}

} // namespace Velto
