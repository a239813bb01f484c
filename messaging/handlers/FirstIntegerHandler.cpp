#include "messaging/handlers/FirstIntegerHandler.h"

#include "messaging/handlers/BodyReader.h"

#include <Velto/Messaging/BodyJSONParser.h>

namespace Velto::Messaging {

void FirstIntegerHandler::handleResponse(std::shared_ptr<const IResponse> response) {
    if (response->getMessageType() != m_messageType) {
        return;
    }
    int number = 0;
    const auto body = BodyJSONParser::parse(response);
    if (const auto* value = Body::firstMember(*body, m_member)) {
        Body::readInto(number, *value);
    }
    valueReceived(QString::fromLatin1(m_member), number);
}

} // namespace Velto::Messaging
