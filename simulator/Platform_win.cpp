#include "Platform.h"

// The last declares its functions only after the first.
// clang-format off
#include <winsock2.h>
#include <ws2tcpip.h>
#include <iphlpapi.h>
// clang-format on

#include <cstddef>

namespace Simulator::Platform {

const bool listenersReuseAddress = false;

namespace {

std::string utf8(const wchar_t* text) {
    const int size = WideCharToMultiByte(CP_UTF8, 0, text, -1, nullptr, 0, nullptr, nullptr);
    if (size <= 1)
        return {};
    std::string converted(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text, -1, converted.data(), size, nullptr, nullptr);
    converted.pop_back();
    return converted;
}

/// The loopback interface under the name that it is restricted to elsewhere too; its own is translated.
std::string nameOf(const IP_ADAPTER_ADDRESSES& adapter) {
    return adapter.IfType == IF_TYPE_SOFTWARE_LOOPBACK ? "lo" : utf8(adapter.FriendlyName);
}

std::uint32_t netmaskOf(unsigned int prefixLength) {
    return prefixLength == 0 ? 0 : 0xFFFFFFFFU << (32 - prefixLength);
}

} // namespace

std::vector<Interface> interfaces() {
    constexpr ULONG flags = GAA_FLAG_SKIP_ANYCAST | GAA_FLAG_SKIP_MULTICAST | GAA_FLAG_SKIP_DNS_SERVER;
    ULONG size = 16 * 1024;
    std::vector<std::byte> memory(size);
    const auto adapters = [&memory] { return reinterpret_cast<IP_ADAPTER_ADDRESSES*>(memory.data()); };
    ULONG result = GetAdaptersAddresses(AF_INET, flags, nullptr, adapters(), &size);
    if (result == ERROR_BUFFER_OVERFLOW) {
        memory.resize(size);
        result = GetAdaptersAddresses(AF_INET, flags, nullptr, adapters(), &size);
    }
    std::vector<Interface> found;
    if (result != NO_ERROR)
        return found;
    for (const auto* adapter = adapters(); adapter; adapter = adapter->Next) {
        if (adapter->OperStatus != IfOperStatusUp)
            continue;
        for (const auto* entry = adapter->FirstUnicastAddress; entry; entry = entry->Next) {
            if (entry->Address.lpSockaddr->sa_family != AF_INET)
                continue;
            const auto* const address = reinterpret_cast<const sockaddr_in*>(entry->Address.lpSockaddr);
            found.push_back(
                {nameOf(*adapter), ntohl(address->sin_addr.s_addr), netmaskOf(entry->OnLinkPrefixLength)});
        }
    }
    return found;
}

// Windows sets no such limit.
void raiseSocketLimit() {}

} // namespace Simulator::Platform
