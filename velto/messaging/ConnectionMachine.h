#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace Velto::Messaging {

/// The unit a messenger was told to talk to.
struct ChosenUnit {
    std::string address;
    std::string name;
    std::uint16_t port = 0;
    bool encrypted = false;

    /// Whether a connection to the other is a connection to this one; the name is for people.
    bool isReachedLike(const ChosenUnit& other) const;
};

/// What the machine wants done, in the order given.
namespace Act {
struct OpenLink {
    std::uint64_t generation = 0;
    ChosenUnit unit;
    std::chrono::milliseconds timeout{0};
};
/// Bounds the attempt under way anew, counted from now.
struct BoundLink {
    std::uint64_t generation = 0;
    std::chrono::milliseconds timeout{0};
};
struct CloseLink {
    std::uint64_t generation = 0;
};
struct ReportConnected {
    std::uint64_t generation = 0;
};
struct ReportLost {};
struct ReportFailedAttempt {};
} // namespace Act

using Action = std::variant<Act::OpenLink, Act::BoundLink, Act::CloseLink, Act::ReportConnected,
                            Act::ReportLost, Act::ReportFailedAttempt>;
using Actions = std::vector<Action>;

/// All decisions about a messenger's one connection: events go in, actions come out. Touches no socket, no
/// clock and no thread; its owner guards it. Each attempt has a generation of its own, so that whatever a
/// link says after it was given up is recognised and ignored.
class ConnectionMachine {
public:
    /// Bounds an attempt when nobody named a time.
    static constexpr std::chrono::milliseconds defaultTimeout{3000};

    Actions choose(ChosenUnit unit, bool connectNow, std::chrono::milliseconds timeout);
    Actions connect(std::chrono::milliseconds timeout);
    Actions disconnect();
    Actions linkUp(std::uint64_t generation);
    Actions linkDown(std::uint64_t generation);

    bool isConnected() const { return m_state == State::Connected; }
    /// Whether that attempt, or the connection that came of it, is still wanted.
    bool pursues(std::uint64_t generation) const;
    /// Whether what the link of that generation receives is to be heard.
    bool hears(std::uint64_t generation) const;

private:
    enum class State { Idle, Connecting, Connected };

    Actions drop();
    Act::OpenLink open();
    std::chrono::milliseconds bound() const;

    State m_state = State::Idle;
    std::uint64_t m_generation = 0;
    std::optional<ChosenUnit> m_unit;
    std::chrono::milliseconds m_unitTimeout{0}; ///< 0: the service's
    std::chrono::milliseconds m_serviceTimeout = defaultTimeout;
};

} // namespace Velto::Messaging
