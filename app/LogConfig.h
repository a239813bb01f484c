#pragma once

#include <spdlog/common.h>

#include <chrono>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace orvex {

/// One place that log lines go to, as configured.
struct SinkConfig {
    int id = 0;
    std::string type; ///< the kind's name; any text, known or not
    bool multiThread = false;
    std::optional<std::string> format;
    std::optional<spdlog::level::level_enum> level;
    std::string fileName;       ///< UTF-8; empty when none is given
    std::size_t fileSizeMb = 5; ///< rotating file: size limit of one file
    std::size_t fileCount = 3;  ///< rotating file: number of full files kept
    int hour = 0;               ///< daily file: the hour at which a new file starts, 0 to 23
};

/// How a logger's lines reach its sinks.
enum class LoggerKind {
    Synchronous,
    AsynchronousBlocking,    ///< waits for room in the queue
    AsynchronousOverrunning, ///< drops the oldest queued line
};

struct LoggerConfig {
    std::string name;
    LoggerKind kind = LoggerKind::Synchronous;
    std::vector<int> sinkIds;
    std::optional<spdlog::level::level_enum> level;
};

/// What a logging configuration file says; nothing is opened or made yet.
struct LogConfig {
    std::size_t queueSize = 8192; ///< entries in the queue of the asynchronous loggers, together
    std::size_t threadCount = 1;  ///< threads that write for them
    std::string format = "[%Y-%m-%d %H:%M:%S.%e] [%n] [%l] [%t] %v";
    spdlog::level::level_enum level = spdlog::level::info;
    std::optional<std::chrono::seconds> flushInterval;
    std::vector<SinkConfig> sinks;
    std::vector<LoggerConfig> loggers;
    /// What in the file was passed over, one sentence each, for the person who wrote it.
    std::vector<std::string> remarks;
};

} // namespace orvex
