#pragma once

#include "messaging/NetworkInterfaces.h"
#include "wire/Announcement.h"

#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/udp.hpp>
#include <boost/system/error_code.hpp>

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace Velto::Messaging {

/// Sends probes through one network interface and hears the answers to them. Bound to the interface's own
/// address: so nothing leaves elsewhere, and units answer to where they can be reached. Belongs to one I/O
/// thread; kept alive by its receiving until it is closed.
class ProbeSocket : public std::enable_shared_from_this<ProbeSocket> {
public:
    /// Takes one datagram, which may be anything; of a large one, a byte more than an announcement may have.
    using Heard = std::function<void(std::string_view datagram, const std::string& from)>;

    /// `heard` must not own the socket.
    ProbeSocket(boost::asio::io_context& context, NetworkInterface through, Heard heard);

    /// Makes it hear. On failure it stays closed.
    boost::system::error_code open();
    bool isOpen() const { return m_socket.is_open(); }
    void close();

    /// Sends to the group, to the broadcast address and on the loopback interface directly, to that port.
    /// An error only when nothing could be sent.
    boost::system::error_code probe(const std::string& datagram, std::uint16_t port);

private:
    using Udp = boost::asio::ip::udp;

    boost::system::error_code send(const std::string& datagram, const std::string& address,
                                   std::uint16_t port);
    void receive();
    void received(boost::system::error_code error, std::size_t size);

    const NetworkInterface m_through;
    const Heard m_heard;
    Udp::socket m_socket;
    Udp::endpoint m_sender;
    /// One byte more than an announcement has, to tell a larger one.
    std::array<char, Wire::receiveBufferSize> m_datagram{};
};

} // namespace Velto::Messaging
