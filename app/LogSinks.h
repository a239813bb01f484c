#pragma once

#include "app/LogConfig.h"

#include <spdlog/common.h>

#include <filesystem>
#include <string>

namespace orvex {

/// Makes the sink that `config` describes, its pattern and level not yet set. Relative file names lie under
/// `folder`. Throws `ApplicationException` when its kind is unknown, the platform lacks it or a file name is
/// missing, and what the logging library throws when the file cannot be opened.
spdlog::sink_ptr makeSink(const SinkConfig& config, const std::filesystem::path& folder);

/// The two kinds that not every platform has; none where it is missing. `identity` names the program in the
/// system's log.
spdlog::sink_ptr makeSystemLogSink(bool multiThread, const std::string& identity);
spdlog::sink_ptr makeDebuggerSink(bool multiThread);

} // namespace orvex
