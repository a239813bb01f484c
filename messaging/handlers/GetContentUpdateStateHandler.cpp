#include "messaging/handlers/GetContentUpdateStateHandler.h"

#include "messaging/handlers/BodyReader.h"
#include "messaging/senders/MessageSender.h"

#include <Velto/Messaging/BodyJSONParser.h>
#include <Velto/Messaging/Messenger.h>

namespace Velto::Messaging {

using orvex::ContentUpdateState;

namespace {

constexpr auto messageType = "GetContentUpdateState";

constexpr Body::Member<ContentUpdateState> stateMembers[] = {
    {"stateId", &Body::field<&ContentUpdateState::stateId>},
    {"stateName", &Body::field<&ContentUpdateState::stateName>},
    {"code", &Body::field<&ContentUpdateState::code>},
    {"message", &Body::field<&ContentUpdateState::message>},
    {"progressType", &Body::field<&ContentUpdateState::progressType>},
    {"progressValue", &Body::field<&ContentUpdateState::progressValue>},
    {"updatedTimestamp", &Body::field<&ContentUpdateState::updatedTimestamp>},
};

} // namespace

GetContentUpdateStateHandler::GetContentUpdateStateHandler()
    : m_request(makeGetMessage(messageType)) {}

void GetContentUpdateStateHandler::registerWith(Messenger& messenger) {
    messenger.registerResponse(messageType, messageNumber, shared_from_this());
}

void GetContentUpdateStateHandler::sendRequest(Messenger& messenger) const {
    messenger.send(m_request);
}

void GetContentUpdateStateHandler::handleResponse(std::shared_ptr<const IResponse> response) {
    if (response->getMessageType() != messageType) {
        return;
    }
    QSharedPointer<ContentUpdateState> state;
    const auto body = BodyJSONParser::parse(response);
    if (!body->ObjectEmpty()) {
        state = QSharedPointer<ContentUpdateState>::create();
        Body::readMembers(*body, *state, stateMembers);
    }
    emit contentUpdateStateChanged(state);
}

} // namespace Velto::Messaging
