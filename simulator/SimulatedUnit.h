#pragma once

#include "simulator/Faults.h"
#include "simulator/UnitOptions.h"
#include "simulator/UnitState.h"
#include "velto/wire/Announcement.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>

namespace Simulator {

class SimulatorHost;

/// What a unit has seen since it was made.
struct UnitCounters {
    std::map<std::string, std::uint64_t> requests; ///< well-formed requests by message type
    std::uint64_t malformed = 0;                   ///< frames that could not be read
    std::uint64_t connections = 0;                 ///< WebSocket connections that came up
    std::uint64_t identityRequests = 0;            ///< GET /identity
    std::uint64_t announcements = 0;               ///< answers to probes
    std::uint64_t bytesReceived = 0;               ///< of frames, without what carries them
    std::uint64_t bytesSent = 0;

    std::uint64_t requestsOf(const std::string& type) const {
        const auto found = requests.find(type);
        return found == requests.end() ? 0 : found->second;
    }
};

/// One motion-seat controller: its key, its state, its port. Lives on its host's thread; every operation may
/// be called from any thread and returns when it is done.
class SimulatedUnit {
public:
    /// Not yet started. Throws std::invalid_argument for options that `completed` refuses and
    /// std::runtime_error when the key cannot be kept.
    SimulatedUnit(SimulatorHost& host, const UnitOptions& options);
    ~SimulatedUnit();
    SimulatedUnit(const SimulatedUnit&) = delete;
    SimulatedUnit& operator=(const SimulatedUnit&) = delete;

    /// Opens the port and answers probes; nothing when it runs already. The port is the same at every start.
    /// Throws std::runtime_error when the port is taken.
    void start();
    /// As if switched off: the port is closed, connections end without a word, probes go unanswered.
    void stop();
    bool isRunning() const;

    const UnitOptions& options() const; ///< completed
    const std::string& uid() const;
    std::uint16_t port() const;  ///< 0 before the first start when any free one was asked for
    std::string address() const; ///< now; that of the options until it changes networks
    Velto::Wire::Announcement announcement() const;

    /// As if renamed by another client: all clients are told. Throws std::invalid_argument for a name the
    /// unit would refuse.
    void rename(const std::string& name);
    UnitState state() const;
    /// Lets `change` at the state, on the host's thread. Nothing follows by itself but what it puts into
    /// `steps` and `notifications`.
    void changeState(const std::function<void(UnitState&)>& change);
    /// Sends a notification nobody asked for to every client; returns to how many.
    std::size_t push(const std::string& type, const std::string& body);
    /// Closes every connection with code 1001; the unit keeps running.
    void closeConnections();
    std::size_t clients() const;

    void setFaults(const Faults& faults);
    Faults faults() const;
    UnitCounters counters() const;

    /// Lets `ear` hear every frame as it comes in, before the unit acts on it, on the host's thread; none for
    /// nobody.
    void setFrameListener(std::function<void(std::string_view frame)> ear);

private:
    class Core;
    SimulatorHost& m_host;
    std::shared_ptr<Core> m_core;
};

} // namespace Simulator
