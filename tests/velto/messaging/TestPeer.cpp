#include "TestPeer.h"

#include "wire/Envelope.h"

#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/post.hpp>
#include <boost/asio/ssl/context.hpp>
#include <boost/asio/ssl/stream.hpp>
#include <boost/asio/steady_timer.hpp>
#include <boost/asio/write.hpp>
#include <boost/beast/core/buffers_to_string.hpp>
#include <boost/beast/core/flat_buffer.hpp>
#include <boost/beast/http.hpp>
#include <boost/beast/websocket.hpp>
#include <boost/beast/websocket/ssl.hpp>

#include <atomic>
#include <deque>
#include <list>
#include <mutex>
#include <thread>
#include <type_traits>
#include <utility>

namespace Velto::Test {

namespace {

namespace asio = boost::asio;
namespace http = boost::beast::http;
namespace websocket = boost::beast::websocket;
using asio::ip::tcp;
using boost::system::error_code;
using TlsStream = asio::ssl::stream<tcp::socket>;
using namespace std::chrono_literals;

constexpr auto tricklePeriod = 50ms;

const Wire::Identity& commonIdentity() {
    static const auto identity = Wire::Identity::generate("test peer");
    return identity;
}

/// What a peer does with raw bytes once the connection stands; the first byte says "text, last fragment".
std::string rawBytes(Manner manner) {
    switch (manner) {
    case Manner::HangInFrame:
    case Manner::TrickleFrame:
        return std::string("\x81\x7E\x03\xE8", 4) + R"({"kind":)";
    case Manner::BreakProtocol:
        return std::string("\x83\x01x", 3);
    case Manner::AnnounceGiant:
        return std::string("\x81\x7F\x00\x00\x00\x00\x01\x00\x00\x01", 10);
    default:
        return {};
    }
}

} // namespace

class TestPeer::Server {
public:
    Server(bool encrypted, Manner manner, std::uint16_t port, const Wire::Identity& identity)
        : m_encrypted(encrypted)
        , m_manner(manner)
        , m_identity(identity)
        , m_tls(asio::ssl::context::tls_server)
        , m_acceptor(m_context, tcp::endpoint(asio::ip::address_v4::loopback(), port)) {
        m_identity.useIn(m_tls.native_handle());
        accept();
        m_thread = std::thread([this] { m_context.run(); });
    }

    ~Server() {
        m_context.stop();
        m_thread.join();
    }

    /// One connection. The server keeps it to its end, so that a test finds everything as it was left.
    class Connection {
    public:
        virtual ~Connection() = default;
        virtual void start() = 0;
        virtual void send(const std::string& message) = 0;
    };

    template <class Layer>
    class ConnectionOver;

    void accept() {
        m_acceptor.async_accept([this](error_code error, tcp::socket socket) {
            if (error)
                return;
            ++taken;
            socket.set_option(tcp::no_delay(true));
            take(std::move(socket));
            accept();
        });
    }

    void take(tcp::socket socket);

    const bool m_encrypted;
    std::atomic<Manner> m_manner;
    const Wire::Identity m_identity;
    std::atomic<int> taken{0};
    std::mutex m_mutex;
    std::vector<std::string> m_received;
    std::optional<int> m_closeCode;
    std::string m_identityDocument;
    asio::io_context m_context{1};
    asio::ssl::context m_tls;
    tcp::acceptor m_acceptor;
    std::list<std::unique_ptr<Connection>> m_connections;
    std::thread m_thread;
};

template <class Layer>
class TestPeer::Server::ConnectionOver final : public Connection {
public:
    template <class... Arguments>
    ConnectionOver(Server& server, Manner manner, tcp::socket socket, Arguments&... arguments)
        : m_server(server)
        , m_manner(manner)
        , m_timer(socket.get_executor())
        , m_stream(std::move(socket), arguments...) {}

    void start() override {
        if (m_manner == Manner::HangAtOnce)
            return;
        if (m_manner == Manner::CloseAtOnce) {
            reset(false);
            return;
        }
        if (m_manner == Manner::GarbageAtOnce) {
            writeRaw(boost::beast::get_lowest_layer(m_stream), std::string(64, '\x7E'));
            return;
        }
        if constexpr (std::is_same_v<Layer, TlsStream>)
            m_stream.next_layer().async_handshake(TlsStream::server, [this](error_code error) {
                if (!error)
                    readRequest();
            });
        else
            readRequest();
    }

    void send(const std::string& message) override {
        // The other end may know that the connection stands before this one does.
        m_outgoing.push_back(message);
        if (m_open && m_outgoing.size() == 1)
            writeNext();
    }

private:
    void readRequest() {
        http::async_read(m_stream.next_layer(), m_buffer, m_request, [this](error_code error, std::size_t) {
            if (error)
                return;
            if (m_manner == Manner::HangInUpgrade)
                return;
            if (m_manner == Manner::TrickleUpgrade)
                trickle("HTTP/1.1 101 Switching Protocols\r\nUpgrade: websocket\r\nX: " +
                        std::string(4000, 'x'));
            else if (m_manner == Manner::RefuseUpgrade)
                respond(http::status::not_found, "");
            else if (m_request.target() == "/identity")
                respondIdentity();
            else
                upgrade();
        });
    }

    void respondIdentity() {
        const std::lock_guard lock(m_server.m_mutex);
        respond(http::status::ok, m_server.m_identityDocument);
    }

    void respond(http::status status, const std::string& body) {
        m_response.result(status);
        m_response.body() = body;
        m_response.prepare_payload();
        http::async_write(m_stream.next_layer(), m_response, [](error_code, std::size_t) {});
    }

    void upgrade() {
        m_stream.async_accept(m_request, [this](error_code error) {
            if (error)
                return;
            m_open = true;
            if (!m_outgoing.empty())
                writeNext();
            behave();
        });
    }

    void behave() {
        if (m_manner == Manner::ResetConnection) {
            reset(true);
            return;
        }
        if (m_manner == Manner::CloseConnection) {
            m_stream.async_close(websocket::close_code::going_away, [](error_code) {});
            return;
        }
        if (m_manner == Manner::GiantHeader)
            send(std::string(Wire::maximumHeaderSize + 1, 'x'));
        if (m_manner == Manner::TrickleFrame)
            trickle(rawBytes(m_manner) + std::string(992, 'x'));
        else if (const auto bytes = rawBytes(m_manner); !bytes.empty())
            writeRaw(m_stream.next_layer(), bytes);
        // One that hangs answers no pings either.
        if (m_manner != Manner::StopReading && m_manner != Manner::HangInFrame &&
            m_manner != Manner::TrickleFrame)
            read();
    }

    void read() {
        m_stream.async_read(m_message, [this](error_code error, std::size_t) {
            if (error) {
                m_open = false;
                const std::lock_guard lock(m_server.m_mutex);
                if (error == websocket::error::closed)
                    m_server.m_closeCode = m_stream.reason().code;
                return;
            }
            answer(boost::beast::buffers_to_string(m_message.data()));
            m_message.clear();
            read();
        });
    }

    void answer(const std::string& message) {
        {
            const std::lock_guard lock(m_server.m_mutex);
            m_server.m_received.push_back(message);
        }
        Wire::DecodedFrame decoded;
        if (Wire::decodeFrame(message, decoded) != Wire::FrameError::None)
            return;
        decoded.header.kind = Wire::Kind::Response;
        if (const auto frame = Wire::encodeFrame(decoded.header, decoded.body))
            send(*frame);
    }

    void writeNext() {
        m_stream.text(true);
        m_stream.async_write(asio::buffer(m_outgoing.front()), [this](error_code error, std::size_t) {
            m_outgoing.pop_front();
            if (!error && !m_outgoing.empty())
                writeNext();
        });
    }

    template <class Stream>
    void writeRaw(Stream& stream, std::string bytes) {
        m_raw = std::move(bytes);
        asio::async_write(stream, asio::buffer(m_raw), [](error_code, std::size_t) {});
    }

    void trickle(std::string bytes) {
        m_raw = std::move(bytes);
        trickleFrom(0);
    }

    void trickleFrom(std::size_t position) {
        if (position == m_raw.size())
            return;
        asio::async_write(m_stream.next_layer(), asio::buffer(m_raw.data() + position, 1),
                          [this, position](error_code error, std::size_t) {
                              if (error)
                                  return;
                              m_timer.expires_after(tricklePeriod);
                              m_timer.async_wait([this, position](error_code) { trickleFrom(position + 1); });
                          });
    }

    void reset(bool abruptly) {
        auto& socket = boost::beast::get_lowest_layer(m_stream);
        if (abruptly)
            socket.set_option(asio::socket_base::linger(true, 0));
        socket.close();
    }

    Server& m_server;
    const Manner m_manner;
    bool m_open = false;
    asio::steady_timer m_timer;
    websocket::stream<Layer> m_stream;
    boost::beast::flat_buffer m_buffer;
    boost::beast::flat_buffer m_message;
    http::request<http::string_body> m_request;
    http::response<http::string_body> m_response;
    std::deque<std::string> m_outgoing;
    std::string m_raw;
};

void TestPeer::Server::take(tcp::socket socket) {
    if (m_encrypted)
        m_connections.push_back(
            std::make_unique<ConnectionOver<TlsStream>>(*this, m_manner, std::move(socket), m_tls));
    else
        m_connections.push_back(
            std::make_unique<ConnectionOver<tcp::socket>>(*this, m_manner, std::move(socket)));
    m_connections.back()->start();
}

TestPeer::TestPeer(bool encrypted, Manner manner)
    : TestPeer(std::make_unique<Server>(encrypted, manner, std::uint16_t{0}, commonIdentity())) {}

TestPeer::TestPeer(std::unique_ptr<Server> server)
    : m_server(std::move(server)) {}

std::unique_ptr<TestPeer> TestPeer::impostorAt(std::uint16_t port) {
    auto server = std::make_unique<Server>(true, Manner::Serve, port, Wire::Identity::generate("impostor"));
    return std::unique_ptr<TestPeer>(new TestPeer(std::move(server)));
}

TestPeer::~TestPeer() = default;

std::uint16_t TestPeer::port() const {
    return m_server->m_acceptor.local_endpoint().port();
}

const std::string& TestPeer::uid() const {
    return m_server->m_identity.uid();
}

void TestPeer::setManner(Manner manner) {
    m_server->m_manner = manner;
}

void TestPeer::setIdentityDocument(std::string document) {
    const std::lock_guard lock(m_server->m_mutex);
    m_server->m_identityDocument = std::move(document);
}

void TestPeer::send(const std::string& message) {
    asio::post(m_server->m_context, [this, message] {
        for (const auto& connection : m_server->m_connections)
            connection->send(message);
    });
}

int TestPeer::connectionsTaken() const {
    return m_server->taken;
}

std::vector<std::string> TestPeer::received() const {
    const std::lock_guard lock(m_server->m_mutex);
    return m_server->m_received;
}

std::optional<int> TestPeer::closeCode() const {
    const std::lock_guard lock(m_server->m_mutex);
    return m_server->m_closeCode;
}

bool eventually(const std::function<bool()>& condition, std::chrono::milliseconds bound) {
    const auto end = std::chrono::steady_clock::now() + bound;
    while (!condition()) {
        if (std::chrono::steady_clock::now() >= end)
            return false;
        std::this_thread::sleep_for(1ms);
    }
    return true;
}

} // namespace Velto::Test
