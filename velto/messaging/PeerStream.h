#pragma once

#include "messaging/IoThread.h"
#include "messaging/Peer.h"

#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/ssl/context.hpp>
#include <boost/asio/ssl/stream.hpp>
#include <boost/system/error_code.hpp>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace Velto::Messaging {

/// The bytes between this program and a unit: TCP, with TLS on top when the unit is encrypted. Once open it
/// is an asynchronous stream as Asio knows them. Belongs to one owner and its I/O thread.
class PeerStream {
public:
    using Socket = boost::asio::ip::tcp::socket;
    using executor_type = Socket::executor_type;
    using Opened = std::function<void(boost::system::error_code)>;

    PeerStream(const std::shared_ptr<IoThread>& thread, Peer peer);

    /// Looks the host up, connects, and makes sure of the peer's key while TLS is set up. `owner` owns this
    /// stream and is kept alive while the attempt is under way; `opened` is never called inside this call,
    /// and not at all when the owner lets go during the look-up.
    void open(const std::shared_ptr<void>& owner, Opened opened);

    /// Ends everything at once; what is under way fails.
    void close();

    /// The uid of the key that the peer has proved to own; empty in plain text.
    const std::string& peerUid() const { return m_peerUid; }
    const Peer& peer() const { return m_peer; }
    /// Where the peer was found; empty when not connected.
    std::string peerAddress() const;
    /// What stands in an HTTP request's Host field.
    std::string hostField() const;

    executor_type get_executor() { return m_socket.get_executor(); }

    template <class Buffers, class Handler>
    void async_read_some(const Buffers& buffers, Handler&& handler) {
        if (m_tls)
            m_tls->async_read_some(buffers, std::forward<Handler>(handler));
        else
            m_socket.async_read_some(buffers, std::forward<Handler>(handler));
    }

    template <class Buffers, class Handler>
    void async_write_some(const Buffers& buffers, Handler&& handler) {
        if (m_tls)
            m_tls->async_write_some(buffers, std::forward<Handler>(handler));
        else
            m_socket.async_write_some(buffers, std::forward<Handler>(handler));
    }

    /// Says farewell the way the layer below does. `handler` takes an error code.
    template <class Handler>
    void async_end(Handler&& handler) {
        if (m_tls) {
            m_tls->async_shutdown(std::forward<Handler>(handler));
            return;
        }
        boost::system::error_code ignored;
        m_socket.shutdown(Socket::shutdown_send, ignored);
        m_socket.async_wait(Socket::wait_read, std::forward<Handler>(handler));
    }

private:
    using TlsStream = boost::asio::ssl::stream<Socket&>;
    using Endpoints = std::vector<boost::asio::ip::tcp::endpoint>;

    void connect(const std::shared_ptr<void>& owner, const Endpoints& endpoints, Opened opened);
    void connected(const std::shared_ptr<void>& owner, Opened opened);
    void prepareTls();
    bool acceptsCertificate(boost::asio::ssl::verify_context& context);
    boost::system::error_code confirmKey();

    std::weak_ptr<IoThread> m_thread;
    Peer m_peer;
    Socket m_socket;
    std::shared_ptr<boost::asio::ssl::context> m_context;
    std::optional<TlsStream> m_tls;
    std::string m_presentedUid;
    std::string m_peerUid;
};

} // namespace Velto::Messaging
