#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvex {

using ProcessId = std::uint64_t;

/// How long a process that was told to end is waited for.
inline constexpr int processEndTimeoutMs = 1000;

/// The processes that run on this computer, as far as this one may see them.
class ProcessTable {
public:
    /// Stands for the name of a process that cannot be looked at.
    static constexpr const char* unknownName = "<unknown>";

    virtual ~ProcessTable() = default;

    virtual ProcessId ownId() const = 0;

    /// None when they cannot be listed.
    virtual std::optional<std::vector<ProcessId>> list() const = 0;

    /// The file name of its executable, UTF-8, without folders.
    virtual std::string name(ProcessId id) const = 0;

    /// Ends a process and waits for that, at most `processEndTimeoutMs`.
    virtual void end(ProcessId id) = 0;
};

/// The system's own table.
std::unique_ptr<ProcessTable> makeSystemProcessTable();

/// The file name that a program has on this system.
std::string executableName(std::string_view program);

} // namespace orvex
