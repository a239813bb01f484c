#include "StateSettings.h"

#include "simulator/JsonNode.h"
#include "simulator/messages/Messages.h"

#include <rapidjson/document.h>

#include <algorithm>
#include <array>
#include <limits>
#include <utility>

namespace Simulator {

namespace {

constexpr int largest = std::numeric_limits<int>::max();

template <auto Member, typename Target>
void text(Target& target, const JsonNode& node) {
    target.*Member = node.text();
}
template <auto Member, typename Target>
void flag(Target& target, const JsonNode& node) {
    target.*Member = node.flag();
}
template <auto Member, int minimum = std::numeric_limits<int>::min(), int maximum = largest, typename Target>
void integer(Target& target, const JsonNode& node) {
    target.*Member = node.integer(minimum, maximum);
}
template <auto Member, typename Target>
void time(Target& target, const JsonNode& node) {
    target.*Member = node.time();
}

/// A list takes the place of the one before.
template <typename Element, typename Table>
std::vector<Element> listOf(const JsonNode& node, const Table& table) {
    std::vector<Element> list;
    for (const JsonNode& each : node.elements())
        each.read(list.emplace_back(), table);
    return list;
}

constexpr std::array<std::pair<const char*, JoinFault>, 3> joinFaults{
    {{"none", JoinFault::None},
     {"leavesUnanswered", JoinFault::LeavesUnanswered},
     {"neverReturns", JoinFault::NeverReturns}}};
constexpr std::array<std::pair<const char*, ContentFailure>, 5> contentFailures{
    {{"none", ContentFailure::None},
     {"checking", ContentFailure::Checking},
     {"serverNotReady", ContentFailure::ServerNotReady},
     {"downloading", ContentFailure::Downloading},
     {"installing", ContentFailure::Installing}}};
constexpr std::array<std::pair<const char*, SeatCondition>, 5> conditions{
    {{"ok", SeatCondition::Ok},
     {"fault", SeatCondition::Fault},
     {"transition", SeatCondition::Transition},
     {"noPower", SeatCondition::NoPower},
     {"noCommunication", SeatCondition::NoCommunication}}};

const std::vector<JsonMember<WifiNetwork>> wifiNetworkMembers{{"ssid", text<&WifiNetwork::ssid>},
                                                              {"key", text<&WifiNetwork::key>}};
const std::vector<JsonMember<WifiState>> wifiMembers{
    {"networks", [](WifiState& wifi,
                    const JsonNode& node) { wifi.seen = listOf<WifiNetwork>(node, wifiNetworkMembers); }},
    {"leaveTime", time<&WifiState::leaveTime>},
    {"joinTime", time<&WifiState::joinTime>},
    {"fault", [](WifiState& wifi, const JsonNode& node) { wifi.fault = oneOf(node, joinFaults); }},
    {"joinedAddress", text<&WifiState::joinedAddress>},
    {"accessPointAddress", text<&WifiState::accessPointAddress>},
};
const std::vector<JsonMember<NetworkState>> networkMembers{
    {"online", flag<&NetworkState::online>},
    {"wifiOnline",
     [](NetworkState& network, const JsonNode& node) {
         network.wifiOnline = node.flag();
         useInterface(network);
     }},
    {"hotspotActive",
     [](NetworkState& network, const JsonNode& node) {
         network.hotspotActive = node.flag();
         useInterface(network);
     }},
    {"ssid", text<&NetworkState::ssid>},
    {"reachable",
     [](NetworkState& network, const JsonNode& node) {
         network.reachable = node.flag();
         network.moving = network.moving && !network.reachable; // it has arrived
     }},
};
const std::vector<JsonMember<SoftwareState>> softwareMembers{
    {"version", text<&SoftwareState::version>},
    {"lastVersion", text<&SoftwareState::lastVersion>},
    {"lastStatus", text<&SoftwareState::lastStatus>},
};
const std::vector<JsonMember<ContentState>> contentMembers{
    {"stateId", integer<&ContentState::id>},
    {"percent", integer<&ContentState::percent, -1, 100>},
    {"code", text<&ContentState::code>},
    {"message", text<&ContentState::message>},
    {"updatedTimestamp", text<&ContentState::updatedTimestamp>},
    {"lastStatus", text<&ContentState::lastStatus>},
    {"failure",
     [](ContentState& content, const JsonNode& node) { content.failure = oneOf(node, contentFailures); }},
    {"pace", time<&ContentState::pace>},
};
const std::vector<JsonMember<PlaybackState>> playbackMembers{
    {"audioState", text<&PlaybackState::audioState>},
    {"motionCode", text<&PlaybackState::motionCode>},
    {"title", text<&PlaybackState::title>},
    {"offset", integer<&PlaybackState::offset, 0>},
    {"duration", integer<&PlaybackState::duration, 0>},
    {"speed",
     [](PlaybackState& playback, const JsonNode& node) { playback.speed = node.real(0, 1'000'000); }},
};
const std::vector<JsonMember<CaptureDevice>> captureDeviceMembers{
    {"name", text<&CaptureDevice::name>},
    {"description", text<&CaptureDevice::description>},
    {"identification", text<&CaptureDevice::identification>},
    {"interface", text<&CaptureDevice::interfaceName>},
    {"loopback", flag<&CaptureDevice::loopback>},
    {"connected", flag<&CaptureDevice::connected>},
};
const std::vector<JsonMember<AudioState>> audioMembers{
    {"devices",
     [](AudioState& audio, const JsonNode& node) {
         audio.devices = listOf<CaptureDevice>(node, captureDeviceMembers);
     }},
    {"selected", text<&AudioState::selected>},
    {"automaticVolume", flag<&AudioState::automaticVolume>},
    {"preMixType", integer<&AudioState::preMixType>},
    {"minimumVolume", integer<&AudioState::minimumVolume>},
    {"maximumVolume", integer<&AudioState::maximumVolume>},
    {"volumeStep", integer<&AudioState::volumeStep, 1>},
};
const std::vector<JsonMember<ExperienceState>> experienceMembers{
    {"modes",
     [](ExperienceState& experience, const JsonNode& node) {
         experience.modes.clear();
         for (const JsonNode& mode : node.elements())
             experience.modes.push_back(mode.integer());
     }},
    {"selected", integer<&ExperienceState::selected>},
    {"state", text<&ExperienceState::state>},
    {"status",
     [](ExperienceState& experience, const JsonNode& node) {
         experience.status = node.integer();
         experience.message = messageOfModeStatus(experience.status);
     }},
    {"transition", time<&ExperienceState::transition>},
    {"failure", integer<&ExperienceState::failure, 0>},
};
const std::vector<JsonMember<SeatState>> seatMembers{
    {"index", integer<&SeatState::index>},
    {"muted", flag<&SeatState::muted>},
    {"chained", flag<&SeatState::chained>},
    {"motion", [](SeatState& seat, const JsonNode& node) { seat.motion = node.real(-20, 0); }},
    {"vibration", [](SeatState& seat, const JsonNode& node) { seat.vibration = node.real(-20, 0); }},
    {"condition", [](SeatState& seat, const JsonNode& node) { seat.condition = oneOf(node, conditions); }},
};
const std::vector<JsonMember<HardwareState>> hardwareMembers{
    {"load", [](HardwareState& hardware, const JsonNode& node) { hardware.load = node.real(0, 100); }},
    {"temperature", integer<&HardwareState::temperature>},
    {"supplyVoltage", integer<&HardwareState::supplyVoltage>},
};
const std::vector<JsonMember<SoftwareEntry>> softwareEntryMembers{
    {"name", text<&SoftwareEntry::name>},           {"user", text<&SoftwareEntry::user>},
    {"status", integer<&SoftwareEntry::status>},    {"message", text<&SoftwareEntry::message>},
    {"timestamp", text<&SoftwareEntry::timestamp>},
};
const std::vector<JsonMember<HealthState>> healthMembers{
    {"overall", integer<&HealthState::overall>},
    {"user", text<&HealthState::user>},
    {"entries",
     [](HealthState& health, const JsonNode& node) {
         health.entries = listOf<SoftwareEntry>(node, softwareEntryMembers);
     }},
};
const std::vector<JsonMember<GamingProfile>> profileMembers{
    {"id", text<&GamingProfile::id>},
    {"name", text<&GamingProfile::name>},
    {"type", integer<&GamingProfile::type>},
    {"version", integer<&GamingProfile::version>},
};

/// Elements change the seats that bear their index.
void readSeats(UnitState& state, const JsonNode& node) {
    for (const JsonNode& each : node.elements()) {
        SeatState named;
        each.read(named, seatMembers);
        const auto seat = std::find_if(state.seats.begin(), state.seats.end(),
                                       [&](const SeatState& known) { return known.index == named.index; });
        if (seat == state.seats.end() || !each.has("index"))
            each.fail("\"index\" of one of the seats is needed");
        each.read(*seat, seatMembers);
    }
}

template <auto Section, const auto& table>
void section(UnitState& state, const JsonNode& node) {
    node.read(state.*Section, table);
}

/// A part of the state, and the Get messages whose answers it changes.
struct Section {
    const char* name;
    void (*read)(UnitState&, const JsonNode&);
    std::vector<const char*> types;
};

const std::vector<Section> sections{
    {"network", section<&UnitState::network, networkMembers>, {"GetNetworkState"}},
    {"wifi", section<&UnitState::wifi, wifiMembers>, {}},
    {"software", section<&UnitState::software, softwareMembers>, {"GetUpgrade"}},
    {"content",
     [](UnitState& state, const JsonNode& node) {
         node.read(state.content, contentMembers);
         updateFromHere(state);
     },
     {"GetContentUpdateState", "GetUpdate"}},
    {"mediaCount",
     [](UnitState& state, const JsonNode& node) { state.media.count = node.number(0, maximumMedia); },
     {"GetMediaListNotification"}},
    {"playback",
     [](UnitState& state, const JsonNode& node) {
         node.read(state.playback, playbackMembers);
         playFromHere(state);
     },
     {"GetMediaStatus"}},
    {"audio",
     section<&UnitState::audio, audioMembers>,
     {"GetCaptureDevices", "GetCaptureVolume", "GetAutomaticVolumeControl", "GetAdaptiveAudioParameters"}},
    {"volume",
     [](UnitState& state, const JsonNode& node) {
         state.audio.volumes[state.experience.selected] = node.integer();
     },
     {"GetCaptureVolume"}},
    {"experience",
     section<&UnitState::experience, experienceMembers>,
     {"GetExperienceModes", "GetCaptureVolume"}},
    {"seats", readSeats, {"GetSeatStatus"}},
    {"motionDelay", integer<&UnitState::motionDelay, -1000, 1000>, {"GetMotionDelay"}},
    {"recognitionTolerance", integer<&UnitState::recognitionTolerance, 0, 60>, {"GetRecognitionTolerance"}},
    {"hardware", section<&UnitState::hardware, hardwareMembers>, {}},
    {"health", section<&UnitState::health, healthMembers>, {"GetSoftwareHealthStatus"}},
    {"profile", section<&UnitState::profile, profileMembers>, {"GetAdaptiveGamingSelectedProfile"}},
};

rapidjson::Document parsed(std::string_view json, const std::string& place) {
    rapidjson::Document document;
    document.Parse<rapidjson::kParseIterativeFlag | rapidjson::kParseValidateEncodingFlag>(json.data(),
                                                                                           json.size());
    if (document.HasParseError() || !document.IsObject())
        throw std::invalid_argument(place + ": a JSON object is needed");
    return document;
}

} // namespace

void applySettings(UnitState& state, std::string_view json, const std::string& place) {
    const rapidjson::Document document = parsed(json, place);
    UnitState changed = state;
    JsonNode(document, place).read(changed, sections);
    state = std::move(changed);
}

void applyAndTell(UnitState& state, std::string_view json, const std::string& place) {
    applySettings(state, json, place);
    const rapidjson::Document document = parsed(json, place);
    for (const Section& changed : sections)
        if (document.HasMember(changed.name))
            for (const char* const type : changed.types)
                tell(state, type);
}

} // namespace Simulator
