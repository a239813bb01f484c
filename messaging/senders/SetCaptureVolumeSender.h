#pragma once

#include "messaging/senders/MessageSender.h"

namespace Velto::Messaging {

/// Sets the level of the audio source, in dB; `experienceModeId` is the one reported with the level.
class SetCaptureVolumeSender : public MessageSender {
public:
    using MessageSender::MessageSender;

    void triggerSendCaptureVolume(int experienceModeId, int volume);
};

} // namespace Velto::Messaging
