#pragma once

#include "messaging/DiscoveryStrategy.h"

#include <chrono>

namespace Velto::Messaging {

/// Asks one unit named by the user for its identity. `parameter` is "encrypted;host;port" or
/// "plain;host;port".
std::shared_ptr<DiscoveryStrategy> makeDirectStrategy(const std::string& parameter,
                                                      std::chrono::milliseconds period,
                                                      const DiscoverySurroundings& surroundings);

} // namespace Velto::Messaging
