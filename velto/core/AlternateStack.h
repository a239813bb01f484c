#pragma once

#include <cstddef>

namespace Velto::detail {

/// Gives the calling thread a stack of its own for crash handling, so that even an overflow of its ordinary
/// stack is reported. Make one at the start of a thread's function; without it only an overflow goes
/// unreported. Does nothing where the system has other means.
class AlternateStack {
public:
    AlternateStack();
    ~AlternateStack();
    AlternateStack(const AlternateStack&) = delete;
    AlternateStack& operator=(const AlternateStack&) = delete;

private:
    void* m_memory = nullptr;
    void* m_previous = nullptr;
    std::size_t m_previousSize = 0;
};

} // namespace Velto::detail
