#include "messaging/senders/SetExperienceModeSender.h"

namespace Velto::Messaging {

void SetExperienceModeSender::triggerSendExperienceMode(int mode) {
    sendObject("SetExperienceMode", [mode](Writer& writer) {
        writer.Key("experienceMode");
        writer.Int(mode);
    });
}

} // namespace Velto::Messaging
