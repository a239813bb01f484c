#pragma once

#include "messaging/IoThread.h"

#include <boost/asio/ip/tcp.hpp>
#include <boost/system/error_code.hpp>

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace Velto::Messaging {

using HostFound =
    std::function<void(boost::system::error_code, const std::vector<boost::asio::ip::tcp::endpoint>&)>;

/// Turns an address or a host name into end points and tells `found` on the I/O thread, never inside this
/// call. The system's look-up of a name may take half a minute and cannot be interrupted, so it runs on a
/// thread that nothing waits for: `found` must not own what belongs to the I/O thread.
void lookUpHost(const std::shared_ptr<IoThread>& thread, const std::string& host, std::uint16_t port,
                HostFound found);

} // namespace Velto::Messaging
