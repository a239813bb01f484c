#pragma once

#include "messaging/senders/MessageSender.h"

namespace Velto::Messaging {

/// Lets the connected unit control the level of its audio source, or not.
class SetAutomaticVolumeControlSender : public MessageSender {
public:
    using MessageSender::MessageSender;

    void triggerSendAutomaticVolumeControl(bool enable);
};

} // namespace Velto::Messaging
