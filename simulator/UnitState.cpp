#include "UnitState.h"

#include "simulator/StateSettings.h"
#include "simulator/messages/Messages.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <string_view>
#include <utility>

namespace Simulator {

namespace {

constexpr int noSeatFound = 910; ///< status of a mode change

/// A locally administered hardware address that stays the same for a serial number.
std::string hardwareAddress(const std::string& serial, unsigned int interface) {
    std::uint32_t hash = 2166136261U; // FNV-1a
    for (const char character : serial)
        hash = (hash ^ static_cast<unsigned char>(character)) * 16777619U;
    std::array<char, 18> text{};
    std::snprintf(text.data(), text.size(), "02:4b:%02x:%02x:%02x:%02x", (hash >> 16U) & 0xFFU,
                  (hash >> 8U) & 0xFFU, hash & 0xFFU, interface);
    return text.data();
}

constexpr std::array<const char*, 3> interfaceNames{"Access Point", "Ethernet", "Wi-Fi"};
enum Interface : std::size_t { AccessPoint = 0, Ethernet = 1, WiFi = 2 };

/// Every other interface loses its address.
void addressOnly(NetworkState& network, Interface which, const std::string& address) {
    for (NetworkInterface& each : network.interfaces)
        each = {each.name, each.hardwareAddress, "", "", ""};
    NetworkInterface& used = network.interfaces.at(which);
    used.ip = address;
    used.netmask = "255.0.0.0"; // of the loopback network, on which simulated units live
    used.broadcast = "127.255.255.255";
    network.address = address;
}

NetworkState firstNetwork(const UnitOptions& options) {
    NetworkState network;
    for (const char* const name : interfaceNames) {
        const auto number = static_cast<unsigned int>(network.interfaces.size());
        network.interfaces.push_back({name, hardwareAddress(options.serial, number), "", "", ""});
    }
    if (options.accessPoint)
        openAccessPoint(network, options.address);
    else
        joinNetwork(network, "Living Room", options.address);
    return network;
}

void addSoftware(HealthState& health, const char* name, bool ofUser) {
    SoftwareEntry entry;
    entry.name = name;
    if (ofUser)
        entry.user = health.user;
    health.entries.push_back(std::move(entry));
}

AudioState firstAudio(const Product& product) {
    AudioState audio;
    audio.devices = {{"HDMI Input", "Sound of the player on HDMI 1", "hdmi-in-1", "HDMI", false, true},
                     {"Line Input", "Analogue input on the back", "line-in", "Analogue", false, true},
                     {"Optical Input", "Digital input on the back", "optical-in", "S/PDIF", false, false},
                     {"Speakers", "Sound that this unit plays", "speakers-out", "Analogue", true, true}};
    if (std::string_view(product.key) == "ruvello")
        audio.devices = {{"Microphone", "Built-in microphone", "microphone", "Internal", false, true},
                         {"Line Input", "Analogue input on the side", "line-in", "Analogue", false, true}};
    audio.selected = audio.devices.front().identification;
    return audio;
}

} // namespace

UnitState initialState(const UnitOptions& options) {
    UnitState state;
    state.name = options.name;
    state.network = firstNetwork(options);
    state.wifi.seen = {
        {"Living Room", "sofa-and-popcorn"}, {"Home Cinema", "second-row-left"}, {"Caf\u00e9 \"Orbit\"", ""}};
    state.media.count = options.media;
    const Product& product = *findProduct(options.product);
    state.hardware.product = product.name;
    state.hardware.model = product.model;
    state.hardware.serial = options.serial;
    addSoftware(state.health, "Monitor Service", false);
    addSoftware(state.health, "Content Service", false);
    addSoftware(state.health, "Quivera Agent", true);
    state.audio = firstAudio(product);
    if (options.product == "ruvello")
        state.experience.modes = {2, 3};
    state.experience.selected = state.experience.modes.front();
    state.seats.resize(options.seats);
    for (std::size_t i = 0; i < options.seats; ++i)
        state.seats[i].index = static_cast<int>(i) + 1;
    if (options.seats == 0) {
        state.experience.status = noSeatFound;
        state.experience.failure = noSeatFound;
        state.experience.message = "No seat was found";
    }
    if (!options.accessPoint)
        playTitle(state, 0);
    if (!options.state.empty())
        applySettings(state, options.state, "state");
    return state;
}

void joinNetwork(NetworkState& network, const std::string& ssid, const std::string& address) {
    network.online = true;
    network.wifiOnline = true;
    network.hotspotActive = false;
    network.ssid = ssid;
    addressOnly(network, WiFi, address);
}

void openAccessPoint(NetworkState& network, const std::string& address) {
    network.online = false;
    network.wifiOnline = false;
    network.hotspotActive = true;
    network.ssid.clear();
    addressOnly(network, AccessPoint, address);
}

void useInterface(NetworkState& network) {
    const Interface withoutAccessPoint = network.wifiOnline ? WiFi : Ethernet;
    addressOnly(network, network.hotspotActive ? AccessPoint : withoutAccessPoint,
                std::string(network.address));
}

std::string complaintAboutName(const std::string& name) {
    if (name.size() > maximumNameSize)
        return "a name has at most " + std::to_string(maximumNameSize) + " bytes";
    if (std::all_of(name.begin(), name.end(), [](char character) { return character == ' '; }))
        return "a name must not be empty";
    const bool printable = std::none_of(name.begin(), name.end(), [](char character) {
        const auto code = static_cast<unsigned char>(character);
        return code < 0x20 || code == 0x7F;
    });
    return printable ? "" : "a name has no control characters";
}

} // namespace Simulator
