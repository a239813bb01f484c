#pragma once

#include <mutex>
#include <utility>

namespace Velto::Messaging {

/// What a handler keeps from its last message. Replaced as a whole and read as a whole, on any thread.
template <class T>
class KeptState {
public:
    void replace(T value) {
        const std::lock_guard lock(m_mutex);
        std::swap(m_value, value);
    }

    T snapshot() const {
        const std::lock_guard lock(m_mutex);
        return m_value;
    }

private:
    mutable std::mutex m_mutex;
    T m_value;
};

} // namespace Velto::Messaging
