#include "DiscoveryResponder.h"

#include "simulator/HostLoop.h"
#include "simulator/Platform.h"

#include <boost/asio/ip/multicast.hpp>
#include <boost/asio/ip/udp.hpp>
#include <boost/asio/steady_timer.hpp>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdlib>
#include <deque>
#include <map>
#include <random>
#include <set>
#include <sstream>
#include <utility>
#include <vector>

namespace Simulator {

namespace {

namespace asio = boost::asio;
using udp = asio::ip::udp;
using Clock = std::chrono::steady_clock;

constexpr int longestPause = 50; ///< ms before an answer, so that many units do not shout at once
constexpr std::chrono::seconds refreshInterval{5};
constexpr std::size_t maximumRemembered = 4096; ///< probes that a second hearing of is recognised
constexpr std::size_t maximumPending = 65536;   ///< answers that wait for their pause to end
constexpr int receiveBuffer = 1024 * 1024;

/// The interfaces named in the environment; none when it does not restrict them.
std::set<std::string> allowedInterfaces() {
    std::set<std::string> allowed;
    const char* const text = std::getenv("VELTO_DISCOVERY_INTERFACES");
    std::istringstream list(text ? text : "");
    for (std::string name; std::getline(list, name, ',');)
        if (!name.empty())
            allowed.insert(name);
    return allowed;
}

struct PendingAnswer {
    std::weak_ptr<Announcer> unit;
    udp::endpoint sender;
};

} // namespace

struct DiscoveryResponder::Impl : std::enable_shared_from_this<DiscoveryResponder::Impl> {
    explicit Impl(HostLoop& loop)
        : context(loop.context())
        , socket(loop.context())
        , answerTimer(loop.context())
        , refreshTimer(loop.context())
        , allowed(allowedInterfaces()) {}

    void open(std::uint16_t port);
    void joinInterfaces();
    void refreshLater();
    void receive();
    void heard(std::string_view datagram);
    bool isAllowed(const asio::ip::address& address) const;
    bool isNew(const std::string& probe);
    void answerDue();
    void waitForNext();
    void answer(const PendingAnswer& pending);

    asio::io_context& context;
    udp::socket socket;
    asio::steady_timer answerTimer;
    asio::steady_timer refreshTimer;
    const std::set<std::string> allowed;
    std::vector<Platform::Interface> interfaces;
    std::string problem;
    std::vector<std::weak_ptr<Announcer>> units;
    udp::endpoint sender;
    std::array<char, Velto::Wire::receiveBufferSize> datagram{};
    std::set<std::string> remembered;
    std::deque<std::string> rememberedInOrder;
    std::multimap<Clock::time_point, PendingAnswer> pending;
    std::minstd_rand random{std::random_device{}()};
    DiscoveryCounters counters;
};

void DiscoveryResponder::Impl::open(std::uint16_t port) {
    try {
        socket.open(udp::v4());
        // Several simulators on one machine, and real programs next to them, hear the same probes.
        socket.set_option(asio::socket_base::reuse_address(true));
        boost::system::error_code ignored;
        socket.set_option(asio::socket_base::receive_buffer_size(receiveBuffer), ignored);
        socket.bind({asio::ip::address_v4::any(), port});
    } catch (const boost::system::system_error& error) {
        boost::system::error_code ignored;
        socket.close(ignored);
        problem = "cannot hear probes on UDP port " + std::to_string(port) + ": " + error.code().message();
        return;
    }
    joinInterfaces();
    refreshLater();
    receive();
}

void DiscoveryResponder::Impl::joinInterfaces() {
    interfaces = Platform::interfaces();
    if (!allowed.empty()) {
        const auto isOther = [this](const Platform::Interface& interface) {
            return allowed.count(interface.name) == 0 &&
                   allowed.count(asio::ip::address_v4(interface.address).to_string()) == 0;
        };
        interfaces.erase(std::remove_if(interfaces.begin(), interfaces.end(), isOther), interfaces.end());
    }
    for (const auto& interface : interfaces) {
        boost::system::error_code ignored; // joined before, or an interface that cannot: broadcasts remain
        socket.set_option(
            asio::ip::multicast::join_group(asio::ip::make_address_v4(Velto::Wire::multicastGroup),
                                            asio::ip::address_v4(interface.address)),
            ignored);
    }
}

void DiscoveryResponder::Impl::refreshLater() {
    refreshTimer.expires_after(refreshInterval);
    refreshTimer.async_wait([self = shared_from_this()](const boost::system::error_code& error) {
        if (error || !self->socket.is_open())
            return;
        self->joinInterfaces();
        self->refreshLater();
    });
}

void DiscoveryResponder::Impl::receive() {
    socket.async_receive_from(
        asio::buffer(datagram), sender,
        [self = shared_from_this()](const boost::system::error_code& error, std::size_t size) {
            if (!self->socket.is_open())
                return;
            // An error belongs to one datagram (too long, or an earlier answer nobody took), not to the port.
            if (!error)
                self->heard({self->datagram.data(), size});
            self->receive();
        });
}

void DiscoveryResponder::Impl::heard(std::string_view text) {
    const auto probe = Velto::Wire::decodeProbe(text);
    if (!probe || !isAllowed(sender.address())) {
        ++counters.dropped;
        return;
    }
    ++counters.probes;
    if (!isNew(sender.address().to_string() + ' ' + std::to_string(sender.port()) + ' ' + probe->service +
               ' ' + probe->id)) {
        ++counters.duplicates;
        return;
    }
    std::uniform_int_distribution<int> pause(0, longestPause * 1000);
    const auto now = Clock::now();
    for (const auto& weak : units) {
        const auto unit = weak.lock();
        if (!unit || !unit->isAnnounced() || unit->announcement().service != probe->service ||
            pending.size() >= maximumPending)
            continue;
        pending.emplace(now + std::chrono::microseconds(pause(random)), PendingAnswer{unit, sender});
    }
    waitForNext();
}

bool DiscoveryResponder::Impl::isAllowed(const asio::ip::address& address) const {
    if (allowed.empty())
        return true;
    const auto number = address.to_v4().to_uint();
    return std::any_of(interfaces.begin(), interfaces.end(), [number](const Platform::Interface& interface) {
        return (number & interface.netmask) == (interface.address & interface.netmask);
    });
}

bool DiscoveryResponder::Impl::isNew(const std::string& probe) {
    if (!remembered.insert(probe).second)
        return false;
    rememberedInOrder.push_back(probe);
    if (rememberedInOrder.size() > maximumRemembered) {
        remembered.erase(rememberedInOrder.front());
        rememberedInOrder.pop_front();
    }
    return true;
}

void DiscoveryResponder::Impl::waitForNext() {
    if (pending.empty())
        return;
    answerTimer.expires_at(pending.begin()->first);
    answerTimer.async_wait([self = shared_from_this()](const boost::system::error_code& error) {
        if (!error && self->socket.is_open())
            self->answerDue();
    });
}

void DiscoveryResponder::Impl::answerDue() {
    const auto end = pending.upper_bound(Clock::now());
    for (auto due = pending.begin(); due != end; due = pending.erase(due))
        answer(due->second);
    waitForNext();
}

void DiscoveryResponder::Impl::answer(const PendingAnswer& waiting) {
    const auto unit = waiting.unit.lock();
    if (!unit || !unit->isAnnounced())
        return;
    const auto text = Velto::Wire::encode(unit->announcement());
    // A client takes the unit's address from where the answer comes, so it must leave from there.
    const auto address = asio::ip::make_address(unit->address());
    boost::system::error_code error;
    if (address.is_unspecified() || address.is_v6()) {
        socket.send_to(asio::buffer(text), waiting.sender, 0, error);
    } else {
        udp::socket own(context, udp::v4());
        own.bind({address, 0}, error);
        if (!error)
            own.send_to(asio::buffer(text), waiting.sender, 0, error);
    }
    if (error)
        return;
    ++counters.answers;
    unit->announced();
}

DiscoveryResponder::DiscoveryResponder(HostLoop& loop, std::uint16_t port)
    : m_impl(std::make_shared<Impl>(loop)) {
    m_impl->open(port);
}

DiscoveryResponder::~DiscoveryResponder() {
    boost::system::error_code ignored;
    m_impl->socket.close(ignored);
    m_impl->answerTimer.cancel();
    m_impl->refreshTimer.cancel();
}

const std::string& DiscoveryResponder::problem() const {
    return m_impl->problem;
}

void DiscoveryResponder::add(const std::shared_ptr<Announcer>& unit) {
    auto& units = m_impl->units;
    units.erase(std::remove_if(units.begin(), units.end(), [](const auto& known) { return known.expired(); }),
                units.end());
    units.push_back(unit);
}

DiscoveryCounters DiscoveryResponder::counters() const {
    return m_impl->counters;
}

} // namespace Simulator
