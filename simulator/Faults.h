#pragma once

#include "velto/wire/Envelope.h"

#include <chrono>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace Simulator {

/// What goes wrong before a connection is up.
enum class ConnectionFault {
    None,
    Refuse,          ///< the port is closed; connections that are up stay
    HangAfterAccept, ///< not a byte is read or written
    HangInTls,     ///< the handshake stops within the unit's first record; a plain unit hangs after accepting
    HangInUpgrade, ///< the request is read and never answered, be it an upgrade or GET /identity
};

/// What goes wrong with an answer.
enum class AnswerFault {
    None,
    Drop,           ///< it never comes
    StallMidFrame,  ///< half of the frame, then silence on this connection for good, no pong either
    Garble,         ///< the header is not JSON
    TruncateBody,   ///< a whole frame whose body ends in the middle
    WrongTypes,     ///< every member of the body holds another kind of value than it should
    OtherMessage,   ///< the body comes under the name of another message
    Duplicate,      ///< it comes twice
    Error,          ///< an error of status 4 comes instead, though the unit did what was asked
    OversizeFrame,  ///< one byte over the limit
    OversizeHeader, ///< a header over the limit
    Close,          ///< instead of it the connection is closed with code 1001
    Reset,          ///< instead of it the connection is reset
};

/// What a unit does wrong on purpose. All can be switched while it runs and go together.
struct Faults {
    ConnectionFault connection = ConnectionFault::None;
    AnswerFault answer = AnswerFault::None;
    std::set<std::string> types;        ///< whose answers the fault and the delay meet; empty: all
    std::chrono::milliseconds delay{0}; ///< before each of these answers; pings are answered all the same
    /// Between two bytes of every answer; 0: all at once. While an answer trickles nothing is read.
    std::chrono::milliseconds trickle{0};
    bool wrongKey = false; ///< connections from now on are shown another key than the one announced
};

/// How a frame leaves the unit.
enum class Manner { Whole, HalfThenSilence, Trickle, Close, Reset };

/// A frame on its way out.
struct Outgoing {
    std::string frame;
    Manner manner = Manner::Whole;
    std::chrono::milliseconds delay{0};
    std::chrono::milliseconds interval{0}; ///< of a trickle
};

/// What goes out in place of the answer: one frame, none when it is dropped, two when it comes twice.
std::vector<Outgoing> spoil(const Faults& faults, const Velto::Wire::Header& header, std::string_view body);

} // namespace Simulator
