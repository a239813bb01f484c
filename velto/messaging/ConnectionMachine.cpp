#include "messaging/ConnectionMachine.h"

#include <utility>

namespace Velto::Messaging {

bool ChosenUnit::isReachedLike(const ChosenUnit& other) const {
    return address == other.address && port == other.port && encrypted == other.encrypted;
}

Actions ConnectionMachine::choose(ChosenUnit unit, bool connectNow, std::chrono::milliseconds timeout) {
    const bool same = m_unit && m_unit->isReachedLike(unit);
    m_unit = std::move(unit);
    m_unitTimeout = timeout;
    if (same && m_state == State::Connected)
        return {Act::ReportConnected{m_generation}};
    if (same && m_state == State::Connecting)
        return connectNow ? Actions{Act::BoundLink{m_generation, bound()}} : Actions{};
    Actions actions = drop();
    if (connectNow)
        actions.emplace_back(open());
    return actions;
}

Actions ConnectionMachine::connect(std::chrono::milliseconds timeout) {
    m_serviceTimeout = timeout.count() > 0 ? timeout : defaultTimeout;
    if (m_state != State::Idle || !m_unit)
        return {};
    return {open()};
}

Actions ConnectionMachine::disconnect() {
    return drop();
}

Actions ConnectionMachine::linkUp(std::uint64_t generation) {
    if (m_state != State::Connecting || generation != m_generation)
        return {};
    m_state = State::Connected;
    return {Act::ReportConnected{m_generation}};
}

Actions ConnectionMachine::linkDown(std::uint64_t generation) {
    if (!pursues(generation))
        return {};
    const bool wasConnected = std::exchange(m_state, State::Idle) == State::Connected;
    return {wasConnected ? Action{Act::ReportLost{}} : Action{Act::ReportFailedAttempt{}}};
}

bool ConnectionMachine::pursues(std::uint64_t generation) const {
    return m_state != State::Idle && generation == m_generation;
}

bool ConnectionMachine::hears(std::uint64_t generation) const {
    return m_state == State::Connected && generation == m_generation;
}

Actions ConnectionMachine::drop() {
    switch (std::exchange(m_state, State::Idle)) {
    case State::Idle:
        return {};
    case State::Connecting:
        return {Act::CloseLink{m_generation}};
    case State::Connected:
        // Told first: somebody may be waiting for it, and the farewell to the peer takes its time.
        return {Act::ReportLost{}, Act::CloseLink{m_generation}};
    }
    return {};
}

Act::OpenLink ConnectionMachine::open() {
    m_state = State::Connecting;
    return {++m_generation, *m_unit, bound()};
}

std::chrono::milliseconds ConnectionMachine::bound() const {
    return m_unitTimeout.count() > 0 ? m_unitTimeout : m_serviceTimeout;
}

} // namespace Velto::Messaging
