#include "messaging/senders/SetMotionDelayNotificationSender.h"

namespace Velto::Messaging {

void SetMotionDelayNotificationSender::triggerSendMotionDelay(int motionDelay) {
    sendObject("SetMotionDelay", [motionDelay](Writer& writer) {
        writer.Key("motionDelay");
        writer.Int(motionDelay);
    });
}

} // namespace Velto::Messaging
