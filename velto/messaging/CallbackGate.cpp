#include "messaging/CallbackGate.h"

#include <algorithm>

namespace Velto::Messaging {

CallbackGate::Pass::Pass(CallbackGate& gate)
    : m_gate(gate)
    , m_granted(gate.enter()) {}

CallbackGate::Pass::~Pass() {
    if (m_granted)
        m_gate.leave();
}

void CallbackGate::close() {
    std::unique_lock lock(m_mutex);
    m_closed = true;
    m_left.wait(lock, [this] {
        return std::all_of(m_inside.begin(), m_inside.end(),
                           [](std::thread::id id) { return id == std::this_thread::get_id(); });
    });
}

bool CallbackGate::enter() {
    const std::lock_guard lock(m_mutex);
    if (m_closed)
        return false;
    m_inside.push_back(std::this_thread::get_id());
    return true;
}

void CallbackGate::leave() {
    const std::lock_guard lock(m_mutex);
    m_inside.erase(std::find(m_inside.begin(), m_inside.end(), std::this_thread::get_id()));
    // Under the lock: whoever waits may destroy the gate as soon as it sees the last call gone.
    m_left.notify_all();
}

} // namespace Velto::Messaging
