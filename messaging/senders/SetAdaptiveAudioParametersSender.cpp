#include "messaging/senders/SetAdaptiveAudioParametersSender.h"

namespace Velto::Messaging {

void SetAdaptiveAudioParametersSender::triggerSendAdaptiveAudioParameters(int preMixType) {
    sendObject("SetAdaptiveAudioParameters", [preMixType](Writer& writer) {
        writer.Key("preMixType");
        writer.Int(preMixType);
    });
}

} // namespace Velto::Messaging
