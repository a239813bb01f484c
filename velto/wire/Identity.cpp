#include "Identity.h"

#include "PrivateFile.h"
#include "Utf8.h"

#include <openssl/bio.h>
#include <openssl/ec.h>
#include <openssl/err.h>
#include <openssl/evp.h>
#include <openssl/pem.h>
#include <openssl/rand.h>
#include <openssl/ssl.h>
#include <openssl/x509.h>

#include <algorithm>
#include <array>
#include <optional>
#include <stdexcept>
#include <system_error>
#include <utility>

namespace Velto::Wire {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t uidSize = 64;
constexpr std::size_t maximumCommonName = 64; // ub-common-name of RFC 5280
constexpr long secondsPerDay = 24L * 60 * 60;

template <auto release>
struct Release {
    template <typename T>
    void operator()(T* object) const {
        release(object);
    }
};
using KeyPtr = std::unique_ptr<EVP_PKEY, Release<EVP_PKEY_free>>;
using CertificatePtr = std::unique_ptr<X509, Release<X509_free>>;
using BioPtr = std::unique_ptr<BIO, Release<BIO_free_all>>;

[[noreturn]] void fail(const std::string& what) {
    std::array<char, 256> reason{};
    const unsigned long code = ERR_get_error();
    ERR_clear_error();
    if (code == 0)
        throw std::runtime_error(what);
    ERR_error_string_n(code, reason.data(), reason.size());
    throw std::runtime_error(what + ": " + reason.data());
}

std::string hex(const unsigned char* bytes, std::size_t size) {
    constexpr std::string_view digits = "0123456789abcdef";
    std::string text;
    text.reserve(size * 2);
    for (std::size_t i = 0; i < size; ++i) {
        text.push_back(digits[bytes[i] >> 4U]);
        text.push_back(digits[bytes[i] & 0x0FU]);
    }
    return text;
}

bool setSerialNumber(X509* certificate) {
    std::array<unsigned char, 8> random{};
    if (RAND_bytes(random.data(), static_cast<int>(random.size())) != 1)
        return false;
    std::uint64_t serial = 1; // never 0
    for (const unsigned char byte : random)
        serial = (serial << 7U) | byte;
    return ASN1_INTEGER_set_uint64(X509_get_serialNumber(certificate), serial) == 1;
}

/// Nobody checks a unit's dates: its clock may never have been set. The span is wide for those who do.
bool setValidity(X509* certificate) {
    return X509_gmtime_adj(X509_getm_notBefore(certificate), -secondsPerDay) &&
           ASN1_TIME_set_string(X509_getm_notAfter(certificate), "99991231235959Z") == 1;
}

bool setName(X509* certificate, std::string_view commonName) {
    const std::string name(cutAtCharacter(commonName, maximumCommonName));
    X509_NAME* const subject = X509_get_subject_name(certificate);
    return X509_NAME_add_entry_by_txt(subject, "CN", MBSTRING_UTF8,
                                      reinterpret_cast<const unsigned char*>(name.data()),
                                      static_cast<int>(name.size()), -1, 0) == 1 &&
           X509_set_issuer_name(certificate, subject) == 1;
}

CertificatePtr makeCertificate(EVP_PKEY* key, const std::string& commonName) {
    CertificatePtr certificate(X509_new());
    const bool made = certificate && X509_set_version(certificate.get(), X509_VERSION_3) == 1 &&
                      setSerialNumber(certificate.get()) && setValidity(certificate.get()) &&
                      setName(certificate.get(), commonName) &&
                      X509_set_pubkey(certificate.get(), key) == 1 &&
                      X509_sign(certificate.get(), key, EVP_sha256()) > 0;
    if (!made)
        fail("cannot make a certificate for " + commonName);
    return certificate;
}

std::string contentOf(BIO* bio) {
    char* bytes = nullptr;
    const long size = BIO_get_mem_data(bio, &bytes);
    return {bytes, static_cast<std::size_t>(size)};
}

/// Key files are not encrypted; without this OpenSSL would ask at the terminal.
int noPassPhrase(char* /*buffer*/, int /*size*/, int /*writing*/, void* /*context*/) {
    return -1;
}

} // namespace

struct Identity::Keys {
    KeyPtr key;
    CertificatePtr certificate;
    std::string uid;

    static std::shared_ptr<const Keys> of(KeyPtr key, CertificatePtr certificate) {
        auto keys = std::make_shared<Keys>();
        keys->uid = uidOfCertificate(certificate.get());
        keys->key = std::move(key);
        keys->certificate = std::move(certificate);
        return keys;
    }

    std::string pem() const {
        const BioPtr bio(BIO_new(BIO_s_mem()));
        if (!bio ||
            PEM_write_bio_PrivateKey(bio.get(), key.get(), nullptr, nullptr, 0, nullptr, nullptr) != 1 ||
            PEM_write_bio_X509(bio.get(), certificate.get()) != 1)
            fail("cannot write a key");
        return contentOf(bio.get());
    }

    static std::shared_ptr<const Keys> fromPem(const std::string& pem) {
        const BioPtr keyText(BIO_new_mem_buf(pem.data(), static_cast<int>(pem.size())));
        const BioPtr certificateText(BIO_new_mem_buf(pem.data(), static_cast<int>(pem.size())));
        if (!keyText || !certificateText)
            fail("out of memory");
        KeyPtr key(PEM_read_bio_PrivateKey(keyText.get(), nullptr, noPassPhrase, nullptr));
        if (!key)
            fail("no private key in it");
        CertificatePtr certificate(PEM_read_bio_X509(certificateText.get(), nullptr, noPassPhrase, nullptr));
        if (!certificate)
            fail("no certificate in it");
        if (X509_check_private_key(certificate.get(), key.get()) != 1)
            fail("its key and certificate do not belong together");
        return of(std::move(key), std::move(certificate));
    }

    static std::shared_ptr<const Keys> load(const fs::path& path) {
        const std::optional<std::string> pem = readSharedFile(path);
        if (!pem)
            throw std::runtime_error("cannot read the key file " + path.string());
        try {
            return fromPem(*pem);
        } catch (const std::runtime_error& error) {
            throw std::runtime_error("the key file " + path.string() + " is of no use: " + error.what());
        }
    }
};

namespace {

/// Puts a finished file in place unless there is one already; a half-written one is never seen there.
/// Tells whether it was this one.
bool putInPlace(const fs::path& finished, const fs::path& path) {
    std::error_code error;
    fs::create_hard_link(finished, path, error);
    if (!error) {
        fs::remove(finished, error);
        return true;
    }
    if (fs::exists(path)) {
        fs::remove(finished, error);
        return false;
    }
    // A file system without hard links.
    fs::rename(finished, path, error);
    if (!error)
        return true;
    const std::string reason = error.message();
    fs::remove(finished, error);
    throw std::runtime_error("cannot write the key file " + path.string() + ": " + reason);
}

std::string randomSuffix() {
    std::array<unsigned char, 8> random{};
    if (RAND_bytes(random.data(), static_cast<int>(random.size())) != 1)
        fail("no random numbers");
    return hex(random.data(), random.size());
}

} // namespace

std::string uidOfCertificate(X509* certificate) {
    if (!certificate || !X509_get0_pubkey(certificate))
        return {};
    unsigned char* der = nullptr;
    const int size = i2d_X509_PUBKEY(X509_get_X509_PUBKEY(certificate), &der);
    if (size <= 0)
        return {};
    std::array<unsigned char, EVP_MAX_MD_SIZE> digest{};
    unsigned int digestSize = 0;
    const int hashed =
        EVP_Digest(der, static_cast<std::size_t>(size), digest.data(), &digestSize, EVP_sha256(), nullptr);
    OPENSSL_free(der);
    return hashed == 1 ? hex(digest.data(), digestSize) : std::string{};
}

bool isKeyUid(std::string_view uid) {
    return uid.size() == uidSize && std::all_of(uid.begin(), uid.end(), [](char digit) {
               return (digit >= '0' && digit <= '9') || (digit >= 'a' && digit <= 'f');
           });
}

Identity::Identity(std::shared_ptr<const Keys> keys)
    : m_keys(std::move(keys)) {}

Identity Identity::generate(const std::string& commonName) {
    KeyPtr key(EVP_EC_gen("P-256"));
    if (!key)
        fail("cannot make a key for " + commonName);
    CertificatePtr certificate = makeCertificate(key.get(), commonName);
    return Identity(Keys::of(std::move(key), std::move(certificate)));
}

Identity Identity::loadOrCreate(const std::filesystem::path& folder, const std::string& name) {
    const fs::path path = folder / (name + ".pem");
    if (fs::exists(path))
        return Identity(Keys::load(path));
    std::error_code error;
    fs::create_directories(folder, error);
    Identity made = generate(name);
    const fs::path unfinished = folder / (name + "." + randomSuffix() + ".new");
    if (const auto failure = createPrivateFile(unfinished, made.m_keys->pem()))
        throw std::runtime_error("cannot write the key file " + path.string() + ": " + failure.message());
    // Of two that start at once, both end up with the key that got there first.
    return putInPlace(unfinished, path) ? made : Identity(Keys::load(path));
}

const std::string& Identity::uid() const {
    return m_keys->uid;
}

void Identity::useIn(SSL_CTX* context) const {
    if (SSL_CTX_use_certificate(context, m_keys->certificate.get()) != 1 ||
        SSL_CTX_use_PrivateKey(context, m_keys->key.get()) != 1 || SSL_CTX_check_private_key(context) != 1)
        fail("cannot present the key of " + m_keys->uid);
}

} // namespace Velto::Wire
