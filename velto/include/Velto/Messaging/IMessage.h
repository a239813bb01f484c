#pragma once

#include <Velto/Buffer.h>

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace Velto::Messaging {

/// One message: the values of its envelope and its body. Immutable, so one object may be sent many times and
/// from any thread.
class IMessage {
public:
    enum class GenericMessageType {
        Request = 0,
        Response = 1,
        Notification = 2,
        Error = 3,
    };

    /// `body` holds the JSON text, or is none. `number` is echoed by the unit; `text` is the argument of a
    /// request without a body.
    IMessage(std::string messageType, std::uint32_t number, std::string text,
             std::shared_ptr<const ManagedBuffer> body, GenericMessageType genericType);
    virtual ~IMessage();

    const std::string& getMessageType() const { return m_messageType; }
    std::uint32_t getNumber() const { return m_number; }
    const std::string& getText() const { return m_text; }
    GenericMessageType getGenericMessageType() const { return m_genericType; }

    /// The body's bytes, empty when there is none; valid while the message lives.
    std::string_view getBody() const;

private:
    std::string m_messageType;
    std::uint32_t m_number;
    std::string m_text;
    std::shared_ptr<const ManagedBuffer> m_body;
    GenericMessageType m_genericType;
};

/// One incoming response, notification or error.
class IResponse : public IMessage {
public:
    enum class StatusType {
        Ok = 0,
        NotSupported = 1, ///< the unit does not know the message
        Malformed = 2,    ///< the unit could not read the message
        Refused = 3,      ///< the unit understood and will not
        Failed = 4,       ///< the unit tried and failed
    };

    IResponse(std::string messageType, std::uint32_t number, std::string text,
              std::shared_ptr<const ManagedBuffer> body, GenericMessageType genericType, StatusType status);

    StatusType getStatusType() const { return m_status; }

private:
    StatusType m_status;
};

/// Takes the incoming messages of the types it is registered for. Called on the messenger's thread, one at a
/// time and in the order of arrival.
class IResponseHandler {
public:
    virtual ~IResponseHandler() = default;
    virtual void handleResponse(std::shared_ptr<const IResponse> response) = 0;
};

/// Told of the connection to the chosen unit, on the messenger's thread. Connected and lost alternate, but
/// for `chooseUnit` of the unit that is already connected, which reports connected once more.
class IMessengerObserver {
public:
    virtual ~IMessengerObserver() = default;
    virtual void handleConnected() = 0;
    virtual void handleConnectionLost() = 0;
    /// An attempt to connect has failed. One that was dropped or replaced by the caller is not reported.
    virtual void handleNotice() = 0;
    /// The unit answered a request with an error.
    virtual void handleErrorResponse(std::shared_ptr<const IResponse> response);
};

} // namespace Velto::Messaging
