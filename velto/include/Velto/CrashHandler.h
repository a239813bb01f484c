#pragma once

#include <filesystem>
#include <memory>
#include <string>

namespace Velto {

/// Told of a crash after the report is on disk.
class ICrashHandlerObserver {
public:
    virtual ~ICrashHandlerObserver() = default;

    /// Called once per process, on the thread that crashed (Windows: on one of the handler's own when the
    /// stack of that thread is used up). The process ends when it returns; a second fault inside it ends the
    /// process at once.
    virtual void handleCrash() = 0;
};

/// Intercepts fatal signals (Windows: unhandled structured exceptions) and `std::terminate` on every thread.
/// Record first, tell second: a text report (cause, program version, time, backtrace) lies in the data folder
/// before any observer runs; then the system's default action follows, so that its own crash tools still
/// work.
class CrashHandler {
public:
    struct Configuration {
        /// Reports are written to `dataPath` as "<name>-crash-<UTC time>-<process id>.txt". `enabled` false
        /// leaves the system's own handling untouched.
        Configuration(std::filesystem::path name, std::filesystem::path dataPath, bool enabled);

        std::filesystem::path name;
        std::filesystem::path dataPath;
        bool enabled;
    };

    static std::shared_ptr<CrashHandler> getInstance();

    CrashHandler(const CrashHandler&) = delete;
    CrashHandler& operator=(const CrashHandler&) = delete;

    /// Takes the configuration for the next `initialize`. False when the data folder is not one.
    bool configure(const Configuration& configuration);

    /// Installs the handlers. Only the first call does; false when nothing is configured or it cannot.
    bool initialize();

    /// Adds an observer, kept for the life of the process. Any thread; not from within `handleCrash`.
    void addObserver(std::shared_ptr<ICrashHandlerObserver> observer);

private:
    CrashHandler() = default;
};

} // namespace Velto
