#pragma once

#include "messaging/Peer.h"

#include <chrono>
#include <cstdint>
#include <string>
#include <string_view>

namespace Velto::Messaging {

/// Hears what becomes of a link, on the communication thread. Calls carry the link's generation.
class LinkListener {
public:
    /// What to do with the connection after a message.
    enum class Verdict { Keep, Violation };

    virtual ~LinkListener() = default;
    virtual void linkUp(std::uint64_t generation) = 0;
    /// `frame` is valid during the call. `Violation` ends the connection with the protocol's close code.
    virtual Verdict linkReceived(std::uint64_t generation, std::string_view frame) = 0;
    /// Once, and the last call; not after `close`. `reason` is for the log.
    virtual void linkDown(std::uint64_t generation, const std::string& reason) = 0;
};

/// One connection to one unit, from the attempt to the end. Keeps itself alive while something is under way.
/// Communication thread, but for `queue`.
class Link {
public:
    virtual ~Link() = default;

    /// Starts the attempt, which ends with `linkUp` or `linkDown` within `timeout`.
    virtual void open(std::chrono::milliseconds timeout) = 0;
    /// Bounds an attempt under way anew, counted from now.
    virtual void bound(std::chrono::milliseconds timeout) = 0;
    /// Ends it: what is queued is still written if the peer takes it in time. The listener hears no more.
    virtual void close() = 0;
    /// Queues one frame; false when too much waits already. Any thread.
    virtual bool queue(std::string frame) = 0;
};

} // namespace Velto::Messaging
