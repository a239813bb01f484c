#include "SimulatedUnit.h"

#include "simulator/HostLoop.h"
#include "simulator/SimulatorHost.h"
#include "simulator/UnitServer.h"
#include "simulator/messages/Messages.h"

#include <optional>
#include <stdexcept>
#include <utility>

namespace Simulator {

namespace {

using namespace Velto::Wire;

constexpr std::uint16_t closeGoingAway = 1001;
constexpr std::uint16_t closeTooBig = 1009;
/// The type of the error that answers a frame whose own type could not be read.
constexpr const char* unreadableType = "Unreadable";

Identity identityFor(const UnitOptions& options) {
    return options.keyFolder.empty() ? Identity::generate(options.serial)
                                     : Identity::loadOrCreate(options.keyFolder, options.serial);
}

} // namespace

/// The unit itself. Everything below belongs to the host's thread.
class SimulatedUnit::Core final : public UnitServer::Unit,
                                  public Announcer,
                                  public std::enable_shared_from_this<SimulatedUnit::Core> {
public:
    Core(HostLoop& loop, const UnitOptions& unitOptions)
        : m_loop(loop)
        , m_options(completed(unitOptions))
        , m_identity(identityFor(m_options))
        , m_uid(m_options.encrypted ? m_identity.uid() : "plain-" + m_options.serial)
        , m_port(m_options.port)
        , m_state(initialState(m_options))
        , m_server(loop, *this, m_options.encrypted) {}

    const UnitOptions& options() const { return m_options; }
    const std::string& uid() const { return m_uid; }
    std::uint16_t port() const { return m_port; }
    UnitServer& server() { return m_server; }
    const UnitState& state() const { return m_state; }
    bool isRunning() const { return m_running; }
    const UnitCounters& counters() const { return m_counters; }

    void start() {
        if (m_running)
            return;
        if (mayListen())
            listen();
        m_running = true;
        settle(); // what follows by itself from the first state
    }

    void stop() {
        m_running = false;
        m_server.stopListening();
        m_server.dropConnections();
    }

    void changeState(const std::function<void(UnitState&)>& change) {
        change(m_state);
        settle();
    }

    void setFrameListener(std::function<void(std::string_view)> ear) { m_ear = std::move(ear); }

    void setFaults(const Faults& faults) {
        m_faults = faults;
        const bool open = m_running && mayListen();
        if (open && !m_server.isListening())
            listen();
        else if (!open)
            m_server.stopListening();
    }

    // Announcer
    bool isAnnounced() const override { return m_running && m_state.network.reachable; }
    const std::string& address() const override { return m_state.network.address; }
    void announced() override { ++m_counters.announcements; }
    Announcement announcement() const override {
        const Product& product = *findProduct(m_options.product);
        Announcement announcement;
        announcement.service = m_options.service;
        announcement.uid = m_uid;
        announcement.name = m_state.name;
        announcement.serial = m_options.serial;
        announcement.productVendor = "Orvex";
        announcement.productName = product.name;
        announcement.productModel = product.model;
        announcement.port = m_port;
        announcement.encrypted = m_options.encrypted;
        return announcement;
    }

    // UnitServer::Unit
    const Faults& faults() const override { return m_faults; }
    void connectionOpened() override { ++m_counters.connections; }
    void frameSent(std::size_t bytes) override { m_counters.bytesSent += bytes; }
    std::string identityDocument() override {
        ++m_counters.identityRequests;
        return encode(announcement());
    }
    const Identity& keyToShow() override {
        if (!m_faults.wrongKey)
            return m_identity;
        if (!m_wrongIdentity)
            m_wrongIdentity = Identity::generate(m_options.serial);
        return *m_wrongIdentity;
    }
    void frameReceived(ConnectionId connection, std::string_view frame) override;

private:
    bool mayListen() const {
        return m_state.network.reachable && m_faults.connection != ConnectionFault::Refuse;
    }
    void listen() {
        m_port = m_server.listen(m_state.network.address, m_port);
        m_listensAt = m_state.network.address;
    }
    void followNetwork();
    void complain(ConnectionId connection, const std::string& type, std::uint32_t number, const char* why);
    void reply(ConnectionId connection, const Header& header, std::string_view body);
    void settle(ConnectionId asker = 0);

    HostLoop& m_loop;
    const UnitOptions m_options;
    const Identity m_identity;
    std::optional<Identity> m_wrongIdentity;
    const std::string m_uid;
    std::uint16_t m_port;
    std::string m_listensAt;
    UnitState m_state;
    Faults m_faults;
    UnitCounters m_counters;
    std::function<void(std::string_view)> m_ear;
    bool m_running = false;
    UnitServer m_server; // last: it calls the rest until it is gone
};

void SimulatedUnit::Core::frameReceived(ConnectionId connection, std::string_view frame) {
    m_counters.bytesReceived += frame.size();
    if (m_ear)
        m_ear(frame);
    DecodedFrame decoded;
    const FrameError error = decodeFrame(frame, decoded);
    if (error == FrameError::HeaderTooLarge || error == FrameError::FrameTooLarge) {
        ++m_counters.malformed;
        m_server.close(connection, closeTooBig);
        return;
    }
    if (error != FrameError::None) {
        complain(connection, unreadableType, 0, describe(error));
        return;
    }
    const Header& asked = decoded.header;
    if (asked.kind != Kind::Request) {
        complain(connection, asked.type, asked.number, "only requests are taken");
        return;
    }
    ++m_counters.requests[asked.type];
    const Answer answer = answerTo(m_state, asked.type, decoded.body);
    const bool done = answer.status == Status::Ok;
    const Header header{done ? Kind::Response : Kind::Error, asked.type, asked.number, answer.text,
                        static_cast<std::int32_t>(answer.status)};
    if (!answer.withheld)
        reply(connection, header, answer.body);
    settle(connection);
}

void SimulatedUnit::Core::complain(ConnectionId connection, const std::string& type, std::uint32_t number,
                                   const char* why) {
    ++m_counters.malformed;
    const Header header{Kind::Error, type, number, why, static_cast<std::int32_t>(Status::Malformed)};
    reply(connection, header, {});
}

void SimulatedUnit::Core::reply(ConnectionId connection, const Header& header, std::string_view body) {
    for (Outgoing& outgoing : spoil(m_faults, header, body))
        m_server.send(connection, std::move(outgoing));
}

/// A unit that left its network hears and says nothing; on the next one it may have another address.
void SimulatedUnit::Core::followNetwork() {
    const bool here = m_state.network.reachable && m_state.network.address == m_listensAt;
    if (!m_running || (here && m_server.isListening()))
        return;
    if (!here) {
        m_server.stopListening();
        m_server.dropConnections();
    }
    if (!mayListen())
        return;
    try {
        listen();
    } catch (const std::runtime_error&) {
        m_state.network.reachable = false; // somebody else has the address: nobody can reach this unit
    }
}

/// Takes out of the state what is to follow: clients other than the one that asked are told, steps are waited
/// for.
void SimulatedUnit::Core::settle(ConnectionId asker) {
    followNetwork();
    for (const Notification& notification : std::exchange(m_state.notifications, {}))
        if (const auto frame =
                encodeFrame({Kind::Notification, notification.type, 1, {}, 0}, notification.body))
            m_server.broadcast(*frame, asker);
    for (const Step& step : std::exchange(m_state.steps, {})) {
        m_loop.after(step.delay, [weak = weak_from_this(), change = step.change] {
            if (const auto self = weak.lock())
                self->changeState(change);
        });
    }
}

SimulatedUnit::SimulatedUnit(SimulatorHost& host, const UnitOptions& options)
    : m_host(host)
    , m_core(std::make_shared<Core>(*host.m_loop, options)) {
    m_host.run([this] {
        if (m_host.m_responder)
            m_host.m_responder->add(m_core);
    });
}

SimulatedUnit::~SimulatedUnit() {
    m_host.run([this] {
        m_core->stop();
        m_core.reset();
    });
}

void SimulatedUnit::start() {
    m_host.run([this] { m_core->start(); });
}

void SimulatedUnit::stop() {
    m_host.run([this] { m_core->stop(); });
}

bool SimulatedUnit::isRunning() const {
    bool running = false;
    m_host.run([&] { running = m_core->isRunning(); });
    return running;
}

const UnitOptions& SimulatedUnit::options() const {
    return m_core->options();
}

const std::string& SimulatedUnit::uid() const {
    return m_core->uid();
}

std::uint16_t SimulatedUnit::port() const {
    std::uint16_t port = 0;
    m_host.run([&] { port = m_core->port(); });
    return port;
}

std::string SimulatedUnit::address() const {
    std::string address;
    m_host.run([&] { address = m_core->address(); });
    return address;
}

Velto::Wire::Announcement SimulatedUnit::announcement() const {
    Velto::Wire::Announcement announcement;
    m_host.run([&] { announcement = m_core->announcement(); });
    return announcement;
}

void SimulatedUnit::rename(const std::string& name) {
    if (const std::string complaint = complaintAboutName(name); !complaint.empty())
        throw std::invalid_argument(complaint);
    changeState([&name](UnitState& state) {
        state.name = name;
        tell(state, "GetKelmName");
    });
}

UnitState SimulatedUnit::state() const {
    UnitState state;
    m_host.run([&] { state = m_core->state(); });
    return state;
}

void SimulatedUnit::changeState(const std::function<void(UnitState&)>& change) {
    m_host.run([&] { m_core->changeState(change); });
}

std::size_t SimulatedUnit::push(const std::string& type, const std::string& body) {
    const auto frame = encodeFrame({Kind::Notification, type, 1, {}, 0}, body);
    if (!frame)
        throw std::invalid_argument("the notification is too large");
    std::size_t count = 0;
    m_host.run([&] { count = m_core->server().broadcast(*frame); });
    return count;
}

void SimulatedUnit::closeConnections() {
    m_host.run([this] { m_core->server().closeConnections(closeGoingAway); });
}

std::size_t SimulatedUnit::clients() const {
    std::size_t count = 0;
    m_host.run([&] { count = m_core->server().clients(); });
    return count;
}

void SimulatedUnit::setFaults(const Faults& faults) {
    m_host.run([&] { m_core->setFaults(faults); });
}

Faults SimulatedUnit::faults() const {
    Faults faults;
    m_host.run([&] { faults = m_core->faults(); });
    return faults;
}

UnitCounters SimulatedUnit::counters() const {
    UnitCounters counters;
    m_host.run([&] { counters = m_core->counters(); });
    return counters;
}

void SimulatedUnit::setFrameListener(std::function<void(std::string_view)> ear) {
    m_host.run([&] { m_core->setFrameListener(std::move(ear)); });
}

} // namespace Simulator
