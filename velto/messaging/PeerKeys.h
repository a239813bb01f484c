#pragma once

#include "messaging/Peer.h"

#include <map>
#include <mutex>
#include <string>
#include <utility>

namespace Velto::Messaging {

/// Which key a peer may present. An announced uid decides; where none was announced, the first key that a
/// peer at that address has proved to own holds while the process lives. Any thread.
class PeerKeys {
public:
    /// Those of this process.
    static PeerKeys& instance();

    /// Whether the peer may be talked to at all: never in plain text when its uid stands for a key.
    static bool allowsPlain(const Peer& peer);

    /// Whether the owner of the key with that uid may be this peer.
    bool accepts(const Peer& peer, const std::string& keyUid) const;

    /// Remembers the key of a peer that has just proved to own it.
    void hold(const Peer& peer, const std::string& keyUid);

private:
    using Place = std::pair<std::string, std::uint16_t>;

    mutable std::mutex m_mutex;
    std::map<Place, std::string> m_held;
};

} // namespace Velto::Messaging
