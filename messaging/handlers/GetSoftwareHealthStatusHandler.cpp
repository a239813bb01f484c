#include "messaging/handlers/GetSoftwareHealthStatusHandler.h"

#include "messaging/handlers/BodyReader.h"

#include <Velto/Messaging/BodyJSONParser.h>

namespace Velto::Messaging {

using orvex::SoftwareHealthEntry;
using orvex::SoftwareHealthStatus;

namespace {

// Units write the name under either key.
constexpr Body::Member<SoftwareHealthEntry> entryMembers[] = {
    {"softwareName", &Body::field<&SoftwareHealthEntry::name>},
    {"name", &Body::field<&SoftwareHealthEntry::name>},
    {"status", &Body::field<&SoftwareHealthEntry::status>},
    {"statusMessage", &Body::field<&SoftwareHealthEntry::statusMessage>},
    {"timestamp", &Body::field<&SoftwareHealthEntry::timestamp>},
    {"userName", &Body::field<&SoftwareHealthEntry::userName>},
};

void readEntries(SoftwareHealthStatus& status, const Body::Value& value) {
    Body::readObjects(value, status.entries, "programs", [&status](const Body::Value& element) {
        SoftwareHealthEntry entry;
        Body::readMembers(element, entry, entryMembers);
        status.entries.append(entry);
    });
}

constexpr Body::Member<SoftwareHealthStatus> statusMembers[] = {
    {"overallState", &Body::field<&SoftwareHealthStatus::overallState>},
    {"currentUserName", &Body::field<&SoftwareHealthStatus::currentUserName>},
    {"softwareHealthStatus", &readEntries},
};

} // namespace

void GetSoftwareHealthStatusHandler::handleResponse(std::shared_ptr<const IResponse> response) {
    if (response->getMessageType() != "GetSoftwareHealthStatus") {
        return;
    }
    QSharedPointer<SoftwareHealthStatus> status;
    const auto body = BodyJSONParser::parse(response);
    if (!body->ObjectEmpty()) {
        status = QSharedPointer<SoftwareHealthStatus>::create();
        Body::readMembers(*body, *status, statusMembers);
    }
    emit softwareHealthStatusChanged(status);
}

} // namespace Velto::Messaging
