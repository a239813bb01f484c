#pragma once

#include "messaging/senders/MessageSender.h"

namespace Velto::Messaging {

/// Puts the connected unit into another experience mode, by the mode's value.
class SetExperienceModeSender : public MessageSender {
public:
    using MessageSender::MessageSender;

    void triggerSendExperienceMode(int mode);
};

} // namespace Velto::Messaging
