#include "messaging/handlers/GetAdaptiveAudioParametersHandler.h"

#include "messaging/handlers/BodyReader.h"

#include <Velto/Messaging/BodyJSONParser.h>

namespace Velto::Messaging {

namespace {

struct Parameters {
    int preMixType = 0;
};

constexpr Body::Member<Parameters> parameterMembers[] = {
    {"preMixType", &Body::field<&Parameters::preMixType>}};

} // namespace

void GetAdaptiveAudioParametersHandler::handleResponse(std::shared_ptr<const IResponse> response) {
    if (response->getMessageType() != "GetAdaptiveAudioParameters") {
        return;
    }
    Parameters parameters;
    Body::readMembers(*BodyJSONParser::parse(response), parameters, parameterMembers);
    emit adaptiveAudioParametersResponseReceived(QStringLiteral("getAdaptiveAudioParameters"),
                                                 parameters.preMixType);
}

} // namespace Velto::Messaging
