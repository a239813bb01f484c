#include "app/LogSinks.h"

#include "app/ApplicationException.h"

#include <Velto/ApplicationInfo.h>

#include <spdlog/sinks/basic_file_sink.h>
#include <spdlog/sinks/daily_file_sink.h>
#include <spdlog/sinks/rotating_file_sink.h>
#include <spdlog/sinks/stdout_color_sinks.h>
#include <spdlog/sinks/stdout_sinks.h>

#include <array>
#include <memory>
#include <string_view>

namespace orvex {

namespace {

using spdlog::sink_ptr;

struct Request {
    const SinkConfig& config;
    const std::filesystem::path& folder;
};

/// The sink of the variant that was asked for.
template <class Locked, class Unlocked, class... Arguments>
sink_ptr makeVariant(bool multiThread, const Arguments&... arguments) {
    if (multiThread) {
        return std::make_shared<Locked>(arguments...);
    }
    return std::make_shared<Unlocked>(arguments...);
}

/// The system's own form of path: wide on Windows, so that a person's name in it does no harm.
spdlog::filename_t fileName(const Request& request) {
    if (request.config.fileName.empty()) {
        throw ApplicationException("it names no file");
    }
    return (request.folder / std::filesystem::u8path(request.config.fileName)).native();
}

sink_ptr makeConsole(const Request& request) {
    using namespace spdlog::sinks;
    return makeVariant<stdout_sink_mt, stdout_sink_st>(request.config.multiThread);
}

sink_ptr makeColorConsole(const Request& request) {
    using namespace spdlog::sinks;
    return makeVariant<stdout_color_sink_mt, stdout_color_sink_st>(request.config.multiThread);
}

sink_ptr makeRotatingFile(const Request& request) {
    using namespace spdlog::sinks;
    const std::size_t bytes = request.config.fileSizeMb * 1024 * 1024;
    return makeVariant<rotating_file_sink_mt, rotating_file_sink_st>(
        request.config.multiThread, fileName(request), bytes, request.config.fileCount);
}

sink_ptr makeDailyFile(const Request& request) {
    using namespace spdlog::sinks;
    return makeVariant<daily_file_sink_mt, daily_file_sink_st>(request.config.multiThread, fileName(request),
                                                               request.config.hour, 0);
}

sink_ptr makeSimpleFile(const Request& request) {
    using namespace spdlog::sinks;
    return makeVariant<basic_file_sink_mt, basic_file_sink_st>(request.config.multiThread, fileName(request));
}

sink_ptr makeSystemLog(const Request& request) {
    return makeSystemLogSink(request.config.multiThread, Velto::ApplicationInfo::NormalizedName());
}

sink_ptr makeDebugger(const Request& request) {
    return makeDebuggerSink(request.config.multiThread);
}

struct SinkKind {
    std::string_view type;
    sink_ptr (*make)(const Request&);
};

constexpr std::array<SinkKind, 7> sinkKinds = {{{"stdout", &makeConsole},
                                                {"stdout_color", &makeColorConsole},
                                                {"rotating_file", &makeRotatingFile},
                                                {"daily_file", &makeDailyFile},
                                                {"simple_file", &makeSimpleFile},
                                                {"syslog", &makeSystemLog},
                                                {"msvc", &makeDebugger}}};

} // namespace

sink_ptr makeSink(const SinkConfig& config, const std::filesystem::path& folder) {
    for (const SinkKind& kind : sinkKinds) {
        if (kind.type != config.type) {
            continue;
        }
        if (sink_ptr sink = kind.make({config, folder})) {
            return sink;
        }
        throw ApplicationException("this system has no \"" + config.type + "\"");
    }
    throw ApplicationException("its kind \"" + config.type + "\" is unknown");
}

} // namespace orvex
