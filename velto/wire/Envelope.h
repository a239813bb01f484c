#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace Velto::Wire {

/// What kind of message a frame carries.
enum class Kind { Request, Response, Notification, Error };

/// The header of one frame. See docs/protocol.md.
struct Header {
    Kind kind = Kind::Request;
    std::string type;
    std::uint32_t number = 0;
    std::string text;
    std::int32_t status = 0; ///< left out by requests and notifications when 0
};

constexpr std::size_t maximumHeaderSize = std::size_t{4} * 1024;
constexpr std::size_t maximumFrameSize = std::size_t{16} * 1024 * 1024;

/// One text frame: the header as compact JSON, a line feed, then the body verbatim (or nothing).
/// None when the header (with its line feed) or the frame would exceed its limit, or the type or the text is
/// not UTF-8.
std::optional<std::string> encodeFrame(const Header& header, std::string_view body);

/// A frame taken apart; `body` points into the frame that was decoded.
struct DecodedFrame {
    Header header;
    std::string_view body;
};

enum class FrameError {
    None,
    NoHeader,       ///< no line feed ends a header
    HeaderTooLarge, ///< no line feed within the first 4 KiB
    FrameTooLarge,
    HeaderNotJson, ///< not one JSON object
    BadHeader,     ///< `kind` or `type` missing, or a member of the wrong type or out of range
};

/// Takes a frame apart; never throws, looks at no byte of the body. Unknown header members are ignored.
FrameError decodeFrame(std::string_view frame, DecodedFrame& decoded);

/// For log lines.
const char* describe(FrameError error);

} // namespace Velto::Wire
