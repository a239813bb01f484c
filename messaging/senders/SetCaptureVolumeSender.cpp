#include "messaging/senders/SetCaptureVolumeSender.h"

namespace Velto::Messaging {

void SetCaptureVolumeSender::triggerSendCaptureVolume(int experienceModeId, int volume) {
    sendObject("SetCaptureVolume", [experienceModeId, volume](Writer& writer) {
        writer.Key("volume");
        writer.Int(volume);
        writer.Key("experienceModeId");
        writer.Int(experienceModeId);
    });
}

} // namespace Velto::Messaging
