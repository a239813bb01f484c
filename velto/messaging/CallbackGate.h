#pragma once

#include <condition_variable>
#include <mutex>
#include <thread>
#include <vector>

namespace Velto::Messaging {

/// Every call out to the program passes through here, so that a messenger's end can wait for those under way
/// and keep out those that would follow. Any thread.
class CallbackGate {
public:
    /// The right to make one call; false when the gate is closed. Lives as long as the call.
    class Pass {
    public:
        explicit Pass(CallbackGate& gate);
        ~Pass();
        Pass(const Pass&) = delete;
        Pass& operator=(const Pass&) = delete;
        explicit operator bool() const { return m_granted; }

    private:
        CallbackGate& m_gate;
        bool m_granted;
    };

    /// Returns when no call is under way any more; none is let through from now on. A call that the caller
    /// itself is inside of is not waited for.
    void close();

private:
    bool enter();
    void leave();

    std::mutex m_mutex;
    std::condition_variable m_left;
    std::vector<std::thread::id> m_inside;
    bool m_closed = false;
};

} // namespace Velto::Messaging
