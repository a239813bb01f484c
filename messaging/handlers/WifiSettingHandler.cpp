#include "messaging/handlers/WifiSettingHandler.h"

#include "messaging/handlers/BodyReader.h"

#include <Velto/Messaging/BodyJSONParser.h>

namespace Velto::Messaging {

namespace {

/// The first member "result" that is a bool; false without one.
bool readResult(const Body::Value& setting) {
    for (const auto& member : setting.GetObject()) {
        if (Body::textOf(member.name) == "result" && member.value.IsBool()) {
            return member.value.GetBool();
        }
    }
    return false;
}

} // namespace

void WifiSettingHandler::handleResponse(std::shared_ptr<const IResponse> response) {
    if (response->getMessageType() != "SetWifiSetting") {
        return;
    }
    const auto body = BodyJSONParser::parse(response);
    const auto* setting = Body::firstMember(*body, "setWifi");
    const bool result = setting && setting->IsObject() && readResult(*setting);
    emit wifiSettingResponseReceived(QStringLiteral("wifiSettings"), result);
}

} // namespace Velto::Messaging
