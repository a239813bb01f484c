#pragma once

#include "app/ProcessTable.h"

namespace orvex {

/// The programs that the scan looks for, without the suffix that the system adds.
inline constexpr const char* programExecutable = "Quivera";
inline constexpr const char* backgroundExecutable = "QuiveraBgApp";

/// Ends every other running copy of this program, so that the newest one stays. Returns whether the
/// background companion has to be started: true when it was looked for and does not run.
bool endOtherInstances(ProcessTable& processes);

} // namespace orvex
