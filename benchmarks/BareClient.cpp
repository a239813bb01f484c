#include "benchmarks/BareClient.h"

#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/ssl/context.hpp>
#include <boost/beast/core/flat_buffer.hpp>
#include <boost/beast/ssl.hpp>
#include <boost/beast/websocket.hpp>
#include <boost/beast/websocket/ssl.hpp>

namespace Bench {

namespace asio = boost::asio;
namespace beast = boost::beast;

struct BareClient::Connection {
    asio::io_context io;
    asio::ssl::context tls{asio::ssl::context::tls_client};
    beast::websocket::stream<beast::ssl_stream<asio::ip::tcp::socket>> socket{io, tls};
    beast::flat_buffer incoming;
};

BareClient::BareClient(const std::string& address, std::uint16_t port)
    : m_connection(std::make_unique<Connection>()) {
    auto& socket = m_connection->socket;
    auto& tcp = socket.next_layer().next_layer();
    tcp.connect({asio::ip::make_address(address), port});
    tcp.set_option(asio::ip::tcp::no_delay(true));
    socket.next_layer().handshake(asio::ssl::stream_base::client);
    socket.text(true);
    socket.handshake(address, "/");
}

BareClient::~BareClient() = default;

std::size_t BareClient::exchange(const std::string& frame) {
    m_connection->socket.write(asio::buffer(frame));
    m_connection->incoming.clear();
    return m_connection->socket.read(m_connection->incoming);
}

void BareClient::exchangeAll(const std::vector<std::string>& frames) {
    for (const std::string& frame : frames) {
        m_connection->socket.write(asio::buffer(frame));
    }
    for (std::size_t answer = 0; answer < frames.size(); ++answer) {
        m_connection->incoming.clear();
        m_connection->socket.read(m_connection->incoming);
    }
}

} // namespace Bench
