#include "messaging/handlers/GetDetailedStatusNotificationHandler.h"

#include "messaging/handlers/BodyReader.h"
#include "messaging/senders/MessageSender.h"

#include <Velto/Messaging/BodyJSONParser.h>
#include <Velto/Messaging/Messenger.h>

namespace Velto::Messaging {

using orvex::DetailedStatusInfo;
using orvex::ModuleInfo;
using orvex::StatusField;

namespace {

constexpr auto messageType = "GetHapticSystemStatus";

constexpr Body::Member<StatusField> fieldMembers[] = {
    {"Id", &Body::field<&StatusField::id>},
    {"Name", &Body::field<&StatusField::name>},
    {"Value", &Body::field<&StatusField::value>},
    {"Unit", &Body::field<&StatusField::unit>},
    {"Description", &Body::field<&StatusField::description>},
    {"Type", &Body::field<&StatusField::type>},
    {"Category", &Body::field<&StatusField::category>},
};

QString numberText(const Body::Value& number) {
    if (number.IsInt64()) {
        return QString::number(number.GetInt64());
    }
    return number.IsUint64() ? QString::number(number.GetUint64())
                             : QString::number(number.GetDouble(), 'f', 2);
}

/// Modules, properties and fields of one answer, all told: some ten times what a unit with all its seats has.
constexpr std::size_t largestTree = 20'000;

class ModuleReader {
public:
    // Recursion is bounded: a body's nesting is.
    std::shared_ptr<ModuleInfo> read(const Body::Value& name,
                                     const Body::Value& object) { // NOLINT(misc-no-recursion)
        auto module = std::make_shared<ModuleInfo>();
        module->name = Body::toQString(name);
        for (const auto& member : object.GetObject()) {
            if (!isPart(member.value)) {
                continue;
            }
            if (!hasRoom()) {
                break;
            }
            readPart(*module, member.name, member.value);
        }
        return module;
    }

    /// Whether one more part is taken; false is logged once.
    bool hasRoom() {
        if (m_count == largestTree) {
            Body::tellDropped("modules and readings", largestTree);
        }
        return ++m_count <= largestTree;
    }

private:
    static bool isPart(const Body::Value& value) {
        return value.IsString() || value.IsNumber() || value.IsObject();
    }

    void readPart(ModuleInfo& module, const Body::Value& name,
                  const Body::Value& value) { // NOLINT(misc-no-recursion)
        if (value.IsString()) {
            module.properties.emplace_back(Body::toQString(name), Body::toQString(value));
        } else if (value.IsNumber()) {
            module.properties.emplace_back(Body::toQString(name), numberText(value));
        } else if (Body::textOf(name) == "Field") {
            Body::readMembers(value, module.fields.emplace_back(), fieldMembers);
        } else {
            module.subModules.push_back(read(name, value));
        }
    }

    std::size_t m_count = 0;
};

} // namespace

// The unit wants this one request's argument empty.
GetDetailedStatusNotificationHandler::GetDetailedStatusNotificationHandler()
    : m_request(makeGetMessage(messageType, "")) {}

void GetDetailedStatusNotificationHandler::registerWith(Messenger& messenger) {
    messenger.registerResponse(messageType, messageNumber, shared_from_this());
}

void GetDetailedStatusNotificationHandler::sendRequest(Messenger& messenger) const {
    messenger.send(m_request);
}

void GetDetailedStatusNotificationHandler::handleResponse(std::shared_ptr<const IResponse> response) {
    if (response->getMessageType() != messageType) {
        return;
    }
    QSharedPointer<DetailedStatusInfo> info;
    const auto body = BodyJSONParser::parse(response);
    if (!body->ObjectEmpty()) {
        info = QSharedPointer<DetailedStatusInfo>::create();
        ModuleReader reader;
        for (const auto& member : body->GetObject()) {
            if (member.value.IsObject() && reader.hasRoom()) {
                info->modules.push_back(reader.read(member.name, member.value));
            }
        }
    }
    emit detailedStatusInfoChanged(info);
}

} // namespace Velto::Messaging
