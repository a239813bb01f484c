#pragma once

#include <spdlog/logger.h>

#include <memory>

namespace orvex {

/// The program's own logger. Never none: before logging is configured, and after it is shut down, one that
/// drops everything. Any thread.
std::shared_ptr<spdlog::logger> programLog();

} // namespace orvex
