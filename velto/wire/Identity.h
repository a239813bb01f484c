#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

// OpenSSL's own types, so that no user of this header needs its headers.
using X509 = struct x509_st;
using SSL_CTX = struct ssl_ctx_st;

namespace Velto::Wire {

/// The uid of the unit that owns this certificate: lower-case hex SHA-256 of its DER SubjectPublicKeyInfo.
/// Empty when the certificate has no readable key.
std::string uidOfCertificate(X509* certificate);

/// Whether a uid has the form that ties it to a key: 64 lower-case hex digits.
bool isKeyUid(std::string_view uid);

/// A unit's P-256 key and the self-signed certificate that carries it.
class Identity {
public:
    /// A new key. Throws std::runtime_error when OpenSSL refuses.
    static Identity generate(const std::string& commonName);

    /// The key kept in `folder`/`name`.pem, made and written there (readable by the owner only) when there is
    /// none. Throws std::runtime_error with the path when it cannot be read or written.
    static Identity loadOrCreate(const std::filesystem::path& folder, const std::string& name);

    const std::string& uid() const;

    /// Makes a TLS server context present this identity. Throws std::runtime_error when OpenSSL refuses.
    void useIn(SSL_CTX* context) const;

private:
    struct Keys;
    explicit Identity(std::shared_ptr<const Keys> keys);
    std::shared_ptr<const Keys> m_keys;
};

} // namespace Velto::Wire
