#include "messaging/senders/SetKelmNameNotificationSender.h"

namespace Velto::Messaging {

void SetKelmNameNotificationSender::triggerSendKelmName(QString kelmName) {
    sendObject("SetKelmName", [&kelmName](Writer& writer) {
        writer.Key("kelmName");
        writeText(writer, kelmName);
    });
}

} // namespace Velto::Messaging
