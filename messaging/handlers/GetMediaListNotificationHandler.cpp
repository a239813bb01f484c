#include "messaging/handlers/GetMediaListNotificationHandler.h"

#include "messaging/handlers/MediaListReader.h"
#include "messaging/senders/MessageSender.h"

#include <Velto/Messaging/Messenger.h>

namespace Velto::Messaging {

namespace {

constexpr auto messageType = "GetMediaListNotification";

} // namespace

GetMediaListNotificationHandler::GetMediaListNotificationHandler()
    : m_request(makeGetMessage(messageType)) {}

void GetMediaListNotificationHandler::registerWith(Messenger& messenger) {
    messenger.registerResponse(messageType, messageNumber, shared_from_this());
}

void GetMediaListNotificationHandler::sendRequest(Messenger& messenger) const {
    messenger.send(m_request);
}

void GetMediaListNotificationHandler::handleResponse(std::shared_ptr<const IResponse> response) {
    if (response->getMessageType() != messageType) {
        return;
    }
    emit mediaListChanged(readMediaList(response->getBody()));
}

} // namespace Velto::Messaging
