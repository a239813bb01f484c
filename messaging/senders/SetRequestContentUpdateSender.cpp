#include "messaging/senders/SetRequestContentUpdateSender.h"

namespace Velto::Messaging {

void SetRequestContentUpdateSender::triggerRequestContentUpdate() {
    sendPlain("RequestContentUpdate", std::string());
}

} // namespace Velto::Messaging
