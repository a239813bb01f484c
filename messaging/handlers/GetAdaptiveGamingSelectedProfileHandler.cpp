#include "messaging/handlers/GetAdaptiveGamingSelectedProfileHandler.h"

#include "messaging/handlers/BodyReader.h"

#include <Velto/Messaging/BodyJSONParser.h>

namespace Velto::Messaging {

using orvex::AdaptiveGamingSelectedProfile;

namespace {

constexpr Body::Member<AdaptiveGamingSelectedProfile> profileMembers[] = {
    {"id", &Body::field<&AdaptiveGamingSelectedProfile::id>},
    {"name", &Body::field<&AdaptiveGamingSelectedProfile::name>},
    {"type", &Body::field<&AdaptiveGamingSelectedProfile::type>},
    {"version", &Body::field<&AdaptiveGamingSelectedProfile::version>},
};

} // namespace

void GetAdaptiveGamingSelectedProfileHandler::handleResponse(std::shared_ptr<const IResponse> response) {
    if (response->getMessageType() != "GetAdaptiveGamingSelectedProfile") {
        return;
    }
    QSharedPointer<AdaptiveGamingSelectedProfile> profile;
    const auto body = BodyJSONParser::parse(response);
    if (!body->ObjectEmpty()) {
        profile = QSharedPointer<AdaptiveGamingSelectedProfile>::create();
        const auto* selected = Body::firstMember(*body, "selectedProfile");
        if (selected && selected->IsObject()) {
            Body::readMembers(*selected, *profile, profileMembers);
        }
    }
    emit adaptiveGamingSelectedProfileReceivedSignal(profile);
}

} // namespace Velto::Messaging
