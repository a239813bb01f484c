#pragma once

#include "wire/Identity.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace Velto::Test {

/// How a peer treats those who connect to it.
enum class Manner {
    Serve,           ///< as a unit does; answers each request with a response of the same type and body
    HangAtOnce,      ///< takes the connection and says nothing
    HangInUpgrade,   ///< does its TLS and says nothing
    TrickleUpgrade,  ///< as before, but answers the upgrade a byte at a time
    GarbageAtOnce,   ///< bytes that are no protocol
    CloseAtOnce,     ///<
    RefuseUpgrade,   ///< answers 404
    StopReading,     ///< serves, but never reads a message
    HangInFrame,     ///< serves, then stops in the middle of a frame
    TrickleFrame,    ///< serves, then goes on with a frame a byte at a time
    ResetConnection, ///< serves, then resets
    CloseConnection, ///< serves, then closes properly
    BreakProtocol,   ///< serves, then sends a frame with a reserved opcode
    AnnounceGiant,   ///< serves, then begins a frame of more than 16 MiB
    GiantHeader,     ///< serves, then sends a message without the header's end in 4 KiB
};

/// The other end of a messenger's connection, on 127.0.0.1 and a thread of its own: a unit that can behave as
/// badly as wanted. Every connection is treated in the manner set when it was taken.
class TestPeer {
public:
    /// All have the same key: this process remembers keys by port, and the system gives ports out again.
    explicit TestPeer(bool encrypted, Manner manner = Manner::Serve);
    /// One with a key of its own, at a port where another has been.
    static std::unique_ptr<TestPeer> impostorAt(std::uint16_t port);
    ~TestPeer();
    TestPeer(const TestPeer&) = delete;
    TestPeer& operator=(const TestPeer&) = delete;

    std::uint16_t port() const;
    const std::string& uid() const;
    void setManner(Manner manner);
    /// What GET /identity answers.
    void setIdentityDocument(std::string document);

    /// Sends one text message on every open connection.
    void send(const std::string& message);
    int connectionsTaken() const;
    std::vector<std::string> received() const;
    /// The code that the last connection was closed with from the other end.
    std::optional<int> closeCode() const;

private:
    class Server;
    explicit TestPeer(std::unique_ptr<Server> server);
    std::unique_ptr<Server> m_server;
};

/// Waits until `condition` holds; false when it does not within `bound`.
bool eventually(const std::function<bool()>& condition,
                std::chrono::milliseconds bound = std::chrono::seconds(20));

} // namespace Velto::Test
