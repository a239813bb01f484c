#pragma once

#include "app/LogConfig.h"

#include <Velto/Loggers.h>

#include <spdlog/logger.h>

#include <filesystem>
#include <initializer_list>
#include <map>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

namespace orvex {

/// The name of the program's own logger.
inline constexpr const char* programLoggerName = "orvex.QuiveraApp";

/// Sets the process's logging up from its configuration file and takes it down again. One per process; made
/// and used on the main thread. The loggers it makes are in the logging library's registry under their names.
class Logging {
public:
    /// What goes wrong is told on `problems`, one line each: there is no log yet to tell it. Relative file
    /// names, and the file of the built-in default, lie under `dataFolder`.
    Logging(std::filesystem::path dataFolder, std::ostream& problems);

    /// Configures from `file`; without a usable one, from the built-in default: console and a rotating file.
    /// Afterwards the program's own logger exists in every case.
    void configure(const std::filesystem::path& file);

    /// The built-in default at once; `reason` is told.
    void configureByDefault(const std::string& reason);

    /// The logger of a name; one that the configuration does not know writes where the program's own does.
    std::shared_ptr<spdlog::logger> logger(const std::string& name);

    /// Hands each library's initialiser its source of loggers, in the order given.
    void initialise(std::initializer_list<Velto::LoggerInitialiser> initialisers);

    /// Writes out what is queued, then lets go of every logger, the flusher and the worker threads.
    void shutDown();

private:
    void build(const LogConfig& config);
    void makeSinks(const LogConfig& config);
    void addSink(const SinkConfig& sink, const LogConfig& config);
    void makeLogger(const LoggerConfig& logger, const LogConfig& config);
    void ensureProgramLogger(const LogConfig& config);
    void addLogger(std::shared_ptr<spdlog::logger> logger);
    std::vector<spdlog::sink_ptr> defaultSinks();
    void tell(const std::string& problem);

    std::filesystem::path m_dataFolder;
    std::ostream& m_problems;
    std::map<int, spdlog::sink_ptr> m_sinks;
    std::map<std::string, std::shared_ptr<spdlog::logger>> m_loggers;
};

/// Where the configuration lies: beside the executable, named for the application. Throws
/// `ApplicationException` when the system does not tell where that is.
std::filesystem::path logConfigFile();

} // namespace orvex
