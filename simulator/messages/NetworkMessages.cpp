#include "simulator/messages/Body.h"
#include "simulator/messages/Messages.h"

namespace Simulator {

// The flags come before the addresses: a client judges each interface by the flags it has read so far.
Answer getNetworkState(UnitState& state, const Request& /*request*/) {
    const NetworkState& network = state.network;
    Body body;
    body.flag("online", network.online)
        .flag("wifi_online", network.wifiOnline)
        .flag("hotspot_active", network.hotspotActive)
        .text("ssid", network.ssid)
        .array("addresses");
    for (const NetworkInterface& interface : network.interfaces) {
        body.element()
            .text("interface_name", interface.name)
            .text("hardware_address", interface.hardwareAddress)
            .text("ip", interface.ip)
            .text("netmask", interface.netmask)
            .text("broadcast", interface.broadcast)
            .endObject();
    }
    return answered(body.endArray().finish());
}

} // namespace Simulator
