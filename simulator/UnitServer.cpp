#include "UnitServer.h"

#include "simulator/HostLoop.h"
#include "simulator/Platform.h"
#include "simulator/UnitSession.h"

#include <map>
#include <stdexcept>
#include <unordered_map>

namespace Simulator {

namespace {

using tcp = asio::ip::tcp;

constexpr std::chrono::milliseconds pauseAfterAcceptError{100};

std::shared_ptr<asio::ssl::context> contextFor(const Velto::Wire::Identity& identity) {
    auto context = std::make_shared<asio::ssl::context>(asio::ssl::context::tls_server);
    context->set_options(asio::ssl::context::default_workarounds | asio::ssl::context::no_tlsv1 |
                         asio::ssl::context::no_tlsv1_1);
    // Nobody resumes a session with a unit: the key is what is checked, each time.
    SSL_CTX_set_session_cache_mode(context->native_handle(), SSL_SESS_CACHE_OFF);
    identity.useIn(context->native_handle());
    return context;
}

} // namespace

struct UnitServer::Impl : std::enable_shared_from_this<UnitServer::Impl> {
    Impl(HostLoop& hostLoop, Unit& owner, bool isEncrypted)
        : loop(hostLoop)
        , unit(&owner)
        , encrypted(isEncrypted)
        , acceptor(hostLoop.context()) {}

    void accept();
    void accepted(tcp::socket socket);
    std::shared_ptr<asio::ssl::context> currentContext();

    HostLoop& loop;
    Unit* unit;
    const bool encrypted;
    tcp::acceptor acceptor;
    std::map<std::string, std::shared_ptr<asio::ssl::context>> contexts; // by uid; made when first needed
    std::unordered_map<ConnectionId, std::shared_ptr<Session>> sessions;
    ConnectionId lastId = 0;
};

void UnitServer::Impl::accept() {
    acceptor.async_accept([self = shared_from_this()](const beast::error_code& error, tcp::socket socket) {
        if (!self->acceptor.is_open() || error == asio::error::operation_aborted)
            return;
        if (error) {
            // Out of descriptors, most likely: the next try may come too early, but must come.
            self->loop.after(pauseAfterAcceptError, [self] {
                if (self->acceptor.is_open())
                    self->accept();
            });
            return;
        }
        self->accepted(std::move(socket));
        self->accept();
    });
}

void UnitServer::Impl::accepted(tcp::socket socket) {
    beast::error_code ignored;
    socket.set_option(tcp::no_delay(true), ignored);
    const ConnectionId id = ++lastId;
    const auto ended = [weak = weak_from_this()](ConnectionId gone) {
        if (const auto self = weak.lock())
            self->sessions.erase(gone);
    };
    std::shared_ptr<Session> session;
    if (encrypted) {
        auto context = currentContext();
        TlsStream stream(beast::tcp_stream(std::move(socket)), *context);
        session = std::make_shared<UnitSession<TlsStream>>(std::move(stream), context, *unit, id, ended);
    } else {
        session = std::make_shared<UnitSession<PlainStream>>(PlainStream(std::move(socket)), nullptr, *unit,
                                                             id, ended);
    }
    sessions.emplace(id, session);
    session->start();
}

std::shared_ptr<asio::ssl::context> UnitServer::Impl::currentContext() {
    const auto& identity = unit->keyToShow();
    auto& context = contexts[identity.uid()];
    if (!context)
        context = contextFor(identity);
    return context;
}

UnitServer::UnitServer(HostLoop& loop, Unit& unit, bool encrypted)
    : m_impl(std::make_shared<Impl>(loop, unit, encrypted)) {}

UnitServer::~UnitServer() {
    stopListening();
    dropConnections();
}

std::uint16_t UnitServer::listen(const std::string& address, std::uint16_t port) {
    auto& acceptor = m_impl->acceptor;
    try {
        const tcp::endpoint endpoint(asio::ip::make_address(address), port);
        acceptor.open(endpoint.protocol());
        acceptor.set_option(asio::socket_base::reuse_address(Platform::listenersReuseAddress));
        acceptor.bind(endpoint);
        acceptor.listen();
        const std::uint16_t bound = acceptor.local_endpoint().port();
        m_impl->accept();
        return bound;
    } catch (const boost::system::system_error& error) {
        stopListening();
        throw std::runtime_error("cannot listen on " + address + " port " + std::to_string(port) + ": " +
                                 error.code().message());
    }
}

bool UnitServer::isListening() const {
    return m_impl->acceptor.is_open();
}

void UnitServer::stopListening() {
    beast::error_code ignored;
    m_impl->acceptor.close(ignored);
}

void UnitServer::dropConnections() {
    const auto sessions = std::exchange(m_impl->sessions, {});
    for (const auto& [id, session] : sessions)
        session->drop();
}

void UnitServer::closeConnections(std::uint16_t code) {
    const auto sessions = m_impl->sessions;
    for (const auto& [id, session] : sessions)
        session->close(code);
}

void UnitServer::send(ConnectionId connection, Outgoing outgoing) {
    if (const auto found = m_impl->sessions.find(connection); found != m_impl->sessions.end())
        std::shared_ptr<Session>(found->second)->send(std::move(outgoing));
}

void UnitServer::close(ConnectionId connection, std::uint16_t code) {
    if (const auto found = m_impl->sessions.find(connection); found != m_impl->sessions.end())
        std::shared_ptr<Session>(found->second)->close(code);
}

std::size_t UnitServer::broadcast(const std::string& frame, ConnectionId except) {
    std::size_t count = 0;
    const auto sessions = m_impl->sessions; // a client that cannot take more leaves while we send
    for (const auto& [id, session] : sessions) {
        if (id == except || !session->isOpen())
            continue;
        session->send({frame, Manner::Whole, {}, {}});
        ++count;
    }
    return count;
}

std::size_t UnitServer::clients() const {
    std::size_t count = 0;
    for (const auto& [id, session] : m_impl->sessions)
        count += session->isOpen() ? 1 : 0;
    return count;
}

} // namespace Simulator
