#include "messaging/handlers/GetUpgradeAndUpdateNotificationHandler.h"

#include "messaging/handlers/BodyReader.h"

#include <Velto/Messaging/BodyJSONParser.h>

namespace Velto::Messaging {

namespace {

/// One of the objects "last" and "current" of a body.
struct Section {
    QString status;
    QString version;
    QString updatedTimestamp;
};

struct Sections {
    Section last;
    Section current;
};

constexpr Body::Member<Section> sectionMembers[] = {
    {"status", &Body::field<&Section::status>},
    {"version", &Body::field<&Section::version>},
    {"updatedTimestamp", &Body::field<&Section::updatedTimestamp>},
};

template <Section Sections::*Target>
void readSection(Sections& sections, const Body::Value& value) {
    if (value.IsObject()) {
        Body::readMembers(value, sections.*Target, sectionMembers);
    }
}

constexpr Body::Member<Sections> bodyMembers[] = {
    {"last", &readSection<&Sections::last>},
    {"current", &readSection<&Sections::current>},
};

Sections parseSections(const std::shared_ptr<const IResponse>& response) {
    Sections sections;
    Body::readMembers(*BodyJSONParser::parse(response), sections, bodyMembers);
    return sections;
}

// The position is the upgrade's code. An update knows no "scheduled", so its codes start one lower.
constexpr const char* upgradeStates[] = {"scheduled", "in_progress", "cancelled", "failed", "success"};

int upgradeCode(const QString& status) {
    int code = 0;
    for (const char* state : upgradeStates) {
        if (status == QLatin1String(state)) {
            return code;
        }
        ++code;
    }
    return -1;
}

int updateCode(const QString& status) {
    const int code = upgradeCode(status);
    return code < 0 ? code : code - 1;
}

} // namespace

void GetUpgradeAndUpdateNotificationHandler::handleResponse(std::shared_ptr<const IResponse> response) {
    if (response->getMessageType() == "GetUpdate") {
        handleUpdate(response);
    } else if (response->getMessageType() == "GetUpgrade") {
        handleUpgrade(response);
    }
}

void GetUpgradeAndUpdateNotificationHandler::handleUpdate(const std::shared_ptr<const IResponse>& response) {
    const Sections sections = parseSections(response);
    emit lastUpdateTimestampReceived(QDateTime::fromString(sections.current.updatedTimestamp, Qt::ISODate));
    emit updateStatusChanged(updateCode(sections.last.status));
}

void GetUpgradeAndUpdateNotificationHandler::handleUpgrade(const std::shared_ptr<const IResponse>& response) {
    const Sections sections = parseSections(response);
    emit softwareVersionReceived(sections.current.version);
    emit upgradeStatusChanged(upgradeCode(sections.last.status), sections.last.version);
}

} // namespace Velto::Messaging
