#pragma once

#include "messaging/IoThread.h"
#include "messaging/Peer.h"
#include "wire/Announcement.h"

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace Velto::Messaging {

/// What one unit answered when asked for its identity.
struct IdentityAnswer {
    std::optional<Wire::Announcement> announcement; ///< none: it failed
    std::string address;                            ///< where the unit was reached
    std::string problem;                            ///< for the log
};

/// Asks one unit for its announcement: GET /identity, over TLS when the peer is encrypted. `answered` is
/// called once on `thread`, never inside this call, within `timeout`, or never when `thread` ends before.
void requestIdentity(const std::shared_ptr<IoThread>& thread, Peer peer, std::chrono::milliseconds timeout,
                     std::function<void(const IdentityAnswer&)> answered);

} // namespace Velto::Messaging
