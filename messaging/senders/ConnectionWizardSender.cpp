#include "messaging/senders/ConnectionWizardSender.h"

namespace Velto::Messaging {

namespace {

constexpr auto settingType = "SetWifiSetting";

} // namespace

void ConnectionWizardSender::triggerWifiChange(QVariant ssid, QVariant securityKey) {
    sendObject(settingType, [&](Writer& writer) {
        writer.Key("setWifi");
        writer.StartObject();
        writer.Key("ssid");
        writeText(writer, ssid.toString());
        writer.Key("key");
        writeText(writer, securityKey.toString());
        writer.EndObject();
    });
}

void ConnectionWizardSender::triggerWifiList() {
    sendPlain("GetWifiList", "1");
}

void ConnectionWizardSender::triggerNetworkState() {
    sendPlain("GetNetworkState", "1");
}

void ConnectionWizardSender::requestHotspotActivation() {
    sendObject(settingType, [](Writer& writer) {
        writer.Key("setWifi");
        writer.StartObject();
        writer.Key("clear");
        writer.Bool(true);
        writer.EndObject();
    });
}

} // namespace Velto::Messaging
