#include "messaging/senders/SetCaptureDevicesModeSender.h"

namespace Velto::Messaging {

void SetCaptureDevicesModeSender::triggerSendCaptureDevice(const std::string& identification) {
    sendObject("SetCaptureDevicesMode", [&identification](Writer& writer) {
        writer.Key("identification");
        writer.String(identification);
        writer.Key("mode");
        writer.String("manual");
    });
}

} // namespace Velto::Messaging
