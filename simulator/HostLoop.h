#pragma once

#include <chrono>
#include <functional>
#include <memory>

// Asio's own type, so that no user of this header needs its headers.
namespace boost::asio {
class io_context;
}

namespace Simulator {

/// The one thread on which every unit of a host lives.
class HostLoop {
public:
    HostLoop();
    /// Ends the thread; what was still to come is dropped unrun.
    ~HostLoop();
    HostLoop(const HostLoop&) = delete;
    HostLoop& operator=(const HostLoop&) = delete;

    boost::asio::io_context& context();

    /// Runs the task on the thread and waits for it; at once when called there. What it throws is thrown
    /// here.
    void run(const std::function<void()>& task);
    void after(std::chrono::milliseconds delay, std::function<void()> task);

private:
    struct Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace Simulator
