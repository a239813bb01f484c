#pragma once

#include <Velto/CrashHandler.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <ctime>
#include <string>

/// What the two platforms' crash handlers share. Everything here that runs after a fault allocates nothing
/// and takes no lock: the heap may be broken, and the thread that crashed may hold any lock.
namespace Velto::detail {

/// What a crashing thread has to do, by the order in which threads get there.
enum class CrashTurn {
    Report, ///< the first: write the report, then tell the observers
    Wait,   ///< another thread is writing its report: stay out of its way, it ends the process
    End,    ///< a fault while observers are told, or within the report itself: end the process at once
};

CrashTurn takeCrashTurn(std::uint64_t threadId) noexcept;

/// Calls every observer once. What an observer throws is dropped.
void tellCrashObservers() noexcept;

/// Text put together in memory of its own; what does not fit is cut.
class CrashText {
public:
    CrashText& operator<<(const char* text) noexcept;
    CrashText& operator<<(std::uint64_t number) noexcept;
    CrashText& hex(std::uint64_t number) noexcept;
    /// The number with leading zeros up to `width` digits.
    CrashText& padded(std::uint64_t number, int width) noexcept;
    /// Seconds since 1970 as "20260131T235959Z".
    CrashText& utcTime(std::int64_t secondsSince1970) noexcept;

    const char* c_str() const noexcept { return m_text.data(); }
    std::size_t size() const noexcept { return m_size; }

private:
    // Room for the longest path that Linux takes and then some.
    std::array<char, 8192> m_text{};
    std::size_t m_size = 0;
};

/// Known before any crash: the first line of a report, made of the application's name and version.
std::string crashHeadline();

/// Text of the exception that led to std::terminate, or what else did. Runs ordinary code: the fault is the
/// program's logic, not its memory.
std::string terminationCause() noexcept;

/// Installs the system's handlers; called once. `headline` and the paths are kept for the life of the
/// process.
bool installCrashHandlers(const CrashHandler::Configuration& configuration, const std::string& headline);

} // namespace Velto::detail
