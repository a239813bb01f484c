#pragma once

#include "simulator/Faults.h"
#include "velto/wire/Identity.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace Simulator {

class HostLoop;

using ConnectionId = std::uint64_t;

/// The unit's port: WebSocket and GET /identity next to each other, over TLS or plain. Belongs to the host's
/// thread, as does everything it calls.
class UnitServer {
public:
    /// What the server needs of its unit, which outlives it.
    class Unit {
    public:
        virtual ~Unit() = default;
        virtual const Faults& faults() const = 0;
        /// The key to show to the connection that comes in now.
        virtual const Velto::Wire::Identity& keyToShow() = 0;
        virtual std::string identityDocument() = 0;
        virtual void connectionOpened() = 0;
        /// A frame of text came in; answers go out through `send`.
        virtual void frameReceived(ConnectionId connection, std::string_view frame) = 0;
        virtual void frameSent(std::size_t bytes) = 0;

    protected:
        Unit() = default;
        Unit(const Unit&) = default;
        Unit& operator=(const Unit&) = default;
    };

    UnitServer(HostLoop& loop, Unit& unit, bool encrypted);
    /// Drops every connection.
    ~UnitServer();
    UnitServer(const UnitServer&) = delete;
    UnitServer& operator=(const UnitServer&) = delete;

    /// Opens the port, any free one for 0, and returns it. Throws std::runtime_error naming address and port.
    std::uint16_t listen(const std::string& address, std::uint16_t port);
    bool isListening() const;
    /// Closes the port; connections stay.
    void stopListening();
    /// Ends every connection without a word.
    void dropConnections();
    /// Closes every connection with this WebSocket close code.
    void closeConnections(std::uint16_t code);

    void send(ConnectionId connection, Outgoing outgoing);
    void close(ConnectionId connection, std::uint16_t code);
    /// Sends a frame to every client but one (0: to all); returns to how many.
    std::size_t broadcast(const std::string& frame, ConnectionId except = 0);
    std::size_t clients() const;

private:
    struct Impl;
    std::shared_ptr<Impl> m_impl;
};

} // namespace Simulator
