#include "TestAnnouncer.h"

#include "wire/Announcement.h"

#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/multicast.hpp>
#include <boost/asio/ip/udp.hpp>

#include <array>
#include <mutex>
#include <thread>
#include <utility>

namespace Velto::Test {

namespace asio = boost::asio;
using asio::ip::address_v4;
using asio::ip::udp;
using boost::system::error_code;

class TestAnnouncer::Listener {
public:
    explicit Listener(std::uint16_t port)
        : socket(m_context, udp::v4()) {
        socket.set_option(udp::socket::reuse_address(true));
        socket.bind(udp::endpoint(udp::v4(), port));
        socket.set_option(asio::ip::multicast::join_group(asio::ip::make_address_v4(Wire::multicastGroup),
                                                          address_v4::loopback()));
        receive();
        m_thread = std::thread([this] { m_context.run(); });
    }

    ~Listener() {
        m_context.stop();
        m_thread.join();
    }

    std::mutex mutex;
    std::vector<std::string> answers;
    int probes = 0;
    std::string lastProbe;

private:
    asio::io_context m_context{1};

public:
    udp::socket socket;

private:
    void receive() {
        socket.async_receive_from(asio::buffer(m_datagram), m_sender,
                                  [this](error_code error, std::size_t size) {
                                      if (!error)
                                          answer({m_datagram.data(), size});
                                      receive();
                                  });
    }

    void answer(std::string probe) {
        std::vector<std::string> datagrams;
        {
            const std::lock_guard lock(mutex);
            ++probes;
            lastProbe = std::move(probe);
            datagrams = answers;
        }
        error_code ignored;
        for (const std::string& datagram : datagrams)
            socket.send_to(asio::buffer(datagram), m_sender, 0, ignored);
    }

    udp::endpoint m_sender;
    std::array<char, 2048> m_datagram{};
    std::thread m_thread;
};

TestAnnouncer::TestAnnouncer(std::uint16_t port)
    : m_listener(std::make_unique<Listener>(port)) {}

TestAnnouncer::~TestAnnouncer() = default;

std::uint16_t TestAnnouncer::port() const {
    return m_listener->socket.local_endpoint().port();
}

void TestAnnouncer::setAnswers(std::vector<std::string> datagrams) {
    const std::lock_guard lock(m_listener->mutex);
    m_listener->answers = std::move(datagrams);
}

int TestAnnouncer::probesHeard() const {
    const std::lock_guard lock(m_listener->mutex);
    return m_listener->probes;
}

std::string TestAnnouncer::lastProbe() const {
    const std::lock_guard lock(m_listener->mutex);
    return m_listener->lastProbe;
}

} // namespace Velto::Test
