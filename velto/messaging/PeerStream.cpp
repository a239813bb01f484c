#include "messaging/PeerStream.h"

#include "messaging/HostLookup.h"
#include "messaging/PeerKeys.h"
#include "wire/Identity.h"

#include <boost/asio/connect.hpp>
#include <boost/asio/error.hpp>
#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/address.hpp>
#include <boost/asio/post.hpp>
#include <boost/asio/ssl/verify_context.hpp>
#include <openssl/ssl.h>

namespace Velto::Messaging {

namespace {

using boost::asio::ip::tcp;
using boost::system::error_code;
namespace ssl = boost::asio::ssl;

/// One for all connections: it holds no secret of ours, only what we ask of a peer.
std::shared_ptr<ssl::context> clientContext() {
    static const auto context = [] {
        auto made = std::make_shared<ssl::context>(ssl::context::tls_client);
        SSL_CTX_set_min_proto_version(made->native_handle(), TLS1_2_VERSION);
        made->set_verify_mode(ssl::verify_peer);
        return made;
    }();
    return context;
}

bool isAddress(const std::string& host) {
    error_code notAnAddress;
    boost::asio::ip::make_address(host, notAnAddress);
    return !notAnAddress;
}

error_code refused() {
    return boost::asio::error::access_denied;
}

} // namespace

PeerStream::PeerStream(const std::shared_ptr<IoThread>& thread, Peer peer)
    : m_thread(thread)
    , m_peer(std::move(peer))
    , m_socket(thread->context()) {}

void PeerStream::open(const std::shared_ptr<void>& owner, Opened opened) {
    const auto thread = m_thread.lock();
    if (!thread)
        return;
    if (!m_peer.encrypted && !PeerKeys::allowsPlain(m_peer)) {
        thread->post([owner, opened = std::move(opened)] { opened(refused()); });
        return;
    }
    lookUpHost(thread, m_peer.host, m_peer.port,
               [this, weak = std::weak_ptr<void>(owner),
                opened = std::move(opened)](error_code error, const Endpoints& endpoints) {
                   const auto alive = weak.lock();
                   if (!alive)
                       return;
                   if (error)
                       opened(error);
                   else
                       connect(alive, endpoints, opened);
               });
}

void PeerStream::connect(const std::shared_ptr<void>& owner, const Endpoints& endpoints, Opened opened) {
    boost::asio::async_connect(
        m_socket, endpoints,
        [this, owner, opened = std::move(opened)](error_code error, const tcp::endpoint&) {
            if (error)
                opened(error);
            else
                connected(owner, opened);
        });
}

void PeerStream::connected(const std::shared_ptr<void>& owner, Opened opened) {
    error_code ignored;
    m_socket.set_option(tcp::no_delay(true), ignored);
    if (!m_peer.encrypted) {
        opened({});
        return;
    }
    prepareTls();
    m_tls->async_handshake(ssl::stream_base::client,
                           [this, owner, opened = std::move(opened)](error_code error) {
                               opened(error ? error : confirmKey());
                           });
}

void PeerStream::prepareTls() {
    m_context = clientContext();
    m_tls.emplace(m_socket, *m_context);
    if (!isAddress(m_peer.host))
        SSL_set_tlsext_host_name(m_tls->native_handle(), m_peer.host.c_str());
    error_code ignored;
    m_tls->set_verify_callback(
        [this](bool, ssl::verify_context& context) { return acceptsCertificate(context); }, ignored);
}

bool PeerStream::acceptsCertificate(ssl::verify_context& context) {
    // Units sign their own certificates: names, dates and signers say nothing, the key says all.
    if (X509_STORE_CTX_get_error_depth(context.native_handle()) != 0)
        return true;
    m_presentedUid = Wire::uidOfCertificate(X509_STORE_CTX_get_current_cert(context.native_handle()));
    return PeerKeys::instance().accepts(m_peer, m_presentedUid);
}

error_code PeerStream::confirmKey() {
    // Without a certificate the callback is never asked.
    if (!PeerKeys::instance().accepts(m_peer, m_presentedUid))
        return refused();
    PeerKeys::instance().hold(m_peer, m_presentedUid);
    m_peerUid = m_presentedUid;
    return {};
}

void PeerStream::close() {
    error_code ignored;
    m_socket.close(ignored);
}

std::string PeerStream::peerAddress() const {
    error_code error;
    const auto endpoint = m_socket.remote_endpoint(error);
    return error ? std::string() : endpoint.address().to_string();
}

std::string PeerStream::hostField() const {
    const bool bracketed = m_peer.host.find(':') != std::string::npos;
    return (bracketed ? "[" + m_peer.host + "]" : m_peer.host) + ":" + std::to_string(m_peer.port);
}

} // namespace Velto::Messaging
