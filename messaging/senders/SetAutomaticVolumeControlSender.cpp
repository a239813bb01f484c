#include "messaging/senders/SetAutomaticVolumeControlSender.h"

namespace Velto::Messaging {

void SetAutomaticVolumeControlSender::triggerSendAutomaticVolumeControl(bool enable) {
    sendObject("SetAutomaticVolumeControl", [enable](Writer& writer) {
        writer.Key("enable");
        writer.Bool(enable);
    });
}

} // namespace Velto::Messaging
