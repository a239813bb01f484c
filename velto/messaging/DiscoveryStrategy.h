#pragma once

#include "messaging/CallbackGate.h"
#include "messaging/IoThread.h"

#include <Velto/Messaging/Messenger.h>
#include <orvex/Messaging/Discoverer.h>

#include <cstdint>
#include <memory>
#include <string>

namespace Velto::Messaging {

/// One way of finding units. Lives on the discovery thread, feeds a discoverer. Any thread may call it.
class DiscoveryStrategy {
public:
    virtual ~DiscoveryStrategy() = default;
    /// Starts to look; again: nothing happens.
    virtual void start() = 0;
    /// Ends it for good. What is under way is dropped.
    virtual void stop() = 0;
};

/// What every strategy works with.
struct DiscoverySurroundings {
    std::shared_ptr<IoThread> thread;
    std::shared_ptr<orvex::Messaging::Discoverer> discoverer;
    std::shared_ptr<CallbackGate> gate;
    std::string service;
};

/// None, with a line in the log, when the kind is unknown or the parameter unreadable.
std::shared_ptr<DiscoveryStrategy> makeDiscoveryStrategy(const Messenger::DiscoveryStrategyInfo& info,
                                                         const DiscoverySurroundings& surroundings);

/// The whole text as a port; 0 when it is none.
std::uint16_t parsePort(const std::string& text);

} // namespace Velto::Messaging
