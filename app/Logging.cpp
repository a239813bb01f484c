#include "app/Logging.h"

#include "app/ApplicationException.h"
#include "app/LogConfigParser.h"
#include "app/LogSinks.h"

#include <Velto/ApplicationInfo.h>

#include <spdlog/async.h>
#include <spdlog/sinks/sink.h>
#include <spdlog/spdlog.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cstdio>
#include <ctime>
#include <utility>

namespace orvex {

namespace {

// Ids of the built-in default's sinks.
constexpr int consoleSinkId = 1;
constexpr int fileSinkId = 2;

/// The built-in default: what is useful to a person at the console and to whoever is sent the file.
LogConfig defaultConfig() {
    LogConfig config;
    config.flushInterval = std::chrono::seconds(2);

    SinkConfig console;
    console.id = consoleSinkId;
    console.type = "stdout_color";
    console.multiThread = true;

    SinkConfig file;
    file.id = fileSinkId;
    file.type = "rotating_file";
    file.multiThread = true;
    file.fileName = Velto::ApplicationInfo::NormalizedName() + ".log";

    LoggerConfig program;
    program.name = programLoggerName;
    program.sinkIds = {consoleSinkId, fileSinkId};

    config.sinks = {console, file};
    config.loggers = {program};
    return config;
}

/// What a logger does with an error of its own while writing: it cannot be logged, so it is printed.
void printLogError(const std::string& loggerName, const std::string& message) {
    static std::atomic<std::size_t> count{0};
    // The logging library's words for a failure that is no standard exception.
    const bool unknown = message == "Rethrowing unknown exception in logger";
    const std::string& text = unknown ? std::string("Unknown exception in logger") : message;

    const std::tm local = spdlog::details::os::localtime(std::time(nullptr));
    std::array<char, sizeof "0000-00-00 00:00:00" + 16> stamp{};
    std::strftime(stamp.data(), stamp.size(), "%Y-%m-%d %H:%M:%S", &local);
    const std::size_t number = ++count;
    std::fprintf(stderr, "[*** LOG ERROR #%04zu ***] [%s] [%s] {%s}\n", number, stamp.data(),
                 loggerName.c_str(), text.c_str());
}

std::shared_ptr<spdlog::logger> newLogger(const LoggerConfig& config,
                                          const std::vector<spdlog::sink_ptr>& sinks) {
    if (config.kind == LoggerKind::Synchronous) {
        return std::make_shared<spdlog::logger>(config.name, sinks.begin(), sinks.end());
    }
    const auto policy = config.kind == LoggerKind::AsynchronousBlocking
                            ? spdlog::async_overflow_policy::block
                            : spdlog::async_overflow_policy::overrun_oldest;
    return std::make_shared<spdlog::async_logger>(config.name, sinks.begin(), sinks.end(),
                                                  spdlog::thread_pool(), policy);
}

} // namespace

Logging::Logging(std::filesystem::path dataFolder, std::ostream& problems)
    : m_dataFolder(std::move(dataFolder))
    , m_problems(problems) {}

void Logging::configure(const std::filesystem::path& file) {
    LogConfig config;
    try {
        config = LogConfigParser::loadConfigFile(file);
    } catch (const ApplicationException& e) {
        configureByDefault(file.u8string() + ": " + e.what());
        return;
    }
    for (const std::string& remark : config.remarks) {
        tell(file.u8string() + ", " + remark);
    }
    build(config);
}

void Logging::configureByDefault(const std::string& reason) {
    tell(reason);
    tell("logging to the console and to a file under " + m_dataFolder.u8string() + " instead");
    build(defaultConfig());
}

void Logging::build(const LogConfig& config) {
    makeSinks(config);
    const bool anyAsynchronous =
        std::any_of(config.loggers.begin(), config.loggers.end(),
                    [](const auto& logger) { return logger.kind != LoggerKind::Synchronous; });
    if (anyAsynchronous) {
        spdlog::init_thread_pool(config.queueSize, config.threadCount);
    }
    for (const LoggerConfig& logger : config.loggers) {
        makeLogger(logger, config);
    }
    ensureProgramLogger(config);
    if (config.flushInterval) {
        spdlog::flush_every(*config.flushInterval);
    }
}

void Logging::makeSinks(const LogConfig& config) {
    for (const SinkConfig& sink : config.sinks) {
        try {
            addSink(sink, config);
        } catch (const std::exception& e) {
            tell("sink " + std::to_string(sink.id) + " is left out: " + e.what());
        }
    }
}

void Logging::addSink(const SinkConfig& sink, const LogConfig& config) {
    spdlog::sink_ptr made = makeSink(sink, m_dataFolder);
    made->set_pattern(sink.format.value_or(config.format));
    made->set_level(sink.level.value_or(config.level));
    m_sinks.emplace(sink.id, std::move(made));
}

void Logging::makeLogger(const LoggerConfig& logger, const LogConfig& config) {
    std::vector<spdlog::sink_ptr> sinks;
    for (const int id : logger.sinkIds) {
        const auto found = m_sinks.find(id);
        if (found != m_sinks.end()) {
            sinks.push_back(found->second);
        }
    }
    const bool lostAll = sinks.empty() && !logger.sinkIds.empty();
    if (lostAll && logger.name == programLoggerName) {
        tell(logger.name + " has none of its sinks; it writes to the console and to a file under " +
             m_dataFolder.u8string() + " instead");
        sinks = defaultSinks();
    }
    auto made = newLogger(logger, sinks);
    made->set_level(logger.level.value_or(config.level));
    addLogger(std::move(made));
}

void Logging::ensureProgramLogger(const LogConfig& config) {
    if (m_loggers.count(programLoggerName) != 0) {
        return;
    }
    std::vector<spdlog::sink_ptr> sinks;
    for (const auto& [id, sink] : m_sinks) {
        sinks.push_back(sink);
    }
    if (sinks.empty()) {
        sinks = defaultSinks();
    }
    tell(std::string("no logger ") + programLoggerName + " is configured; it gets every sink there is");
    LoggerConfig program;
    program.name = programLoggerName;
    auto made = newLogger(program, sinks);
    made->set_level(config.level);
    addLogger(std::move(made));
}

std::vector<spdlog::sink_ptr> Logging::defaultSinks() {
    const LogConfig config = defaultConfig();
    std::vector<spdlog::sink_ptr> sinks;
    for (const SinkConfig& description : config.sinks) {
        try {
            spdlog::sink_ptr sink = makeSink(description, m_dataFolder);
            sink->set_pattern(config.format);
            sinks.push_back(std::move(sink));
        } catch (const std::exception& e) {
            tell(std::string("left out: ") + e.what());
        }
    }
    return sinks;
}

void Logging::addLogger(std::shared_ptr<spdlog::logger> logger) {
    logger->set_error_handler(
        [name = logger->name()](const std::string& message) { printLogError(name, message); });
    // Registered as it is: the library's own set-up would replace the sinks' patterns and the level.
    spdlog::register_logger(logger);
    m_loggers.emplace(logger->name(), std::move(logger));
}

std::shared_ptr<spdlog::logger> Logging::logger(const std::string& name) {
    const auto known = m_loggers.find(name);
    if (known != m_loggers.end()) {
        return known->second;
    }
    addLogger(m_loggers.at(programLoggerName)->clone(name));
    return m_loggers.at(name);
}

void Logging::initialise(std::initializer_list<Velto::LoggerInitialiser> initialisers) {
    const Velto::LoggerSource source = [this](const std::string& name) { return logger(name); };
    for (const Velto::LoggerInitialiser initialiser : initialisers) {
        initialiser(source);
    }
}

void Logging::shutDown() {
    Velto::ReleaseLoggers();
    m_loggers.clear();
    // Stops the flusher, drops the loggers, then joins the workers once their queue is written. Flushed is
    // after that: the flush of a logger that drops the oldest message would push out what others have queued.
    spdlog::shutdown();
    for (const auto& [id, sink] : m_sinks) {
        try {
            sink->flush();
        } catch (const spdlog::spdlog_ex& error) {
            tell(error.what());
        }
    }
    m_sinks.clear();
}

void Logging::tell(const std::string& problem) {
    m_problems << "Logging: " << problem << std::endl;
}

std::filesystem::path logConfigFile() {
    const std::filesystem::path executable = Velto::ApplicationInfo::ExecutablePath();
    if (executable.empty()) {
        throw ApplicationException("Failed to retrieve current module file path.");
    }
    return executable.parent_path() / (Velto::ApplicationInfo::NormalizedName() + ".log.config");
}

} // namespace orvex
