#include "messaging/handlers/GetKelmNameNotificationHandler.h"

#include "messaging/handlers/BodyReader.h"

#include <Velto/Messaging/BodyJSONParser.h>

namespace Velto::Messaging {

void GetKelmNameNotificationHandler::handleResponse(std::shared_ptr<const IResponse> response) {
    const std::string& type = response->getMessageType();
    if (type == "SetKelmName") {
        valueReceived(QStringLiteral("SetKelmName"), QString());
        return;
    }
    if (type != "GetKelmName") {
        return;
    }
    QString name = QStringLiteral("");
    const auto body = BodyJSONParser::parse(response);
    if (const auto* value = Body::firstMember(*body, "kelmName")) {
        Body::readInto(name, *value);
    }
    valueReceived(QStringLiteral("GetKelmName"), name);
}

} // namespace Velto::Messaging
