#include "messaging/DirectStrategy.h"

#include "core/Areas.h"
#include "messaging/IdentityRequest.h"
#include "messaging/NetworkInterfaces.h"

#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/address.hpp>
#include <boost/asio/steady_timer.hpp>
#include <spdlog/logger.h>

#include <algorithm>
#include <optional>
#include <utility>

namespace Velto::Messaging {

namespace {

using boost::system::error_code;
using Clock = std::chrono::steady_clock;

/// Bounds one request: as long as a connection attempt.
constexpr std::chrono::milliseconds requestTimeout{3000};
/// A unit that is listed is asked again this often, in periods, so that a new name shows.
constexpr int periodsBetweenRefreshes = 20;
/// Well above the time between two refreshes: a few may fail.
constexpr int periodsHeld = 5 * periodsBetweenRefreshes;

std::optional<Peer> parsePeer(const std::string& parameter) {
    // The host stands between the first and the last separator; an IPv6 address holds none.
    const auto first = parameter.find(';');
    const auto last = parameter.rfind(';');
    if (first == std::string::npos || first == last)
        return std::nullopt;
    const std::string mode = parameter.substr(0, first);
    Peer peer;
    peer.host = parameter.substr(first + 1, last - first - 1);
    peer.port = parsePort(parameter.substr(last + 1));
    peer.encrypted = mode == "encrypted";
    if ((!peer.encrypted && mode != "plain") || peer.host.empty() || peer.port == 0)
        return std::nullopt;
    return peer;
}

bool isOwnAddress(const std::string& address) {
    error_code notAnAddress;
    if (boost::asio::ip::make_address(address, notAnAddress).is_loopback() && !notAnAddress)
        return true;
    const auto own = listNetworkInterfaces();
    return std::any_of(own.begin(), own.end(),
                       [&](const NetworkInterface& candidate) { return candidate.address == address; });
}

class DirectStrategy final : public DiscoveryStrategy, public std::enable_shared_from_this<DirectStrategy> {
public:
    DirectStrategy(Peer peer, std::chrono::milliseconds period, const DiscoverySurroundings& surroundings)
        : m_peer(std::move(peer))
        , m_period(period)
        , m_thread(surroundings.thread)
        , m_discoverer(surroundings.discoverer)
        , m_gate(surroundings.gate)
        , m_service(surroundings.service)
        , m_timer(surroundings.thread->context()) {}

    void start() override {
        post([](DirectStrategy& self) {
            if (!std::exchange(self.m_started, true))
                self.beat();
        });
    }

    void stop() override {
        post([](DirectStrategy& self) {
            self.m_started = true;
            self.m_stopped = true;
            self.m_timer.cancel();
        });
    }

private:
    template <class Work>
    void post(Work work) {
        if (const auto thread = m_thread.lock())
            thread->post([self = shared_from_this(), work] { work(*self); });
    }

    void beat() {
        if (m_stopped)
            return;
        m_discoverer->removeExpiredItems();
        if (!m_asking && isWanted())
            ask();
        m_timer.expires_after(m_period);
        m_timer.async_wait([self = shared_from_this()](error_code error) {
            if (!error)
                self->beat();
        });
    }

    bool isWanted() const {
        return m_uid.empty() || !m_discoverer->holds(m_uid) || Clock::now() >= m_nextRefresh;
    }

    void ask() {
        const auto thread = m_thread.lock();
        if (!thread)
            return;
        m_asking = true;
        Peer peer = m_peer;
        peer.expectedUid = m_discoverer->expectedUid(peer.host, peer.port);
        requestIdentity(thread, std::move(peer), requestTimeout,
                        [self = shared_from_this()](const IdentityAnswer& answer) { self->heard(answer); });
    }

    void heard(const IdentityAnswer& answer) {
        m_asking = false;
        if (m_stopped)
            return;
        if (!answer.announcement) {
            tellTrouble(answer.problem);
            return;
        }
        if (answer.announcement->service != m_service) {
            tellTrouble("it is no " + m_service + " unit");
            return;
        }
        m_troubleTold = false;
        announce(answer);
    }

    void announce(const IdentityAnswer& answer) {
        const CallbackGate::Pass pass(*m_gate);
        if (!pass)
            return;
        const Wire::Announcement& unit = *answer.announcement;
        m_uid = unit.uid;
        m_nextRefresh = Clock::now() + periodsBetweenRefreshes * m_period;
        // Address, port and encryption are those that were just seen to work from here.
        m_discoverer->announce({unit.name, m_peer.host, unit.serial, unit.uid, unit.productVendor,
                                unit.productName, unit.productModel, isOwnAddress(answer.address),
                                m_peer.port, m_peer.encrypted},
                               periodsHeld * m_period);
    }

    /// Once until it goes well again: the unit may simply be switched off.
    void tellTrouble(const std::string& what) {
        if (!std::exchange(m_troubleTold, true))
            detail::areaLogger(detail::Area::QAutoDiscovery)
                ->warn("The unit at {} port {} does not tell who it is: {}", m_peer.host, m_peer.port, what);
    }

    const Peer m_peer;
    const std::chrono::milliseconds m_period;
    const std::weak_ptr<IoThread> m_thread;
    const std::shared_ptr<orvex::Messaging::Discoverer> m_discoverer;
    const std::shared_ptr<CallbackGate> m_gate;
    const std::string m_service;
    bool m_started = false;
    bool m_stopped = false;
    bool m_asking = false;
    bool m_troubleTold = false;
    std::string m_uid;
    Clock::time_point m_nextRefresh;
    boost::asio::steady_timer m_timer;
};

} // namespace

std::shared_ptr<DiscoveryStrategy> makeDirectStrategy(const std::string& parameter,
                                                      std::chrono::milliseconds period,
                                                      const DiscoverySurroundings& surroundings) {
    auto peer = parsePeer(parameter);
    if (!peer)
        return nullptr;
    return std::make_shared<DirectStrategy>(std::move(*peer), period, surroundings);
}

} // namespace Velto::Messaging
