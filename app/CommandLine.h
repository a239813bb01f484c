#pragma once

#include <optional>
#include <ostream>
#include <string>

namespace orvex {

/// What the command line asks for.
struct CommandLine {
    std::string hostName;        ///< connect directly to this unit; empty: find units by discovery
    std::optional<int> exitCode; ///< set when the program has to end at once with it
};

/// Reads the command line. Help goes to `out`, what is wrong with it to `err`.
CommandLine parseCommandLine(int argc, const char* const* argv, std::ostream& out, std::ostream& err);

} // namespace orvex
