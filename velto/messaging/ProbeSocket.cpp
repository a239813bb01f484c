#include "messaging/ProbeSocket.h"

#include <boost/asio/buffer.hpp>
#include <boost/asio/error.hpp>
#include <boost/asio/ip/multicast.hpp>

#include <utility>

namespace Velto::Messaging {

namespace {

using boost::asio::ip::make_address_v4;
using boost::system::error_code;

/// Errors that concern one datagram, not the socket: one of ours found nobody listening, or expired under way
/// (which Windows tells of).
bool concernsOneDatagram(error_code error) {
    return error == boost::asio::error::connection_reset || error == boost::asio::error::connection_refused ||
           error == boost::asio::error::network_reset;
}

} // namespace

ProbeSocket::ProbeSocket(boost::asio::io_context& context, NetworkInterface through, Heard heard)
    : m_through(std::move(through))
    , m_heard(std::move(heard))
    , m_socket(context) {}

error_code ProbeSocket::open() {
    error_code error;
    const auto address = make_address_v4(m_through.address, error);
    if (!error)
        m_socket.open(Udp::v4(), error);
    if (!error)
        m_socket.set_option(boost::asio::socket_base::broadcast(true), error);
    if (!error)
        m_socket.set_option(boost::asio::ip::multicast::outbound_interface(address), error);
    if (!error)
        m_socket.bind(Udp::endpoint(address, 0), error);
    if (!error)
        m_socket.non_blocking(true, error);
    if (error)
        close();
    else
        receive();
    return error;
}

void ProbeSocket::close() {
    error_code ignored;
    m_socket.close(ignored);
}

error_code ProbeSocket::probe(const std::string& datagram, std::uint16_t port) {
    const auto group = send(datagram, Wire::multicastGroup, port);
    // On the loopback interface a unit may be unable to join the group; elsewhere some networks filter it.
    const std::string& direct = m_through.loopback ? m_through.address : m_through.broadcast;
    if (direct.empty())
        return group;
    const auto directly = send(datagram, direct, port);
    return group ? directly : group;
}

error_code ProbeSocket::send(const std::string& datagram, const std::string& address, std::uint16_t port) {
    error_code error;
    m_socket.send_to(boost::asio::buffer(datagram), Udp::endpoint(make_address_v4(address), port), 0, error);
    return error;
}

void ProbeSocket::receive() {
    m_socket.async_receive_from(
        boost::asio::buffer(m_datagram), m_sender,
        [self = shared_from_this()](error_code error, std::size_t size) { self->received(error, size); });
}

void ProbeSocket::received(error_code error, std::size_t size) {
    if (!isOpen())
        return;
    if (error && !concernsOneDatagram(error)) {
        close();
        return;
    }
    if (!error)
        m_heard({m_datagram.data(), size}, m_sender.address().to_string());
    if (isOpen())
        receive();
}

} // namespace Velto::Messaging
