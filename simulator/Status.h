#pragma once

#include <cstdint>

namespace Simulator {

/// The `status` of an answer: 0 in a response, anything else in an error.
enum class Status : std::int32_t {
    Ok = 0,
    NotSupported = 1, ///< no such message type
    Malformed = 2,    ///< the header, the body or a member is not what the message needs
    Refused = 3,      ///< well-formed, but the value is out of range or of no use now
    Failed = 4,       ///< the unit could not do it
};

} // namespace Simulator
