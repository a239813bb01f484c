#include "messaging/ProbeStrategy.h"

#include "core/Areas.h"
#include "messaging/NetworkInterfaces.h"
#include "messaging/ProbeSocket.h"
#include "wire/Announcement.h"

#include <boost/asio/error.hpp>
#include <boost/asio/ip/address_v4.hpp>
#include <boost/asio/steady_timer.hpp>
#include <spdlog/logger.h>

#include <algorithm>
#include <map>
#include <random>
#include <set>
#include <string_view>
#include <utility>

namespace Velto::Messaging {

namespace {

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
        , m_timer(surroundings.thread->context()) {}

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
            for (const auto& [address, socket] : self.m_sockets)
                socket->close();
            self.m_sockets.clear();
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
            m_ownAddresses.insert(own.address);
        const auto usable = selectInterfaces(all, interfaceRestriction());
        dropSocketsWithout(usable);
        sendProbes(usable);
        summariseDropped();
        m_timer.expires_after(m_period);
        m_timer.async_wait([self = shared_from_this()](error_code error) {
            if (!error)
                self->probe();
        });
    }

    void dropSocketsWithout(const std::vector<NetworkInterface>& usable) {
        for (auto known = m_sockets.begin(); known != m_sockets.end();) {
            const bool gone = std::none_of(usable.begin(), usable.end(), [&](const NetworkInterface& one) {
                return one.address == known->first;
            });
            if (gone || !known->second->isOpen()) {
                known->second->close();
                known = m_sockets.erase(known);
            } else {
                ++known;
            }
        }
    }

    void sendProbes(const std::vector<NetworkInterface>& interfaces) {
        const std::string datagram = Wire::encode(Wire::Probe{m_service, Wire::protocolVersion, randomId()});
        bool sent = false;
        std::string problem = "no network interface is up";
        for (const NetworkInterface& through : interfaces) {
            const auto error = sendProbe(through, datagram);
            sent = sent || !error;
            if (error)
                problem = error.message();
        }
        if (sent)
            m_troubleTold = false;
        else
            tellTrouble(problem);
    }

    error_code sendProbe(const NetworkInterface& through, const std::string& datagram) {
        auto& socket = m_sockets[through.address];
        if (!socket) {
            const auto thread = m_thread.lock();
            if (!thread)
                return boost::asio::error::operation_aborted;
            socket = std::make_shared<ProbeSocket>(
                thread->context(), through,
                [weak = weak_from_this()](std::string_view received, const std::string& from) {
                    if (const auto self = weak.lock())
                        self->heard(received, from);
                });
        }
        error_code error;
        if (!socket->isOpen())
            error = socket->open();
        if (!error)
            error = socket->probe(datagram, m_port);
        // A new one next time.
        if (error)
            socket->close();
        return error;
    }

    void heard(std::string_view datagram, const std::string& from) {
        if (!take(datagram, from))
            ++m_dropped;
    }

    /// False when the datagram is nothing for us.
    bool take(std::string_view datagram, const std::string& from) {
        const auto announcement = Wire::decodeAnnouncement(datagram);
        if (!announcement || announcement->service != m_service ||
            announcement->version != Wire::protocolVersion)
            return false;
        const bool local =
            boost::asio::ip::make_address_v4(from).is_loopback() || m_ownAddresses.count(from) != 0;
        const CallbackGate::Pass pass(*m_gate);
        return pass && m_discoverer->announce({announcement->name, from, announcement->serial,
                                               announcement->uid, announcement->productVendor,
                                               announcement->productName, announcement->productModel, local,
                                               announcement->port, announcement->encrypted},
                                              periodsHeld * m_period);
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
    std::map<std::string, std::shared_ptr<ProbeSocket>> m_sockets; ///< by interface address
    std::set<std::string> m_ownAddresses;
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
