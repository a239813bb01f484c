#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace Simulator::Platform {

/// Whether a port that was just closed can only be opened again with address reuse. Windows frees it by
/// itself, and there reuse would let a second listener take the port of the first.
extern const bool listenersReuseAddress;

struct Interface {
    std::string name;
    std::uint32_t address = 0; ///< IPv4, host byte order
    std::uint32_t netmask = 0;
};

/// The IPv4 addresses of the interfaces that are up, as they are now.
std::vector<Interface> interfaces();

/// As many sockets as the system lets this process have: a unit needs one and every client one more.
void raiseSocketLimit();

} // namespace Simulator::Platform
