#include "ForeignClient.h"

#include "velto/wire/Identity.h"

#include <boost/asio/ip/multicast.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/ip/udp.hpp>
#include <boost/asio/ssl/context.hpp>
#include <boost/asio/steady_timer.hpp>
#include <boost/beast/core.hpp>
#include <boost/beast/http.hpp>
#include <boost/beast/ssl.hpp>
#include <boost/beast/websocket.hpp>

#include <array>
#include <functional>
#include <utility>

namespace asio = boost::asio;
namespace beast = boost::beast;
namespace http = beast::http;
namespace websocket = beast::websocket;
using Error = beast::error_code;

struct ForeignClient::Impl {
    asio::io_context context;
    asio::ssl::context tls{asio::ssl::context::tls_client};
    websocket::stream<beast::ssl_stream<beast::tcp_stream>> secure{context, tls};
    websocket::stream<beast::tcp_stream> plain{context};
    beast::flat_buffer buffer;
    bool encrypted = true;
    bool ended = false;
    bool reading = false;
    std::optional<Error> readResult;

    template <typename Call>
    decltype(auto) socket(Call call) {
        return encrypted ? call(secure) : call(plain);
    }

    beast::tcp_stream& transport() {
        return encrypted ? beast::get_lowest_layer(secure) : beast::get_lowest_layer(plain);
    }

    bool runUntil(const std::function<bool()>& done, std::chrono::milliseconds wait) {
        const auto end = std::chrono::steady_clock::now() + wait;
        context.restart();
        while (!done() && std::chrono::steady_clock::now() < end)
            if (context.run_one_until(end) == 0)
                break;
        return done();
    }

    /// Runs one operation to its end; what it works on must live as long as the client.
    template <typename Start>
    std::string complete(Start start, std::chrono::milliseconds wait) {
        auto result = std::make_shared<std::optional<Error>>();
        start([result](const Error& error, auto&&... /*rest*/) { *result = error; });
        if (!runUntil([&] { return result->has_value(); }, wait))
            return "timeout";
        return **result ? (*result)->message() : std::string();
    }
};

ForeignClient::ForeignClient()
    : m_impl(std::make_unique<Impl>()) {}
ForeignClient::~ForeignClient() = default;

std::string ForeignClient::connectTcp(const std::string& address, std::uint16_t port) {
    const asio::ip::tcp::endpoint endpoint(asio::ip::make_address(address), port);
    return m_impl->complete([&](auto done) { m_impl->transport().async_connect(endpoint, std::move(done)); },
                            patience);
}

std::string ForeignClient::greet(std::chrono::milliseconds wait) {
    return m_impl->complete(
        [&](auto done) {
            m_impl->secure.next_layer().async_handshake(asio::ssl::stream_base::client, std::move(done));
        },
        wait);
}

std::string ForeignClient::upgrade(std::chrono::milliseconds wait) {
    return m_impl->socket([&](auto& socket) {
        socket.read_message_max(std::size_t{17} * 1024 * 1024);
        return m_impl->complete([&](auto done) { socket.async_handshake("unit", "/", std::move(done)); },
                                wait);
    });
}

std::string ForeignClient::connect(const std::string& address, std::uint16_t port, bool encrypted) {
    m_impl->encrypted = encrypted;
    std::string problem = connectTcp(address, port);
    if (problem.empty() && encrypted)
        problem = greet();
    return problem.empty() ? upgrade() : problem;
}

std::string ForeignClient::presentedUid() const {
    X509* const certificate = SSL_get1_peer_certificate(m_impl->secure.next_layer().native_handle());
    std::string uid = Velto::Wire::uidOfCertificate(certificate);
    X509_free(certificate);
    return uid;
}

ForeignClient::Page ForeignClient::get(const std::string& target, const std::string& method) {
    const auto request =
        std::make_shared<http::request<http::empty_body>>(http::string_to_verb(method), target, 11);
    const auto response = std::make_shared<http::response<http::string_body>>();
    return m_impl->socket([&](auto& socket) {
        m_impl->complete(
            [&](auto done) { http::async_write(socket.next_layer(), *request, std::move(done)); }, patience);
        m_impl->complete(
            [&](auto done) {
                http::async_read(socket.next_layer(), m_impl->buffer, *response, std::move(done));
            },
            patience);
        return Page{response->result_int(), std::string((*response)[http::field::content_type]),
                    response->body()};
    });
}

std::string ForeignClient::send(const std::string& frame, bool text) {
    const auto kept = std::make_shared<std::string>(frame);
    return m_impl->socket([&](auto& socket) {
        socket.text(text);
        return m_impl->complete(
            [&](auto done) {
                socket.async_write(asio::buffer(*kept),
                                   [kept, done](const Error& error, std::size_t) { done(error); });
            },
            patience);
    });
}

std::optional<std::string> ForeignClient::receive(std::chrono::milliseconds wait) {
    if (!m_impl->reading) {
        m_impl->reading = true;
        m_impl->readResult.reset();
        m_impl->socket([&](auto& socket) {
            socket.async_read(m_impl->buffer,
                              [this](const Error& error, std::size_t) { m_impl->readResult = error; });
        });
    }
    if (!m_impl->runUntil([&] { return m_impl->readResult.has_value(); }, wait))
        return std::nullopt;
    m_impl->reading = false;
    m_impl->ended = static_cast<bool>(*m_impl->readResult);
    if (m_impl->ended)
        return std::nullopt;
    std::string frame = beast::buffers_to_string(m_impl->buffer.cdata());
    m_impl->buffer.consume(m_impl->buffer.size());
    return frame;
}

std::string ForeignClient::receiveRaw(std::size_t size, std::chrono::milliseconds wait) {
    const auto end = std::chrono::steady_clock::now() + wait;
    const auto piece = std::make_shared<std::array<char, 4096>>();
    std::string received;
    const auto readSome = [&](auto& socket) {
        const auto count = std::make_shared<std::size_t>(0);
        const auto left =
            std::chrono::duration_cast<std::chrono::milliseconds>(end - std::chrono::steady_clock::now());
        const std::string problem = m_impl->complete(
            [&](auto done) {
                socket.next_layer().async_read_some(
                    asio::buffer(*piece), [piece, count, done](const Error& error, std::size_t bytes) {
                        *count = bytes;
                        done(error);
                    });
            },
            left);
        received.append(piece->data(), *count);
        return problem.empty();
    };
    while (received.size() < size && m_impl->socket(readSome))
        continue;
    return received;
}

bool ForeignClient::ended() const {
    return m_impl->ended;
}

int ForeignClient::closeCode() const {
    return m_impl->socket([](auto& socket) { return static_cast<int>(socket.reason().code); });
}

std::string ForeignClient::ping() {
    bool pong = false;
    const auto noteTheAnswer = [&pong](websocket::frame_type type, beast::string_view /*payload*/) {
        pong = pong || type == websocket::frame_type::pong;
    };
    return m_impl->socket([&](auto& socket) -> std::string {
        socket.control_callback(noteTheAnswer);
        std::string problem =
            m_impl->complete([&](auto done) { socket.async_ping({}, std::move(done)); }, patience);
        while (problem.empty() && !pong && !ended()) {
            m_impl->reading = true;
            m_impl->readResult.reset();
            socket.async_read(m_impl->buffer,
                              [this](const Error& error, std::size_t) { m_impl->readResult = error; });
            if (!m_impl->runUntil([&] { return pong || m_impl->readResult.has_value(); }, patience))
                problem = "timeout";
            break;
        }
        socket.control_callback();
        return pong ? std::string() : problem;
    });
}

struct Prober::Impl {
    asio::io_context context;
    asio::ip::udp::socket socket{context, asio::ip::udp::v4()};
};

Prober::Prober()
    : m_impl(std::make_unique<Impl>()) {
    const auto loopback = asio::ip::address_v4::loopback();
    m_impl->socket.set_option(asio::socket_base::receive_buffer_size(1024 * 1024));
    m_impl->socket.set_option(asio::ip::multicast::outbound_interface(loopback));
    m_impl->socket.bind({loopback, 0});
}

Prober::~Prober() = default;

void Prober::send(const std::string& datagram, std::uint16_t port, const std::string& to) {
    m_impl->socket.send_to(asio::buffer(datagram), {asio::ip::make_address(to), port});
}

std::vector<Prober::Reply> Prober::collect(std::size_t count, std::chrono::milliseconds wait) {
    std::vector<Reply> replies;
    std::array<char, 2048> datagram{};
    asio::ip::udp::endpoint sender;
    std::function<void()> receive = [&] {
        m_impl->socket.async_receive_from(
            asio::buffer(datagram), sender, [&](const Error& error, std::size_t size) {
                if (error)
                    return;
                replies.push_back({sender.address().to_string(), std::string(datagram.data(), size)});
                if (replies.size() < count)
                    receive();
            });
    };
    m_impl->context.restart();
    receive();
    m_impl->context.run_for(wait);
    m_impl->socket.cancel();
    m_impl->context.restart();
    m_impl->context.poll();
    return replies;
}

std::uint16_t freeUdpPort() {
    asio::io_context context;
    asio::ip::udp::socket socket(context, {asio::ip::address_v4::loopback(), 0});
    return socket.local_endpoint().port();
}

struct PortHolder::Impl {
    asio::io_context context;
    asio::ip::udp::socket socket{context, {asio::ip::address_v4::any(), 0}};
};

PortHolder::PortHolder()
    : m_impl(std::make_unique<Impl>()) {}
PortHolder::~PortHolder() = default;

std::uint16_t PortHolder::port() const {
    return m_impl->socket.local_endpoint().port();
}
