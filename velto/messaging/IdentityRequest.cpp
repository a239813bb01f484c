#include "messaging/IdentityRequest.h"

#include "messaging/PeerStream.h"

#include <boost/asio/io_context.hpp>
#include <boost/asio/steady_timer.hpp>
#include <boost/beast/core/flat_buffer.hpp>
#include <boost/beast/http/empty_body.hpp>
#include <boost/beast/http/message.hpp>
#include <boost/beast/http/parser.hpp>
#include <boost/beast/http/read.hpp>
#include <boost/beast/http/string_body.hpp>
#include <boost/beast/http/write.hpp>

#include <utility>

namespace Velto::Messaging {

namespace {

namespace http = boost::beast::http;
using boost::system::error_code;

constexpr std::uint32_t maximumHeaderSize = 4 * 1024;

class IdentityRequest : public std::enable_shared_from_this<IdentityRequest> {
public:
    IdentityRequest(const std::shared_ptr<IoThread>& thread, Peer peer,
                    std::function<void(const IdentityAnswer&)> answered)
        : m_timer(thread->context())
        , m_stream(thread, std::move(peer))
        , m_answered(std::move(answered)) {
        m_parser.header_limit(maximumHeaderSize);
        m_parser.body_limit(Wire::maximumDatagramSize);
    }

    void start(std::chrono::milliseconds timeout) {
        m_timer.expires_after(timeout);
        m_timer.async_wait([self = shared_from_this()](error_code error) {
            if (!error)
                self->fail("no answer in time");
        });
        m_stream.open(shared_from_this(), [this](error_code error) { opened(error); });
    }

private:
    void opened(error_code error) {
        if (failedWith(error))
            return;
        m_request.set(http::field::host, m_stream.hostField());
        m_request.set(http::field::accept, "application/json");
        m_request.set(http::field::connection, "close");
        http::async_write(m_stream, m_request, [self = shared_from_this()](error_code failed, std::size_t) {
            if (!self->failedWith(failed))
                self->read();
        });
    }

    void read() {
        http::async_read(m_stream, m_buffer, m_parser,
                         [self = shared_from_this()](error_code failed, std::size_t) {
                             if (!self->failedWith(failed))
                                 self->take(self->m_parser.get());
                         });
    }

    void take(const http::response<http::string_body>& response) {
        if (response.result() != http::status::ok) {
            fail("answered with status " + std::to_string(response.result_int()));
            return;
        }
        auto announcement = Wire::decodeAnnouncement(response.body());
        if (!announcement) {
            fail("the answer is no announcement");
            return;
        }
        // What it says of itself must be what it has proved.
        if (m_stream.peer().encrypted && announcement->uid != m_stream.peerUid()) {
            fail("the answer is about the key of another unit");
            return;
        }
        finish({std::move(announcement), m_stream.peerAddress(), {}});
    }

    bool failedWith(error_code error) {
        if (error)
            fail(error.message());
        return static_cast<bool>(error);
    }

    void fail(const std::string& problem) { finish({std::nullopt, {}, problem}); }

    void finish(const IdentityAnswer& answer) {
        m_timer.cancel();
        m_stream.close();
        if (const auto answered = std::exchange(m_answered, nullptr))
            answered(answer);
    }

    boost::asio::steady_timer m_timer;
    PeerStream m_stream;
    std::function<void(const IdentityAnswer&)> m_answered;
    http::request<http::empty_body> m_request{http::verb::get, "/identity", 11};
    boost::beast::flat_buffer m_buffer;
    http::response_parser<http::string_body> m_parser;
};

} // namespace

void requestIdentity(const std::shared_ptr<IoThread>& thread, Peer peer, std::chrono::milliseconds timeout,
                     std::function<void(const IdentityAnswer&)> answered) {
    std::make_shared<IdentityRequest>(thread, std::move(peer), std::move(answered))->start(timeout);
}

} // namespace Velto::Messaging
