#include "messaging/handlers/GetMediaListNotificationHandler.h"

#include "messaging/handlers/BodyReader.h"
#include "messaging/senders/MessageSender.h"

#include <Velto/Messaging/BodyJSONParser.h>
#include <Velto/Messaging/Messenger.h>

namespace Velto::Messaging {

using orvex::MediaEntry;
using orvex::MediaList;

namespace {

constexpr auto messageType = "GetMediaListNotification";

constexpr Body::Member<MediaEntry> entryMembers[] = {
    {"title", &Body::field<&MediaEntry::title>},
    {"cut", &Body::field<&MediaEntry::cut>},
    {"language", &Body::field<&MediaEntry::language>},
    {"releaseDate", &Body::field<&MediaEntry::releaseDate>},
    {"imdbRef", &Body::field<&MediaEntry::imdbRef>},
    {"duration", &Body::field<&MediaEntry::duration>},
    {"trackReleaseDate", &Body::field<&MediaEntry::trackReleaseDate>},
};

void readEntries(MediaList& list, const Body::Value& value) {
    if (!value.IsArray()) {
        return;
    }
    list.media.reserve(list.media.size() + static_cast<int>(value.Size()));
    for (const auto& element : value.GetArray()) {
        if (element.IsObject()) {
            list.media.append(MediaEntry());
            Body::readMembers(element, list.media.last(), entryMembers);
        }
    }
}

constexpr Body::Member<MediaList> listMembers[] = {{"media", &readEntries}};

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
    QSharedPointer<MediaList> list;
    const auto body = BodyJSONParser::parse(response);
    const auto* value = Body::firstMember(*body, "mediaList");
    if (value && value->IsObject()) {
        list = QSharedPointer<MediaList>::create();
        Body::readMembers(*value, *list, listMembers);
    }
    emit mediaListChanged(list);
}

} // namespace Velto::Messaging
