#include "messaging/senders/SetRecognitionToleranceNotificationSender.h"

namespace Velto::Messaging {

void SetRecognitionToleranceNotificationSender::triggerSendRecognitionTolerance(int recognitionTolerance) {
    sendObject("SetRecognitionTolerance", [recognitionTolerance](Writer& writer) {
        writer.Key("recognitionTolerance");
        writer.Int(recognitionTolerance);
    });
}

} // namespace Velto::Messaging
