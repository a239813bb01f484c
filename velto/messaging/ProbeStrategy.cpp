#include "messaging/ProbeStrategy.h"

#include "core/Areas.h"
#include "messaging/NetworkInterfaces.h"
#include "wire/Announcement.h"

#include <boost/asio/buffer.hpp>
#include <boost/asio/error.hpp>
#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/multicast.hpp>
#include <boost/asio/ip/udp.hpp>
#include <boost/asio/steady_timer.hpp>
#include <spdlog/logger.h>

#include <algorithm>
#include <array>
#include <random>
#include <string_view>
#include <utility>

namespace Velto::Messaging {

namespace {

using boost::asio::ip::address_v4;
using boost::asio::ip::udp;
using boost::system::error_code;
using Clock = std::chrono::steady_clock;

/// A unit may miss two probes in a row: an entry holds for three periods.
constexpr int periodsHeld = 3;
/// How often the datagrams that were dropped are summed up in the log, at most.
constexpr std::chrono::minutes summaryPeriod{1};

std::string randomId() {
    std::random_device source;
    std::string id;
    for (int i = 0; i < 4; ++i)
        id += fmt::format("{:08x}", source());
    return id;
}

/// Errors that concern one datagram, not the socket: it was too long, or one of ours found nobody listening.
bool concernsOneDatagram(error_code error) {
    return error == boost::asio::error::message_size || error == boost::asio::error::connection_reset ||
           error == boost::asio::error::connection_refused;
}

class ProbeStrategy final : public DiscoveryStrategy, public std::enable_shared_from_this<ProbeStrategy> {
public:
    ProbeStrategy(std::uint16_t port, std::chrono::milliseconds period,
                  const DiscoverySurroundings& surroundings)
        : m_port(port)
        , m_period(period)
        , m_thread(surroundings.thread)
        , m_discoverer(surroundings.discoverer)
        , m_gate(surroundings.gate)
        , m_service(surroundings.service)
        , m_timer(surroundings.thread->context())
        , m_socket(surroundings.thread->context()) {}

    void start() override {
        post([](ProbeStrategy& self) {
            if (std::exchange(self.m_started, true))
                return;
            self.probe();
        });
    }

    void stop() override {
        post([](ProbeStrategy& self) {
            self.m_started = true;
            self.m_stopped = true;
            self.m_timer.cancel();
            self.closeSocket();
        });
    }

private:
    template <class Work>
    void post(Work work) {
        if (const auto thread = m_thread.lock())
            thread->post([self = shared_from_this(), work] { work(*self); });
    }

    void probe() {
        if (m_stopped)
            return;
        m_discoverer->removeExpiredItems();
        // Listed afresh each time: networks come and go with sleep, roaming and tunnels.
        const auto all = listNetworkInterfaces();
        m_ownAddresses.clear();
        for (const NetworkInterface& own : all)
            m_ownAddresses.push_back(own.address);
        if (ensureSocket())
            sendProbes(selectInterfaces(all, interfaceRestriction()));
        summariseDropped();
        m_timer.expires_after(m_period);
        m_timer.async_wait([self = shared_from_this()](error_code error) {
            if (!error)
                self->probe();
        });
    }

    bool ensureSocket() {
        if (m_socket.is_open())
            return true;
        error_code error;
        m_socket.open(udp::v4(), error);
        if (!error)
            m_socket.set_option(boost::asio::socket_base::broadcast(true), error);
        if (!error)
            m_socket.bind(udp::endpoint(udp::v4(), 0), error);
        if (!error)
            m_socket.non_blocking(true, error);
        if (error) {
            tellTrouble(error.message());
            closeSocket();
            return false;
        }
        receive();
        return true;
    }

    void sendProbes(const std::vector<NetworkInterface>& interfaces) {
        const std::string datagram = Wire::encode(Wire::Probe{m_service, Wire::protocolVersion, randomId()});
        const auto group = boost::asio::ip::make_address_v4(Wire::multicastGroup);
        int sent = 0;
        error_code last;
        for (const NetworkInterface& through : interfaces) {
            const auto address = boost::asio::ip::make_address_v4(through.address);
            error_code error;
            m_socket.set_option(boost::asio::ip::multicast::outbound_interface(address), error);
            if (!error)
                error = send(datagram, group);
            sent += error ? 0 : 1;
            last = error ? error : last;
            if (!through.broadcast.empty())
                sent += send(datagram, boost::asio::ip::make_address_v4(through.broadcast)) ? 0 : 1;
            if (through.loopback)
                sent += send(datagram, address_v4::loopback()) ? 0 : 1;
        }
        if (sent > 0) {
            m_troubleTold = false;
            return;
        }
        tellTrouble(interfaces.empty() ? "no network interface is up" : last.message());
        closeSocket();
    }

    error_code send(const std::string& datagram, const address_v4& address) {
        error_code error;
        m_socket.send_to(boost::asio::buffer(datagram), udp::endpoint(address, m_port), 0, error);
        return error;
    }

    void receive() {
        m_socket.async_receive_from(
            boost::asio::buffer(m_datagram), m_sender,
            [self = shared_from_this(), socketNumber = m_socketNumber](error_code error, std::size_t size) {
                self->received(error, size, socketNumber);
            });
    }

    void received(error_code error, std::size_t size, std::uint64_t socketNumber) {
        if (socketNumber != m_socketNumber)
            return;
        if (error && !concernsOneDatagram(error)) {
            tellTrouble(error.message());
            closeSocket();
            return;
        }
        if (error || !take({m_datagram.data(), size}))
            ++m_dropped;
        receive();
    }

    /// False when the datagram is nothing for us.
    bool take(std::string_view datagram) {
        const auto announcement = Wire::decodeAnnouncement(datagram);
        if (!announcement || announcement->service != m_service ||
            announcement->version != Wire::protocolVersion)
            return false;
        const auto address = m_sender.address();
        const bool local = address.is_loopback() ||
                           std::count(m_ownAddresses.begin(), m_ownAddresses.end(), address.to_string()) > 0;
        const CallbackGate::Pass pass(*m_gate);
        return pass && m_discoverer->announce({announcement->name, address.to_string(), announcement->serial,
                                               announcement->uid, announcement->productVendor,
                                               announcement->productName, announcement->productModel, local,
                                               announcement->port, announcement->encrypted},
                                              periodsHeld * m_period);
    }

    void closeSocket() {
        ++m_socketNumber;
        error_code ignored;
        m_socket.close(ignored);
    }

    /// Once until it goes well again; the next probe tries anew.
    void tellTrouble(const std::string& what) {
        if (!std::exchange(m_troubleTold, true))
            detail::areaLogger(detail::Area::QAutoDiscovery)
                ->warn("Discovery on UDP port {} finds no unit for now: {}", m_port, what);
    }

    void summariseDropped() {
        const auto now = Clock::now();
        if (m_dropped == m_droppedTold || now < m_nextSummary)
            return;
        m_nextSummary = now + summaryPeriod;
        detail::areaLogger(detail::Area::QAutoDiscovery)
            ->info("{} datagrams were no announcement of a {} unit and were dropped",
                   m_dropped - std::exchange(m_droppedTold, m_dropped), m_service);
    }

    const std::uint16_t m_port;
    const std::chrono::milliseconds m_period;
    const std::weak_ptr<IoThread> m_thread;
    const std::shared_ptr<orvex::Messaging::Discoverer> m_discoverer;
    const std::shared_ptr<CallbackGate> m_gate;
    const std::string m_service;
    bool m_started = false;
    bool m_stopped = false;
    bool m_troubleTold = false;
    boost::asio::steady_timer m_timer;
    udp::socket m_socket;
    std::uint64_t m_socketNumber = 0; ///< tells an answer of a socket that was closed since
    udp::endpoint m_sender;
    std::array<char, Wire::maximumDatagramSize + 1> m_datagram{};
    std::vector<std::string> m_ownAddresses;
    std::uint64_t m_dropped = 0;
    std::uint64_t m_droppedTold = 0;
    Clock::time_point m_nextSummary;
};

} // namespace

std::shared_ptr<DiscoveryStrategy> makeProbeStrategy(const std::string& parameter,
                                                     std::chrono::milliseconds period,
                                                     const DiscoverySurroundings& surroundings) {
    const std::uint16_t port = parsePort(parameter);
    if (port == 0)
        return nullptr;
    return std::make_shared<ProbeStrategy>(port, period, surroundings);
}

} // namespace Velto::Messaging
