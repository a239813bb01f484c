#include "messaging/PeerKeys.h"

#include "wire/Identity.h"

namespace Velto::Messaging {

PeerKeys& PeerKeys::instance() {
    static PeerKeys keys;
    return keys;
}

bool PeerKeys::allowsPlain(const Peer& peer) {
    return !Wire::isKeyUid(peer.expectedUid);
}

bool PeerKeys::accepts(const Peer& peer, const std::string& keyUid) const {
    if (keyUid.empty())
        return false;
    if (Wire::isKeyUid(peer.expectedUid))
        return keyUid == peer.expectedUid;
    const std::lock_guard lock(m_mutex);
    const auto held = m_held.find({peer.host, peer.port});
    return held == m_held.end() || held->second == keyUid;
}

void PeerKeys::hold(const Peer& peer, const std::string& keyUid) {
    if (Wire::isKeyUid(peer.expectedUid))
        return;
    const std::lock_guard lock(m_mutex);
    m_held.emplace(Place{peer.host, peer.port}, keyUid);
}

} // namespace Velto::Messaging
