#include "messaging/handlers/GetKELMNetworkStateHandler.h"

#include "messaging/handlers/BodyReader.h"

#include <Velto/Messaging/BodyJSONParser.h>

namespace Velto::Messaging {

using orvex::NetworkInterfaceInfo;
using orvex::NetworkStatus;

namespace {

constexpr Body::Member<NetworkInterfaceInfo> interfaceMembers[] = {
    {"interface_name", &Body::field<&NetworkInterfaceInfo::interfaceName>},
    {"hardware_address", &Body::field<&NetworkInterfaceInfo::hardwareAddress>},
    {"ip", &Body::field<&NetworkInterfaceInfo::ip>},
    {"netmask", &Body::field<&NetworkInterfaceInfo::netmask>},
    {"broadcast", &Body::field<&NetworkInterfaceInfo::broadcast>},
};

// An interface is judged by the flags read so far: units write them before the addresses.
void readAddresses(NetworkStatus& status, const Body::Value& value) {
    Body::readObjects(value, status.interfaces, "network interfaces", [&status](const Body::Value& element) {
        NetworkInterfaceInfo entry;
        Body::readMembers(element, entry, interfaceMembers);
        entry.classify(status);
        status.interfaces.append(entry);
    });
}

constexpr Body::Member<NetworkStatus> statusMembers[] = {
    {"online", &Body::field<&NetworkStatus::online>},
    {"wifi_online", &Body::field<&NetworkStatus::wifiOnline>},
    {"hotspot_active", &Body::field<&NetworkStatus::hotspotActive>},
    {"ssid", &Body::field<&NetworkStatus::ssid>},
    {"addresses", &readAddresses},
};

} // namespace

void GetKELMNetworkStateHandler::handleResponse(std::shared_ptr<const IResponse> response) {
    if (response->getMessageType() != "GetNetworkState") {
        return;
    }
    QSharedPointer<NetworkStatus> status;
    const auto body = BodyJSONParser::parse(response);
    if (!body->ObjectEmpty()) {
        status = QSharedPointer<NetworkStatus>::create();
        status->valid = true;
        Body::readMembers(*body, *status, statusMembers);
    }
    emit networkStatusChanged(status);
}

} // namespace Velto::Messaging
