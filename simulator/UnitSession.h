#pragma once

// Included by UnitServer.cpp alone: it carries all of Beast.

#include "simulator/Faults.h"
#include "simulator/UnitServer.h"
#include "velto/wire/Envelope.h"

#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/ssl/context.hpp>
#include <boost/asio/steady_timer.hpp>
#include <boost/beast/core.hpp>
#include <boost/beast/http.hpp>
#include <boost/beast/ssl.hpp>
#include <boost/beast/websocket.hpp>

#include <array>
#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <type_traits>
#include <utility>

namespace Simulator {

namespace asio = boost::asio;
namespace beast = boost::beast;
namespace http = beast::http;
namespace websocket = beast::websocket;

constexpr std::chrono::seconds handshakeTime{10}; ///< for each of TLS, the HTTP request and the upgrade
constexpr std::chrono::seconds pingInterval{5};
constexpr std::chrono::seconds longestSilence{15};
constexpr std::size_t maximumRequestHeader = std::size_t{8} * 1024;
constexpr std::size_t maximumQueue = 1024; ///< frames that wait for a client that does not read

using PlainStream = beast::tcp_stream;
using TlsStream = beast::ssl_stream<beast::tcp_stream>;

/// One connection, from its first byte on.
class Session {
public:
    virtual ~Session() = default;
    virtual void start() = 0;
    virtual void send(Outgoing outgoing) = 0;
    virtual void close(std::uint16_t code) = 0;
    /// Ends it without a word; nothing of the unit is touched afterwards.
    virtual void drop() = 0;
    virtual bool isOpen() const = 0;

protected:
    Session() = default;
    Session(const Session&) = default;
    Session& operator=(const Session&) = default;
};

/// The bytes of an unfragmented text frame as a server sends it.
inline std::string rawTextFrame(const std::string& payload) {
    std::string frame("\x81");
    const auto append = [&frame, size = payload.size()](int bytes) {
        for (int shift = (bytes - 1) * 8; shift >= 0; shift -= 8)
            frame.push_back(static_cast<char>((size >> static_cast<unsigned int>(shift)) & 0xFFU));
    };
    if (payload.size() < 126) {
        append(1);
    } else if (payload.size() <= 0xFFFF) {
        frame.push_back(126);
        append(2);
    } else {
        frame.push_back(127);
        append(8);
    }
    return frame + payload;
}

template <typename Stream>
class UnitSession final : public Session, public std::enable_shared_from_this<UnitSession<Stream>> {
public:
    using Ended = std::function<void(ConnectionId)>;

    UnitSession(Stream stream, std::shared_ptr<asio::ssl::context> context, UnitServer::Unit& unit,
                ConnectionId id, Ended ended)
        : m_context(std::move(context))
        , m_socket(std::move(stream))
        , m_unit(&unit)
        , m_id(id)
        , m_ended(std::move(ended))
        , m_dueTimer(m_socket.get_executor())
        , m_keepAliveTimer(m_socket.get_executor()) {}

    void start() override {
        if (m_unit->faults().connection == ConnectionFault::HangAfterAccept)
            return;
        if constexpr (isEncrypted) {
            if (m_unit->faults().connection == ConnectionFault::HangInTls) {
                hangInTls();
                return;
            }
            transport().expires_after(handshakeTime);
            m_socket.next_layer().async_handshake(asio::ssl::stream_base::server,
                                                  then([](UnitSession& self) { self.readRequest(); }));
        } else if (m_unit->faults().connection != ConnectionFault::HangInTls) {
            readRequest();
        }
    }

    void send(Outgoing outgoing) override {
        if (!m_open)
            return;
        if (m_queue.size() >= maximumQueue) {
            end();
            return;
        }
        m_queue.emplace(std::chrono::steady_clock::now() + outgoing.delay, std::move(outgoing));
        deliverNext();
    }

    void close(std::uint16_t code) override {
        if (!m_open)
            return;
        if (m_silent) {
            end(); // half a frame is out: no word can follow it
            return;
        }
        if (!m_upgraded) {
            m_closeWhenUp = code;
            return;
        }
        m_open = false;
        m_queue.clear();
        m_socket.async_close(websocket::close_reason(code), then([](UnitSession& self) { self.end(); }));
    }

    void drop() override {
        m_unit = nullptr;
        m_ended = nullptr;
        end();
    }

    bool isOpen() const override { return m_open; }

private:
    static constexpr bool isEncrypted = std::is_same_v<Stream, TlsStream>;
    using Error = beast::error_code;

    beast::tcp_stream& transport() { return beast::get_lowest_layer(m_socket); }

    /// A completion that goes on only while the unit is there and nothing failed, and ends the session
    /// otherwise.
    template <typename Next>
    auto then(Next next) {
        return [self = this->shared_from_this(), next](const Error& error, auto&&... /*size*/) {
            if (error || !self->m_unit)
                self->end();
            else
                next(*self);
        };
    }

    /// Answers the client's greeting with the head of a record that never comes whole.
    void hangInTls() {
        transport().async_read_some(
            asio::buffer(m_scrap), then([](UnitSession& self) {
                static constexpr std::array<unsigned char, 6> recordHead{0x16, 0x03, 0x03, 0x00, 0x7A, 0x02};
                asio::async_write(self.transport(), asio::buffer(recordHead),
                                  self.then([](UnitSession& later) { later.discard(); }));
            }));
    }

    /// Hears nothing more but the end of the connection.
    void discard() {
        transport().async_read_some(asio::buffer(m_scrap), then([](UnitSession& self) { self.discard(); }));
    }

    void readRequest() {
        m_parser.header_limit(maximumRequestHeader);
        m_parser.body_limit(0);
        transport().expires_after(handshakeTime);
        http::async_read(m_socket.next_layer(), m_buffer, m_parser,
                         then([](UnitSession& self) { self.answerRequest(); }));
    }

    void answerRequest() {
        transport().expires_never();
        if (m_unit->faults().connection == ConnectionFault::HangInUpgrade)
            discard();
        else if (websocket::is_upgrade(m_parser.get()))
            upgrade();
        else
            respond();
    }

    void respond() {
        const auto& request = m_parser.get();
        m_response.version(request.version());
        m_response.keep_alive(false);
        m_response.result(http::status::ok);
        if (request.target() != "/identity") {
            m_response.result(http::status::not_found);
        } else if (request.method() != http::verb::get) {
            m_response.result(http::status::method_not_allowed);
            m_response.set(http::field::allow, "GET");
        } else {
            m_response.set(http::field::content_type, "application/json");
            m_response.body() = m_unit->identityDocument();
        }
        m_response.prepare_payload();
        transport().expires_after(handshakeTime);
        http::async_write(m_socket.next_layer(), m_response,
                          then([](UnitSession& self) { self.endAfterResponse(); }));
    }

    void endAfterResponse() {
        if constexpr (isEncrypted)
            m_socket.next_layer().async_shutdown(then([](UnitSession& self) { self.end(); }));
        else
            end();
    }

    void upgrade() {
        websocket::stream_base::timeout times{};
        times.handshake_timeout = handshakeTime;
        // Silence is watched and broken by this class: Beast's own pings would cut into a stalled frame.
        times.idle_timeout = websocket::stream_base::none();
        times.keep_alive_pings = false;
        m_socket.set_option(times);
        m_socket.read_message_max(Velto::Wire::maximumFrameSize);
        m_socket.control_callback(
            [this](websocket::frame_type /*type*/, beast::string_view /*payload*/) { heard(); });
        // Open from here on: the client may know of the upgrade before we learn that our word of it is out,
        // and must miss nothing that is sent from then on. It waits in the queue until then.
        m_open = true;
        m_delivering = true;
        m_unit->connectionOpened();
        m_socket.async_accept(m_parser.get(), then([](UnitSession& self) {
                                  self.m_upgraded = true;
                                  self.m_delivering = false;
                                  self.heard();
                                  self.beginTalk();
                              }));
    }

    void beginTalk() {
        if (m_closeWhenUp) {
            close(*m_closeWhenUp);
            return;
        }
        keepAlive();
        deliverNext();
        readOn();
    }

    void heard() { m_lastHeard = std::chrono::steady_clock::now(); }

    void keepAlive() {
        m_keepAliveTimer.expires_after(pingInterval);
        m_keepAliveTimer.async_wait(then([](UnitSession& self) {
            if (!self.m_open || self.m_silent)
                return;
            if (std::chrono::steady_clock::now() - self.m_lastHeard > longestSilence) {
                self.end();
                return;
            }
            if (!self.m_delivering)
                self.m_socket.async_ping({}, self.then([](UnitSession&) {}));
            self.keepAlive();
        }));
    }

    void read() {
        m_reading = true;
        m_socket.async_read(m_buffer, then([](UnitSession& self) {
                                self.m_reading = false;
                                self.received();
                            }));
    }

    void received() {
        heard();
        if (!m_socket.got_text()) {
            close(websocket::close_code::unknown_data);
            return;
        }
        const auto bytes = m_buffer.cdata();
        m_unit->frameReceived(m_id, {static_cast<const char*>(bytes.data()), bytes.size()});
        m_buffer.consume(m_buffer.size());
        readOn();
    }

    /// While a frame is held back byte by byte nothing is read, or a pong would cut into it.
    void readOn() {
        if (m_open && !m_silent && !m_reading && !(m_delivering && m_current.manner == Manner::Trickle))
            read();
    }

    void deliverNext() {
        if (m_delivering || m_queue.empty() || !m_open)
            return;
        const auto next = m_queue.begin();
        if (next->first > std::chrono::steady_clock::now()) {
            m_dueTimer.expires_at(next->first);
            m_dueTimer.async_wait([self = this->shared_from_this()](const Error& error) {
                if (!error && self->m_unit)
                    self->deliverNext();
            });
            return;
        }
        m_current = std::move(next->second);
        m_queue.erase(next);
        m_delivering = true;
        deliver();
    }

    void deliver() {
        switch (m_current.manner) {
        case Manner::Whole:
            m_socket.text(true);
            m_socket.async_write(asio::buffer(m_current.frame),
                                 then([](UnitSession& self) { self.delivered(); }));
            break;
        case Manner::HalfThenSilence:
            m_silent = true;
            m_raw = rawTextFrame(m_current.frame);
            asio::async_write(m_socket.next_layer(), asio::buffer(m_raw.data(), m_raw.size() / 2),
                              then([](UnitSession& self) {
                                  if (!self.m_reading)
                                      self.discard();
                              }));
            break;
        case Manner::Trickle:
            m_raw = rawTextFrame(m_current.frame);
            trickle(0);
            break;
        case Manner::Close:
            close(websocket::close_code::going_away);
            break;
        case Manner::Reset:
            reset();
            break;
        }
    }

    void trickle(std::size_t at) {
        if (at == m_raw.size()) {
            delivered();
            return;
        }
        asio::async_write(m_socket.next_layer(), asio::buffer(&m_raw[at], 1), then([at](UnitSession& self) {
                              self.m_dueTimer.expires_after(self.m_current.interval);
                              self.m_dueTimer.async_wait(self.then([at](UnitSession& later) {
                                  later.heard();
                                  later.trickle(at + 1);
                              }));
                          }));
    }

    void delivered() {
        m_unit->frameSent(m_current.frame.size());
        m_delivering = false;
        deliverNext();
        readOn();
    }

    void reset() {
        Error ignored;
        transport().socket().set_option(asio::socket_base::linger(true, 0), ignored);
        end();
    }

    void end() {
        m_open = false;
        m_queue.clear();
        m_dueTimer.cancel();
        m_keepAliveTimer.cancel();
        transport().close();
        if (const auto ended = std::exchange(m_ended, nullptr))
            ended(m_id);
    }

    const std::shared_ptr<asio::ssl::context> m_context; // the stream below holds a reference into it
    websocket::stream<Stream> m_socket;
    UnitServer::Unit* m_unit;
    const ConnectionId m_id;
    Ended m_ended;
    asio::steady_timer m_dueTimer;
    asio::steady_timer m_keepAliveTimer;
    std::chrono::steady_clock::time_point m_lastHeard{};

    beast::flat_buffer m_buffer;
    http::request_parser<http::empty_body> m_parser;
    http::response<http::string_body> m_response;
    std::array<char, 2048> m_scrap{};

    std::multimap<std::chrono::steady_clock::time_point, Outgoing> m_queue;
    Outgoing m_current;
    std::string m_raw;
    std::optional<std::uint16_t> m_closeWhenUp;
    bool m_open = false;     ///< takes frames
    bool m_upgraded = false; ///< and lets them out
    bool m_reading = false;
    bool m_delivering = false;
    bool m_silent = false;
};

} // namespace Simulator
