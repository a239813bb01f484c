#pragma once

#include "simulator/SimulatorHost.h"
#include "simulator/UnitOptions.h"

#include <cstddef>
#include <string>

namespace Simulator {

/// What the command line asks for.
struct ProgramOptions {
    bool help = false;
    std::string helpText;
    HostOptions host;
    std::size_t units = 1;
    UnitOptions unit;     ///< the first unit, or what a scenario's units leave out
    std::string scenario; ///< empty: none
};

/// Throws std::invalid_argument with a text for people.
ProgramOptions parseCommandLine(int argc, const char* const* argv);

} // namespace Simulator
