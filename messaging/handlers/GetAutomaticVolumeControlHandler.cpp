#include "messaging/handlers/GetAutomaticVolumeControlHandler.h"

#include "messaging/handlers/BodyReader.h"

#include <Velto/Messaging/BodyJSONParser.h>

namespace Velto::Messaging {

namespace {

struct Control {
    bool enabled = false;
};

constexpr Body::Member<Control> controlMembers[] = {{"enabled", &Body::field<&Control::enabled>}};

} // namespace

void GetAutomaticVolumeControlHandler::handleResponse(std::shared_ptr<const IResponse> response) {
    if (response->getMessageType() != "GetAutomaticVolumeControl") {
        return;
    }
    Control control;
    Body::readMembers(*BodyJSONParser::parse(response), control, controlMembers);
    emit automaticVolumeControlResponseReceived(QStringLiteral("getAutomaticVolumeControl"), control.enabled);
}

} // namespace Velto::Messaging
