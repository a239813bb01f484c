#pragma once

#include "messaging/IoThread.h"
#include "messaging/Link.h"

#include <memory>

namespace Velto::Messaging {

/// A link over WebSocket (RFC 6455), on TLS when the peer is encrypted. Served by `thread`. The listener is
/// not kept alive.
std::shared_ptr<Link> makeWebSocketLink(const std::shared_ptr<IoThread>& thread, Peer peer,
                                        std::uint64_t generation, std::weak_ptr<LinkListener> listener);

} // namespace Velto::Messaging
