#include "SimulatorHost.h"

#include "simulator/HostLoop.h"

#include <utility>

namespace Simulator {

SimulatorHost::SimulatorHost(const HostOptions& options)
    : m_loop(std::make_unique<HostLoop>()) {
    if (options.discovery)
        m_loop->run(
            [&] { m_responder = std::make_unique<DiscoveryResponder>(*m_loop, options.discoveryPort); });
}

SimulatorHost::~SimulatorHost() {
    m_loop->run([this] { m_responder.reset(); });
}

std::string SimulatorHost::discoveryProblem() const {
    std::string problem;
    m_loop->run([&] { problem = m_responder ? m_responder->problem() : std::string(); });
    return problem;
}

DiscoveryCounters SimulatorHost::discoveryCounters() const {
    DiscoveryCounters counters;
    m_loop->run([&] { counters = m_responder ? m_responder->counters() : DiscoveryCounters{}; });
    return counters;
}

void SimulatorHost::run(const std::function<void()>& task) const {
    m_loop->run(task);
}

void SimulatorHost::after(std::chrono::milliseconds delay, std::function<void()> task) {
    m_loop->after(delay, std::move(task));
}

} // namespace Simulator
