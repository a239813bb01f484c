#pragma once

#include "messaging/senders/MessageSender.h"

namespace Velto::Messaging {

/// Selects the audio source of the connected unit, by its identification.
class SetCaptureDevicesModeSender : public MessageSender {
public:
    using MessageSender::MessageSender;

    void triggerSendCaptureDevice(const std::string& identification);
};

} // namespace Velto::Messaging
