#pragma once

#include <functional>
#include <memory>
#include <thread>

namespace boost::asio {
class io_context;
}

namespace Velto::Messaging {

/// A thread that serves sockets and timers. It can be stopped and started again; work posted while it stands
/// waits. Any thread, but for `start` and `stop`, which belong to the main thread.
class IoThread {
public:
    IoThread();
    ~IoThread();
    IoThread(const IoThread&) = delete;
    IoThread& operator=(const IoThread&) = delete;

    /// Throws std::system_error when the system refuses a thread. Nothing happens when it runs already.
    void start();

    /// Runs what was posted before, then ends the thread. Returns when it has ended.
    void stop();

    void post(std::function<void()> work);

    boost::asio::io_context& context() { return *m_context; }

private:
    void run();

    std::unique_ptr<boost::asio::io_context> m_context;
    std::thread m_thread;
};

/// The two threads of this process. They exist from their first use on, whatever becomes of the components,
/// so that a messenger may come before these or outlive them.
std::shared_ptr<IoThread> communicationThread();
std::shared_ptr<IoThread> discoveryThread();

} // namespace Velto::Messaging
