#include "messaging/NetworkInterfaces.h"

// The system's headers build on one another in this order.
// clang-format off
#include <winsock2.h>
#include <ws2tcpip.h>
#include <iphlpapi.h>
// clang-format on

#include <cstdint>

namespace Velto::Messaging {

namespace {

constexpr ULONG wantedFlags = GAA_FLAG_SKIP_ANYCAST | GAA_FLAG_SKIP_MULTICAST | GAA_FLAG_SKIP_DNS_SERVER;

std::string textOf(in_addr address) {
    char text[INET_ADDRSTRLEN] = {};
    return inet_ntop(AF_INET, &address, text, sizeof text) ? text : "";
}

std::string utf8(const wchar_t* wide) {
    const int size = WideCharToMultiByte(CP_UTF8, 0, wide, -1, nullptr, 0, nullptr, nullptr);
    if (size <= 1)
        return {};
    std::string text(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(CP_UTF8, 0, wide, -1, text.data(), size, nullptr, nullptr);
    text.pop_back();
    return text;
}

/// The address with every host bit set; a net of one or two hosts has none.
std::string broadcastOf(in_addr address, unsigned prefixLength) {
    if (prefixLength == 0 || prefixLength > 30)
        return {};
    in_addr broadcast = address;
    broadcast.s_addr |= htonl(0xFFFFFFFFU >> prefixLength);
    return textOf(broadcast);
}

/// The adapters' list lies in `storage`; none when the system does not tell.
const IP_ADAPTER_ADDRESSES* readAdapters(std::vector<std::uint64_t>& storage) {
    // The list may grow between two calls: a few tries, as the system's documentation recommends.
    ULONG size = 16 * 1024;
    for (int attempt = 0; attempt < 4; ++attempt) {
        storage.resize(size / sizeof(std::uint64_t) + 1);
        auto* const adapters = reinterpret_cast<IP_ADAPTER_ADDRESSES*>(storage.data());
        const ULONG result = GetAdaptersAddresses(AF_INET, wantedFlags, nullptr, adapters, &size);
        if (result == ERROR_SUCCESS)
            return adapters;
        if (result != ERROR_BUFFER_OVERFLOW)
            return nullptr;
    }
    return nullptr;
}

} // namespace

std::vector<NetworkInterface> listNetworkInterfaces() {
    std::vector<std::uint64_t> storage;
    std::vector<NetworkInterface> interfaces;
    for (auto adapter = readAdapters(storage); adapter; adapter = adapter->Next) {
        if (adapter->OperStatus != IfOperStatusUp)
            continue;
        const bool loopback = adapter->IfType == IF_TYPE_SOFTWARE_LOOPBACK;
        for (auto unicast = adapter->FirstUnicastAddress; unicast; unicast = unicast->Next) {
            const auto* const address = reinterpret_cast<const sockaddr_in*>(unicast->Address.lpSockaddr);
            if (address->sin_family != AF_INET)
                continue;
            interfaces.push_back({utf8(adapter->FriendlyName), textOf(address->sin_addr),
                                  loopback ? "" : broadcastOf(address->sin_addr, unicast->OnLinkPrefixLength),
                                  loopback});
        }
    }
    return interfaces;
}

} // namespace Velto::Messaging
