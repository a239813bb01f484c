#pragma once

#include <cstdint>
#include <string>

namespace Velto::Messaging {

/// Whom to connect to, and who that must be.
struct Peer {
    std::string host; ///< an address, or a name to be looked up
    std::uint16_t port = 0;
    bool encrypted = false;
    std::string expectedUid; ///< as announced for that address and port; empty when nothing was
};

} // namespace Velto::Messaging
