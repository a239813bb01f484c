#include "messaging/WebSocketLink.h"

#include "messaging/PeerStream.h"
#include "wire/Envelope.h"

#include <boost/asio/buffer.hpp>
#include <boost/asio/steady_timer.hpp>
#include <boost/beast/core/flat_buffer.hpp>
#include <boost/beast/websocket/rfc6455.hpp>
#include <boost/beast/websocket/stream.hpp>

#include <algorithm>
#include <deque>
#include <mutex>
#include <utility>

namespace Velto::Messaging {

namespace websocket = boost::beast::websocket;

/// Beast's way of asking for the end of the layer below it.
template <class Handler>
void async_teardown(boost::beast::role_type, PeerStream& stream, Handler&& handler) {
    stream.async_end(std::forward<Handler>(handler));
}

/// And of closing it.
inline void beast_close_socket(PeerStream& stream) {
    stream.close();
}

namespace {

using boost::system::error_code;
using Clock = std::chrono::steady_clock;

constexpr std::chrono::seconds pingPeriod{2};
constexpr std::chrono::seconds longestSilence{5};
/// A frame is not interrupted for a ping: while a large one goes out, the unit has the time to take it, too.
/// Bytes per second, far below what any network that carries such frames does.
constexpr std::size_t slowestUpload = 1048576;
/// Bytes that count as a sign of life before their message is whole: what a peer that trickles never reaches
/// within the longest silence.
constexpr std::size_t livelyBytes = 4096;
/// For the last frames and the closing handshake.
constexpr std::chrono::milliseconds farewellTime{500};
/// Two of the largest frames, and more messages than a unit answers in a minute.
constexpr std::size_t maximumQueuedBytes = 2 * Wire::maximumFrameSize;
constexpr std::size_t maximumQueuedFrames = 1024;
constexpr std::size_t readSize = 65536;
/// A buffer that one large message made grow is given back.
constexpr std::size_t keptBufferSize = 1048576;

/// The frames that wait to be written. Any thread.
class FrameQueue {
public:
    enum class Pushed { Waits, First, Refused };

    /// `First`: nobody is writing, so the caller must start it.
    Pushed push(std::string frame) {
        const std::lock_guard lock(m_mutex);
        if (m_frames.size() >= maximumQueuedFrames || m_bytes + frame.size() > maximumQueuedBytes)
            return Pushed::Refused;
        m_bytes += frame.size();
        m_frames.push_back(std::move(frame));
        return std::exchange(m_writing, true) ? Pushed::Waits : Pushed::First;
    }

    /// False when none waits: writing has ended until the next `First`.
    bool pop(std::string& frame) {
        const std::lock_guard lock(m_mutex);
        if (m_frames.empty()) {
            m_writing = false;
            return false;
        }
        frame = std::move(m_frames.front());
        m_frames.pop_front();
        m_bytes -= frame.size();
        return true;
    }

    bool isWriting() const {
        const std::lock_guard lock(m_mutex);
        return m_writing;
    }

private:
    mutable std::mutex m_mutex;
    std::deque<std::string> m_frames;
    std::size_t m_bytes = 0;
    bool m_writing = false;
};

class WebSocketLink final : public Link, public std::enable_shared_from_this<WebSocketLink> {
public:
    WebSocketLink(const std::shared_ptr<IoThread>& thread, Peer peer, std::uint64_t generation,
                  std::weak_ptr<LinkListener> listener)
        : m_thread(thread)
        , m_generation(generation)
        , m_listener(std::move(listener))
        , m_timer(thread->context())
        , m_socket(thread, std::move(peer)) {}

    void open(std::chrono::milliseconds timeout) override {
        bound(timeout);
        m_socket.next_layer().open(shared_from_this(), [this](error_code error) { opened(error); });
    }

    void bound(std::chrono::milliseconds timeout) override {
        if (m_state == State::Opening)
            wait(Clock::now() + timeout, [this] { fail("the attempt took too long"); });
    }

    void close() override {
        if (m_state == State::Up)
            startFarewell(websocket::close_code::normal);
        else if (m_state == State::Opening)
            finish();
    }

    bool queue(std::string frame) override {
        const auto pushed = m_frames.push(std::move(frame));
        if (pushed == FrameQueue::Pushed::First)
            if (const auto thread = m_thread.lock())
                thread->post([self = shared_from_this()] { self->writeNext(); });
        return pushed != FrameQueue::Pushed::Refused;
    }

private:
    enum class State { Opening, Up, Closing, Done };

    /// Calls `late` at `when` unless another wait replaces this one.
    template <class Late>
    void wait(Clock::time_point when, Late late) {
        m_timer.expires_at(when);
        m_timer.async_wait([self = shared_from_this(), late](error_code error) {
            if (!error && self->m_timer.expiry() <= Clock::now())
                late();
        });
    }

    void opened(error_code error) {
        if (m_state != State::Opening)
            return;
        if (error) {
            fail("cannot connect: " + error.message());
            return;
        }
        m_socket.text(true);
        m_socket.auto_fragment(false);
        m_socket.read_message_max(Wire::maximumFrameSize);
        m_socket.control_callback([this](websocket::frame_type, std::string_view) { heard(); });
        m_socket.async_handshake(m_socket.next_layer().hostField(), "/",
                                 [self = shared_from_this()](error_code failed) { self->upgraded(failed); });
    }

    void upgraded(error_code error) {
        if (m_state != State::Opening)
            return;
        if (error) {
            fail("no WebSocket there: " + error.message());
            return;
        }
        m_state = State::Up;
        m_nextPing = Clock::now() + pingPeriod;
        heard();
        watch();
        if (const auto listener = m_listener.lock())
            listener->linkUp(m_generation);
        read();
    }

    void heard() {
        m_lastHeard = Clock::now();
        m_unsettledBytes = 0;
    }

    Clock::time_point silentFrom() const {
        const std::size_t goingOut = m_frames.isWriting() ? m_outgoing.size() : 0;
        return m_lastHeard + longestSilence + std::chrono::seconds(goingOut / slowestUpload);
    }

    /// Pings when it is time, and gives the peer up when it was silent too long.
    void watch() {
        wait(std::min(m_nextPing, silentFrom()), [this] {
            if (m_state != State::Up)
                return;
            const auto now = Clock::now();
            if (now >= silentFrom()) {
                fail("the unit fell silent");
                return;
            }
            if (now >= m_nextPing) {
                m_nextPing = now + pingPeriod;
                ping();
            }
            watch();
        });
    }

    void ping() {
        // One that cannot even be written is followed by silence, which is dealt with above.
        if (std::exchange(m_pinging, true))
            return;
        m_socket.async_ping({}, [self = shared_from_this()](error_code) { self->m_pinging = false; });
    }

    void read() {
        m_socket.async_read_some(m_incoming, readSize,
                                 [self = shared_from_this()](error_code error, std::size_t bytes) {
                                     self->received(error, bytes);
                                 });
    }

    void received(error_code error, std::size_t bytes) {
        if (m_state == State::Done)
            return;
        if (error) {
            // A farewell under way ends by itself.
            if (m_state == State::Up)
                fail(error == websocket::error::closed ? "the unit closed it" : error.message());
            return;
        }
        m_unsettledBytes += bytes;
        if (m_socket.is_message_done() || m_unsettledBytes >= livelyBytes)
            heard();
        if (m_socket.is_message_done())
            deliver();
        if (m_state != State::Done)
            read();
    }

    void deliver() {
        const auto listener = m_state == State::Up ? m_listener.lock() : nullptr;
        const auto bytes = m_incoming.cdata();
        if (listener &&
            listener->linkReceived(m_generation, {static_cast<const char*>(bytes.data()), bytes.size()}) ==
                LinkListener::Verdict::Violation)
            breakOff();
        m_incoming.consume(m_incoming.size());
        if (m_incoming.capacity() > keptBufferSize)
            m_incoming.shrink_to_fit();
    }

    /// The peer broke the protocol: the listener is done with it at once, the peer is told why.
    void breakOff() {
        startFarewell(websocket::close_code::protocol_error);
        if (const auto listener = m_listener.lock())
            listener->linkDown(m_generation, "the unit broke the protocol");
    }

    void writeNext() {
        if (m_state == State::Done || !m_frames.pop(m_outgoing)) {
            if (m_state == State::Closing)
                sayFarewell();
            return;
        }
        m_socket.async_write(boost::asio::buffer(m_outgoing),
                             [self = shared_from_this()](error_code error, std::size_t) {
                                 if (error)
                                     self->fail(error.message());
                                 else
                                     self->writeNext();
                             });
    }

    void startFarewell(websocket::close_code code) {
        m_state = State::Closing;
        m_closeCode = code;
        wait(Clock::now() + farewellTime, [this] { finish(); });
        if (!m_frames.isWriting())
            sayFarewell();
    }

    void sayFarewell() {
        if (std::exchange(m_farewellSaid, true))
            return;
        m_socket.async_close(m_closeCode, [self = shared_from_this()](error_code) { self->finish(); });
    }

    void fail(const std::string& reason) {
        const State failed = m_state;
        finish();
        if (failed == State::Done || failed == State::Closing)
            return;
        if (const auto listener = m_listener.lock())
            listener->linkDown(m_generation, reason);
    }

    void finish() {
        m_state = State::Done;
        m_timer.cancel();
        m_socket.next_layer().close();
    }

    std::weak_ptr<IoThread> m_thread;
    const std::uint64_t m_generation;
    const std::weak_ptr<LinkListener> m_listener;
    boost::asio::steady_timer m_timer;
    State m_state = State::Opening;
    Clock::time_point m_lastHeard;
    Clock::time_point m_nextPing;
    std::size_t m_unsettledBytes = 0;
    bool m_pinging = false;
    bool m_farewellSaid = false;
    websocket::close_code m_closeCode = websocket::close_code::normal;
    FrameQueue m_frames;
    std::string m_outgoing;
    boost::beast::flat_buffer m_incoming;
    websocket::stream<PeerStream, false> m_socket;
};

} // namespace

std::shared_ptr<Link> makeWebSocketLink(const std::shared_ptr<IoThread>& thread, Peer peer,
                                        std::uint64_t generation, std::weak_ptr<LinkListener> listener) {
    return std::make_shared<WebSocketLink>(thread, std::move(peer), generation, std::move(listener));
}

} // namespace Velto::Messaging
