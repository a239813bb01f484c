#include "HostLoop.h"

#include <boost/asio/executor_work_guard.hpp>
#include <boost/asio/io_context.hpp>
#include <boost/asio/post.hpp>
#include <boost/asio/steady_timer.hpp>

#include <future>
#include <thread>
#include <utility>

namespace Simulator {

struct HostLoop::Impl {
    boost::asio::io_context context{1};
    boost::asio::executor_work_guard<boost::asio::io_context::executor_type> work{context.get_executor()};
    std::thread thread{[this] { context.run(); }};
};

HostLoop::HostLoop()
    : m_impl(std::make_unique<Impl>()) {}

HostLoop::~HostLoop() {
    m_impl->context.stop();
    m_impl->thread.join();
}

boost::asio::io_context& HostLoop::context() {
    return m_impl->context;
}

void HostLoop::run(const std::function<void()>& task) {
    if (std::this_thread::get_id() == m_impl->thread.get_id()) {
        task();
        return;
    }
    std::packaged_task<void()> packaged(task);
    auto done = packaged.get_future();
    boost::asio::post(m_impl->context, [&packaged] { packaged(); });
    done.get();
}

void HostLoop::after(std::chrono::milliseconds delay, std::function<void()> task) {
    auto timer = std::make_shared<boost::asio::steady_timer>(m_impl->context, delay);
    timer->async_wait([timer, task = std::move(task)](const boost::system::error_code& error) {
        if (!error)
            task();
    });
}

} // namespace Simulator
