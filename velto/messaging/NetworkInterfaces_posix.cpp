#include "messaging/NetworkInterfaces.h"

#include <arpa/inet.h>
#include <ifaddrs.h>
#include <net/if.h>
#include <netinet/in.h>

#include <memory>

namespace Velto::Messaging {

namespace {

std::string textOf(const sockaddr* address) {
    if (!address || address->sa_family != AF_INET)
        return {};
    char text[INET_ADDRSTRLEN] = {};
    const auto* const internet = reinterpret_cast<const sockaddr_in*>(address);
    return inet_ntop(AF_INET, &internet->sin_addr, text, sizeof text) ? text : "";
}

} // namespace

std::vector<NetworkInterface> listNetworkInterfaces() {
    ifaddrs* first = nullptr;
    if (getifaddrs(&first) != 0)
        return {};
    const std::unique_ptr<ifaddrs, void (*)(ifaddrs*)> owner(first, &freeifaddrs);
    std::vector<NetworkInterface> interfaces;
    for (const ifaddrs* entry = first; entry; entry = entry->ifa_next) {
        const std::string address = textOf(entry->ifa_addr);
        if (address.empty() || (entry->ifa_flags & IFF_UP) == 0)
            continue;
        const bool broadcasts = (entry->ifa_flags & IFF_BROADCAST) != 0;
        interfaces.push_back({entry->ifa_name, address, broadcasts ? textOf(entry->ifa_broadaddr) : "",
                              (entry->ifa_flags & IFF_LOOPBACK) != 0});
    }
    return interfaces;
}

} // namespace Velto::Messaging
