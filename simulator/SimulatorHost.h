#pragma once

#include "simulator/DiscoveryResponder.h"
#include "velto/wire/Announcement.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>

namespace Simulator {

class HostLoop;

struct HostOptions {
    bool discovery = true;
    std::uint16_t discoveryPort = Velto::Wire::discoveryPort;
};

/// The thread that any number of units share, and the ear for probes to all of them. Outlives its units. May
/// be used from any thread.
class SimulatorHost {
public:
    explicit SimulatorHost(const HostOptions& options = {});
    ~SimulatorHost();
    SimulatorHost(const SimulatorHost&) = delete;
    SimulatorHost& operator=(const SimulatorHost&) = delete;

    /// Why units cannot be discovered, for instance because another program holds the port; empty when they
    /// can, or when discovery is off. Direct connections work all the same.
    std::string discoveryProblem() const;
    DiscoveryCounters discoveryCounters() const;

    /// Runs the task on the host's thread and waits for it; at once when called there.
    void run(const std::function<void()>& task) const;
    /// Runs it there some time later; never once the host is gone.
    void after(std::chrono::milliseconds delay, std::function<void()> task);

private:
    friend class SimulatedUnit;
    std::unique_ptr<HostLoop> m_loop;
    std::unique_ptr<DiscoveryResponder> m_responder;
};

} // namespace Simulator
