#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

/// A client that shares no code with the program: bare WebSocket, HTTP and UDP. Every wait is bounded.
class ForeignClient {
public:
    static constexpr std::chrono::milliseconds patience{10'000};

    ForeignClient();
    ~ForeignClient();
    ForeignClient(const ForeignClient&) = delete;
    ForeignClient& operator=(const ForeignClient&) = delete;

    /// Each returns why it failed, empty when it did not; "timeout" when nothing came in time.
    std::string connectTcp(const std::string& address, std::uint16_t port);
    std::string greet(std::chrono::milliseconds wait = patience); ///< the TLS handshake
    std::string upgrade(std::chrono::milliseconds wait = patience);
    /// All three; without TLS when not encrypted.
    std::string connect(const std::string& address, std::uint16_t port, bool encrypted = true);
    std::string presentedUid() const;

    struct Page {
        unsigned int status = 0;
        std::string type;
        std::string body;
    };
    Page get(const std::string& target, const std::string& method = "GET");

    std::string send(const std::string& frame, bool text = true);
    /// None on time-out or when the connection has ended, see `ended`.
    std::optional<std::string> receive(std::chrono::milliseconds wait = patience);
    /// Every byte that comes in until there are so many, the connection ends or time is over; not unmasked,
    /// not unframed.
    std::string receiveRaw(std::size_t size, std::chrono::milliseconds wait);
    bool ended() const;
    int closeCode() const; ///< 0 when the peer said nothing
    std::string ping();    ///< empty once the pong is there

private:
    struct Impl;
    std::unique_ptr<Impl> m_impl;
};

/// Sends probes and collects what comes back.
class Prober {
public:
    struct Reply {
        std::string from;
        std::string text;
    };

    Prober();
    ~Prober();
    Prober(const Prober&) = delete;
    Prober& operator=(const Prober&) = delete;

    void send(const std::string& datagram, std::uint16_t port, const std::string& to = "127.0.0.1");
    /// Returns as soon as there are so many.
    std::vector<Reply> collect(std::size_t count, std::chrono::milliseconds wait = ForeignClient::patience);

private:
    struct Impl;
    std::unique_ptr<Impl> m_impl;
};

/// Holds a UDP port in a way that lets nobody share it.
class PortHolder {
public:
    PortHolder();
    ~PortHolder();
    PortHolder(const PortHolder&) = delete;
    PortHolder& operator=(const PortHolder&) = delete;
    std::uint16_t port() const;

private:
    struct Impl;
    std::unique_ptr<Impl> m_impl;
};

/// A UDP port nobody uses at the moment.
std::uint16_t freeUdpPort();
