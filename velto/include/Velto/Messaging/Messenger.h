#pragma once

#include <Velto/Messaging/IMessage.h>
#include <orvex/Messaging/Discoverer.h>
#include <orvex/Observed.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace Velto::Messaging {

enum class CommunicationResult {
    Success = 0,
    NotConnected = 1, ///< there is no unit to send to; the message was dropped
    TooLarge = 2,     ///< the message exceeds the frame limit and was dropped
    QueueFull = 3,    ///< too much waits to be written; the message was dropped
};

class ITransport {
public:
    enum class TransportType {
        Tcp = 1,
        Tls = 2,
        WebSocket = 3, ///< RFC 6455, over TLS for a unit that is encrypted
    };
};

/// Finds units and holds the connection to one of them, the chosen one.
///
/// Every operation may be called on any thread, also inside a callback, never blocks and never throws. The
/// callbacks of one messenger come from the communication component's thread, one at a time, in order;
/// nothing happens before that component is resumed. The destructor returns only when no callback is running
/// or can still come, so it must not be called from one.
class Messenger : public std::enable_shared_from_this<Messenger>,
                  public orvex::Observed<IMessengerObserver, std::weak_ptr<IMessengerObserver>> {
public:
    /// How units are found.
    struct DiscoveryStrategyInfo {
        /// 3: probes sent to UDP port `parameter` every `number` ms.
        /// 2: one unit, `parameter` being "encrypted;host;port" (or "plain;host;port"), asked every `number`
        /// ms.
        std::int32_t kind = 0;
        std::string parameter;
        std::int32_t number = 0;
    };

    /// Units of another service than `serviceName` are ignored. Only `WebSocket` can connect.
    Messenger(const std::vector<std::shared_ptr<DiscoveryStrategyInfo>>& strategies, std::string serviceName,
              ITransport::TransportType transportType);
    ~Messenger() override;
    Messenger(const Messenger&) = delete;
    Messenger& operator=(const Messenger&) = delete;

    /// Selects the unit to talk to, replacing whatever was under way (a connection to another unit is lost).
    /// `connectNow` connects at once, false when `connect` is called; `timeout` bounds the attempt in ms, 0:
    /// as told to `connect`. The unit that is already connected reports connected again. False when the
    /// address is empty or the port 0.
    bool chooseUnit(const std::string& address, const std::string& name, std::uint16_t port, bool encrypted,
                    bool connectNow, std::int32_t timeout);

    /// Brings the messenger into service: discovery starts, and so does the connection to a unit that was
    /// chosen before. `timeout` in ms bounds each attempt that has no bound of its own.
    virtual CommunicationResult connect(int timeout);

    /// Drops the connection, or the attempt. `handleConnectionLost` follows within 50 ms if it was connected.
    virtual void disconnect();

    /// Queues one message. Its bytes are taken over before this returns.
    CommunicationResult send(std::shared_ptr<IMessage> message);

    /// Binds the handler to every incoming message of that type; a later one replaces an earlier one.
    /// `number` is kept for the interface's sake: a handler hears its type whatever the number.
    void registerResponse(const std::string& messageType, std::uint32_t number,
                          std::shared_ptr<IResponseHandler> handler);

    std::shared_ptr<orvex::Messaging::Discoverer> getDiscoverer() const;

private:
    class Core;
    std::shared_ptr<Core> m_core;
};

} // namespace Velto::Messaging
