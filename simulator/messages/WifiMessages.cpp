#include "simulator/messages/Body.h"
#include "simulator/messages/Messages.h"

#include <algorithm>

namespace Simulator {

namespace {

constexpr std::size_t longestSsid = 32; ///< bytes, from IEEE 802.11

Answer settingResult(bool result) {
    return answered(Body().object("setWifi").flag("result", result).endObject().finish());
}

/// Leaves the present network soon and comes back on the other, unless the unit is to get lost.
Answer moveTo(UnitState& state, std::function<void(UnitState&)> arrive) {
    const WifiState& wifi = state.wifi;
    state.network.moving = true;
    const bool unanswered = wifi.fault == JoinFault::LeavesUnanswered;
    const auto leave = [](UnitState& later) { later.network.reachable = false; };
    if (unanswered)
        leave(state);
    else
        state.steps.push_back({wifi.leaveTime, leave});
    if (wifi.fault != JoinFault::NeverReturns)
        state.steps.push_back({wifi.leaveTime + wifi.joinTime, std::move(arrive)});
    Answer answer = settingResult(true);
    answer.withheld = unanswered;
    return answer;
}

void arrived(UnitState& state) {
    state.network.moving = false;
    state.network.reachable = true;
}

Answer join(UnitState& state, const std::string& ssid, const std::string& key) {
    const auto& seen = state.wifi.seen;
    const auto network = std::find_if(seen.begin(), seen.end(), [&](const WifiNetwork& known) {
        return known.ssid == ssid && known.key == key;
    });
    if (network == seen.end())
        return settingResult(false);
    if (state.network.wifiOnline && state.network.ssid == ssid)
        return settingResult(true);
    return moveTo(state, [ssid](UnitState& later) {
        const std::string& address = later.wifi.joinedAddress;
        joinNetwork(later.network, ssid, address.empty() ? later.network.address : address);
        arrived(later);
    });
}

Answer leaveForAccessPoint(UnitState& state) {
    if (state.network.hotspotActive)
        return settingResult(true);
    return moveTo(state, [](UnitState& later) {
        const std::string& address = later.wifi.accessPointAddress;
        openAccessPoint(later.network, address.empty() ? later.network.address : address);
        arrived(later);
    });
}

} // namespace

Answer getWifiList(UnitState& state, const Request& /*request*/) {
    const NetworkState& network = state.network;
    Body body;
    body.array("wifiList");
    for (const WifiNetwork& seen : state.wifi.seen)
        body.element()
            .text("ssid", seen.ssid)
            .flag("active", network.wifiOnline && seen.ssid == network.ssid)
            .endObject();
    return answered(body.endArray().finish());
}

Answer setWifiSetting(UnitState& state, const Request& request) {
    const auto* const setting = objectIn(request.body, "setWifi");
    if (!setting)
        return malformed("setWifi", "an object");
    if (setting->HasMember("clear")) {
        if (flagIn(*setting, "clear") != true)
            return malformed("setWifi.clear", "true");
        return state.network.moving ? refused("setWifi", "another change is under way")
                                    : leaveForAccessPoint(state);
    }
    const auto ssid = textIn(*setting, "ssid");
    const auto key = textIn(*setting, "key");
    if (!ssid || !key)
        return malformed(ssid ? "setWifi.key" : "setWifi.ssid", "a text");
    if (ssid->empty() || ssid->size() > longestSsid)
        return refused("setWifi.ssid", "1 to 32 bytes are possible");
    if (state.network.moving)
        return refused("setWifi", "another change is under way");
    return join(state, *ssid, *key);
}

} // namespace Simulator
