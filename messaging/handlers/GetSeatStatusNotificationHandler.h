#pragma once

#include "messaging/handlers/KeptState.h"
#include "messaging/handlers/ValueHandler.h"
#include "messaging/records/SeatInfo.h"

namespace Velto::Messaging {

class Messenger;

/// Asks for and reads the unit's seats: keeps the list, then reports ("GetSeatStatus", nothing).
class GetSeatStatusNotificationHandler : public ValueHandler {
public:
    GetSeatStatusNotificationHandler();

    /// Asks the connected unit.
    void sendRequest(Messenger& messenger) const;

    void handleResponse(std::shared_ptr<const IResponse> response) override;

    /// The seats of the last message. Any thread.
    orvex::SeatStatusList seats() const { return m_seats.snapshot(); }

private:
    std::shared_ptr<IMessage> m_request;
    KeptState<orvex::SeatStatusList> m_seats;
};

} // namespace Velto::Messaging
