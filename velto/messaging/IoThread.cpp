#include "messaging/IoThread.h"

#include "core/AlternateStack.h"
#include "core/Areas.h"

#include <boost/asio/executor_work_guard.hpp>
#include <boost/asio/io_context.hpp>
#include <boost/asio/post.hpp>
#include <spdlog/logger.h>

#include <exception>
#include <utility>

namespace Velto::Messaging {

IoThread::IoThread()
    : m_context(std::make_unique<boost::asio::io_context>(1)) {}

IoThread::~IoThread() {
    if (m_thread.get_id() == std::this_thread::get_id()) {
        m_thread.detach();
        return;
    }
    stop();
}

void IoThread::start() {
    if (m_thread.joinable())
        return;
    m_context->restart();
    m_thread = std::thread([this] { run(); });
}

void IoThread::stop() {
    if (!m_thread.joinable())
        return;
    post([this] { m_context->stop(); });
    m_thread.join();
}

void IoThread::post(std::function<void()> work) {
    boost::asio::post(*m_context, std::move(work));
}

void IoThread::run() {
    const detail::AlternateStack stackForCrashes;
    const auto keepRunning = boost::asio::make_work_guard(*m_context);
    while (!m_context->stopped()) {
        try {
            m_context->run();
        } catch (const std::exception& e) {
            // One connection's trouble (memory, mostly) must not end the service of all others.
            detail::areaLogger(detail::Area::Threading)->error("Work on an I/O thread failed: {}", e.what());
        }
    }
}

std::shared_ptr<IoThread> communicationThread() {
    static const auto thread = std::make_shared<IoThread>();
    return thread;
}

std::shared_ptr<IoThread> discoveryThread() {
    static const auto thread = std::make_shared<IoThread>();
    return thread;
}

} // namespace Velto::Messaging
