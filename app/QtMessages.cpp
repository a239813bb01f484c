#include "app/QtMessages.h"

#include "app/Logging.h"

#include <QByteArray>

#include <spdlog/spdlog.h>

#include <atomic>
#include <optional>
#include <string_view>

namespace orvex {

namespace {

std::atomic<QtMessageHandler> previousHandler{nullptr};

std::optional<spdlog::level::level_enum> logLevel(QtMsgType type) {
    switch (type) {
    case QtInfoMsg:
        return spdlog::level::info;
    case QtWarningMsg:
        return spdlog::level::warn;
    case QtCriticalMsg:
        return spdlog::level::err;
    case QtFatalMsg:
        return spdlog::level::critical;
    case QtDebugMsg:
        break;
    }
    return std::nullopt;
}

/// Takes the handler out before the logging library's registry goes at the end of the process.
struct RouteEnd {
    RouteEnd() = default;
    ~RouteEnd() { qInstallMessageHandler(previousHandler); }
    RouteEnd(const RouteEnd&) = delete;
    RouteEnd& operator=(const RouteEnd&) = delete;
};

} // namespace

void appLoggerHandler(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    if (const auto level = logLevel(type)) {
        if (const auto logger = spdlog::get(programLoggerName)) {
            const QByteArray text = message.toLocal8Bit();
            logger->log(*level, "{}",
                        std::string_view(text.constData(), static_cast<std::size_t>(text.size())));
            if (type == QtFatalMsg) {
                // The process is about to end.
                logger->flush();
            }
        }
    }
    if (const QtMessageHandler previous = previousHandler) {
        previous(type, context, message);
    }
}

void installAppLoggerHandler() {
    // Made first, so that it outlives the object below.
    spdlog::get(programLoggerName);
    static const RouteEnd routeEnd;
    const QtMessageHandler installedBefore = qInstallMessageHandler(&appLoggerHandler);
    if (installedBefore != &appLoggerHandler) {
        previousHandler = installedBefore;
    }
}

} // namespace orvex
