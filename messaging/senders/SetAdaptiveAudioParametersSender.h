#pragma once

#include "messaging/senders/MessageSender.h"

namespace Velto::Messaging {

/// Sets how the connected unit mixes the audio it analyses.
class SetAdaptiveAudioParametersSender : public MessageSender {
public:
    using MessageSender::MessageSender;

    void triggerSendAdaptiveAudioParameters(int preMixType);
};

} // namespace Velto::Messaging
