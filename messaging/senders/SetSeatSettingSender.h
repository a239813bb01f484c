#pragma once

#include "messaging/records/SeatInfo.h"
#include "messaging/senders/MessageSender.h"

namespace Velto::Messaging {

/// Sets one seat of the connected unit. Levels that are no finite numbers are logged and not sent.
class SetSeatSettingSender : public MessageSender {
public:
    using MessageSender::MessageSender;

    void triggerSendSeatSetting(const orvex::SeatInfo& seat);
};

} // namespace Velto::Messaging
