#pragma once

#include <string>
#include <vector>

namespace Velto::Messaging {

/// One IPv4 address of one network interface that is up.
struct NetworkInterface {
    std::string name;
    std::string address;
    std::string broadcast; ///< empty when it has none
    bool loopback = false;
};

/// All of this machine's, as they are now. Empty when the system does not tell.
std::vector<NetworkInterface> listNetworkInterfaces();

/// Those named by `restriction`: interface names or addresses, separated by commas; "lo" stands for the
/// loopback interface whatever the system calls it. An empty restriction leaves all.
std::vector<NetworkInterface> selectInterfaces(std::vector<NetworkInterface> interfaces,
                                               const std::string& restriction);

/// The environment's VELTO_DISCOVERY_INTERFACES; empty when unset.
std::string interfaceRestriction();

} // namespace Velto::Messaging
