#include "messaging/HostLookup.h"

#include <boost/asio/error.hpp>
#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/address.hpp>

#include <atomic>
#include <system_error>
#include <thread>
#include <utility>

namespace Velto::Messaging {

namespace {

using boost::asio::ip::tcp;
using boost::system::error_code;

/// A name server that does not answer must not make threads pile up.
constexpr int maximumLookups = 8;
std::atomic<int> runningLookups{0};

struct Lookup {
    std::weak_ptr<IoThread> thread;
    std::string host;
    std::uint16_t port;
    HostFound found;

    void tell(error_code error, std::vector<tcp::endpoint> endpoints) {
        const auto target = thread.lock();
        if (!target)
            return;
        target->post([told = std::move(found), error, heard = std::move(endpoints)] { told(error, heard); });
    }

    void run() {
        boost::asio::io_context context;
        tcp::resolver resolver(context);
        error_code error;
        const auto results = resolver.resolve(host, std::to_string(port), error);
        std::vector<tcp::endpoint> endpoints;
        for (const auto& result : results)
            endpoints.push_back(result.endpoint());
        tell(error, std::move(endpoints));
    }
};

void runAside(Lookup lookup) {
    if (runningLookups.fetch_add(1) >= maximumLookups) {
        --runningLookups;
        lookup.tell(boost::asio::error::host_not_found_try_again, {});
        return;
    }
    try {
        std::thread([lookup]() mutable {
            lookup.run();
            --runningLookups;
        }).detach();
    } catch (const std::system_error&) {
        --runningLookups;
        lookup.tell(boost::asio::error::no_memory, {});
    }
}

} // namespace

void lookUpHost(const std::shared_ptr<IoThread>& thread, const std::string& host, std::uint16_t port,
                HostFound found) {
    Lookup lookup{thread, host, port, std::move(found)};
    error_code notAnAddress;
    const auto address = boost::asio::ip::make_address(host, notAnAddress);
    if (notAnAddress)
        runAside(std::move(lookup));
    else
        lookup.tell({}, {tcp::endpoint(address, port)});
}

} // namespace Velto::Messaging
