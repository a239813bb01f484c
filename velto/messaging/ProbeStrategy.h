#pragma once

#include "messaging/DiscoveryStrategy.h"

#include <chrono>

namespace Velto::Messaging {

/// Sends probes to a UDP port on the networks at hand and takes in the answers. `parameter` is the port.
std::shared_ptr<DiscoveryStrategy> makeProbeStrategy(const std::string& parameter,
                                                     std::chrono::milliseconds period,
                                                     const DiscoverySurroundings& surroundings);

} // namespace Velto::Messaging
