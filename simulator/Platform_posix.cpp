#include "Platform.h"

#include <arpa/inet.h>
#include <ifaddrs.h>
#include <net/if.h>
#include <netinet/in.h>
#include <sys/resource.h>

namespace Simulator::Platform {

const bool listenersReuseAddress = true;

namespace {

std::uint32_t addressIn(const sockaddr* address) {
    return ntohl(reinterpret_cast<const sockaddr_in*>(address)->sin_addr.s_addr);
}

} // namespace

std::vector<Interface> interfaces() {
    std::vector<Interface> found;
    ifaddrs* first = nullptr;
    if (::getifaddrs(&first) != 0)
        return found;
    for (const ifaddrs* entry = first; entry; entry = entry->ifa_next) {
        if (!entry->ifa_addr || entry->ifa_addr->sa_family != AF_INET || (entry->ifa_flags & IFF_UP) == 0)
            continue;
        found.push_back({entry->ifa_name, addressIn(entry->ifa_addr),
                         entry->ifa_netmask ? addressIn(entry->ifa_netmask) : 0xFFFFFFFFU});
    }
    ::freeifaddrs(first);
    return found;
}

void raiseSocketLimit() {
    rlimit limit{};
    if (::getrlimit(RLIMIT_NOFILE, &limit) != 0)
        return;
    limit.rlim_cur = limit.rlim_max;
    ::setrlimit(RLIMIT_NOFILE, &limit);
}

} // namespace Simulator::Platform
