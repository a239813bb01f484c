#include "messaging/handlers/GetWifiListHandler.h"

#include "messaging/handlers/BodyReader.h"
#include "messaging/records/WiFiListEntry.h"

#include <Velto/Messaging/BodyJSONParser.h>

#include <QStringList>
#include <QVariantMap>

namespace Velto::Messaging {

using orvex::WiFiListEntry;

namespace {

constexpr Body::Member<WiFiListEntry> networkMembers[] = {
    {"ssid", &Body::field<&WiFiListEntry::name>},
    {"active", &Body::field<&WiFiListEntry::active>},
};

} // namespace

void GetWifiListHandler::handleResponse(std::shared_ptr<const IResponse> response) {
    if (response->getMessageType() != "GetWifiList") {
        return;
    }
    QStringList names;
    QVariantMap states;
    const auto body = BodyJSONParser::parse(response);
    for (const auto& member : body->GetObject()) {
        Body::readObjects(member.value, names, "networks", [&](const Body::Value& element) {
            WiFiListEntry network;
            Body::readMembers(element, network, networkMembers);
            names.append(network.name);
            states.insert(network.name, network.active);
        });
    }
    emit wifiNetworkListChangedSignal(QStringLiteral("wifiNetworkList"), names);
    emit wifiNetworkStatusListChangedSignal(QStringLiteral("wifiNetworkStatus"), states);
}

} // namespace Velto::Messaging
