#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace Velto::Wire {

constexpr std::uint16_t discoveryPort = 12741;
constexpr std::uint16_t unitPort = 12740;
constexpr const char* multicastGroup = "239.255.127.41";
constexpr int protocolVersion = 1;
constexpr std::size_t maximumDatagramSize = 1400;
/// More than UDP can carry. Nothing is ever cut off on the way into such a buffer; systems differ too much in
/// how they tell that something was.
constexpr std::size_t receiveBufferSize = 65536;

/// What a unit says of itself: the answer to a probe, and the document at GET /identity.
struct Announcement {
    std::string service;
    int version = protocolVersion;
    std::string uid; ///< 64 lower-case hex digits
    std::string name;
    std::string serial;
    std::string productVendor;
    std::string productName;
    std::string productModel;
    std::uint16_t port = unitPort;
    bool encrypted = true;
};

/// Asks the units of one service to announce themselves.
struct Probe {
    std::string service;
    int version = protocolVersion;
    std::string id; ///< random; a unit that hears the same one twice (on two interfaces) answers once
};

/// One JSON datagram. The name is shortened, at a character's border, when the whole would exceed the limit.
std::string encode(const Announcement& announcement);
std::string encode(const Probe& probe);

/// None for anything that is not a well-formed announcement: over the size limit, not JSON, nested deeper
/// than one level, a member missing or of the wrong type, a port of 0, a uid that is empty or over 128 bytes,
/// text with control characters in uid or over 256 bytes anywhere, a version below 1. Unknown members are
/// ignored.
std::optional<Announcement> decodeAnnouncement(std::string_view datagram);
std::optional<Probe> decodeProbe(std::string_view datagram);

} // namespace Velto::Wire
