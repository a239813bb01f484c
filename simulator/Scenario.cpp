#include "Scenario.h"

#include "simulator/JsonNode.h"
#include "simulator/StateSettings.h"

#include <rapidjson/error/en.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <algorithm>
#include <array>
#include <fstream>
#include <iterator>
#include <limits>
#include <set>
#include <utility>

namespace Simulator {

namespace {

constexpr std::size_t maximumUnits = 100'000;

constexpr std::array<std::pair<const char*, ConnectionFault>, 5> connectionFaults{
    {{"none", ConnectionFault::None},
     {"refuse", ConnectionFault::Refuse},
     {"hangAfterAccept", ConnectionFault::HangAfterAccept},
     {"hangInTls", ConnectionFault::HangInTls},
     {"hangInUpgrade", ConnectionFault::HangInUpgrade}}};

constexpr std::array<std::pair<const char*, AnswerFault>, 13> answerFaults{
    {{"none", AnswerFault::None},
     {"drop", AnswerFault::Drop},
     {"stallMidFrame", AnswerFault::StallMidFrame},
     {"garble", AnswerFault::Garble},
     {"truncateBody", AnswerFault::TruncateBody},
     {"wrongTypes", AnswerFault::WrongTypes},
     {"otherMessage", AnswerFault::OtherMessage},
     {"duplicate", AnswerFault::Duplicate},
     {"error", AnswerFault::Error},
     {"oversizeFrame", AnswerFault::OversizeFrame},
     {"oversizeHeader", AnswerFault::OversizeHeader},
     {"close", AnswerFault::Close},
     {"reset", AnswerFault::Reset}}};

const std::vector<JsonMember<Faults>> faultMembers{
    {"connection",
     [](Faults& faults, const JsonNode& node) { faults.connection = oneOf(node, connectionFaults); }},
    {"answer", [](Faults& faults, const JsonNode& node) { faults.answer = oneOf(node, answerFaults); }},
    {"types",
     [](Faults& faults, const JsonNode& node) {
         for (const JsonNode& type : node.elements())
             faults.types.insert(type.text());
     }},
    {"delay", [](Faults& faults, const JsonNode& node) { faults.delay = node.time(); }},
    {"trickle", [](Faults& faults, const JsonNode& node) { faults.trickle = node.time(); }},
    {"wrongKey", [](Faults& faults, const JsonNode& node) { faults.wrongKey = node.flag(); }},
};

std::string compact(const rapidjson::Value& value) {
    rapidjson::StringBuffer buffer;
    rapidjson::Writer<rapidjson::StringBuffer> writer(buffer);
    value.Accept(writer);
    return {buffer.GetString(), buffer.GetSize()};
}

/// What a verb cannot do without, and what else it may have besides "at" and "do".
struct Verb {
    const char* name;
    const char* needs;
    const char* takes;
};

constexpr std::array<Verb, 7> verbs{{{"rename", "name", nullptr},
                                     {"set", "state", nullptr},
                                     {"stop", nullptr, nullptr},
                                     {"start", nullptr, nullptr},
                                     {"fault", "fault", nullptr},
                                     {"push", "type", "body"},
                                     {"close", nullptr, nullptr}}};

void readVerb(Action& action, const JsonNode& node) {
    action.verb = node.text();
    const bool known = std::any_of(verbs.begin(), verbs.end(),
                                   [&action](const Verb& verb) { return action.verb == verb.name; });
    if (!known)
        node.fail("\"" + action.verb + "\" is not one of rename, set, stop, start, fault, push, close");
}

const std::vector<JsonMember<Action>> actionMembers{
    {"at", [](Action& action, const JsonNode& node) { action.at = node.time(); }},
    {"do", readVerb},
    {"name",
     [](Action& action, const JsonNode& node) {
         action.name = node.text();
         if (const std::string complaint = complaintAboutName(action.name); !complaint.empty())
             node.fail(complaint);
     }},
    {"state",
     [](Action& action, const JsonNode& node) {
         action.state = compact(node.value());
         action.statePlace = node.place();
     }},
    {"fault", [](Action& action, const JsonNode& node) { node.read(action.faults, faultMembers); }},
    {"type", [](Action& action, const JsonNode& node) { action.notification.type = node.text(); }},
    {"body", [](Action& action, const JsonNode& node) { action.notification.body = compact(node.value()); }},
};

Action readAction(const JsonNode& node, std::size_t unit) {
    Action action;
    action.unit = unit;
    node.read(action, actionMembers);
    if (!node.has("do"))
        node.fail("\"do\" is missing");
    for (const Verb& verb : verbs) {
        if (action.verb == verb.name && verb.needs && !node.has(verb.needs))
            node.fail("\"" + action.verb + "\" needs \"" + verb.needs + "\"");
        if (action.verb != verb.name)
            continue;
        for (const char* const member : {"name", "state", "fault", "type", "body"}) {
            const bool wanted = (verb.needs && std::string_view(member) == verb.needs) ||
                                (verb.takes && std::string_view(member) == verb.takes);
            if (node.has(member) && !wanted)
                node.fail("\"" + action.verb + "\" takes no \"" + member + "\"");
        }
    }
    return action;
}

struct UnitEntry {
    UnitOptions options;
    std::vector<Action> actions;
    std::size_t place = 0;
};

const std::vector<JsonMember<UnitEntry>> unitMembers{
    {"product", [](UnitEntry& unit, const JsonNode& node) { unit.options.product = node.text(); }},
    {"name", [](UnitEntry& unit, const JsonNode& node) { unit.options.name = node.text(); }},
    {"serial", [](UnitEntry& unit, const JsonNode& node) { unit.options.serial = node.text(); }},
    {"address", [](UnitEntry& unit, const JsonNode& node) { unit.options.address = node.text(); }},
    {"port",
     [](UnitEntry& unit, const JsonNode& node) {
         unit.options.port =
             static_cast<std::uint16_t>(node.number(0, std::numeric_limits<std::uint16_t>::max()));
     }},
    {"plain", [](UnitEntry& unit, const JsonNode& node) { unit.options.encrypted = !node.flag(); }},
    {"accessPoint", [](UnitEntry& unit, const JsonNode& node) { unit.options.accessPoint = node.flag(); }},
    {"seats",
     [](UnitEntry& unit, const JsonNode& node) { unit.options.seats = node.number(0, maximumSeats); }},
    {"media",
     [](UnitEntry& unit, const JsonNode& node) { unit.options.media = node.number(0, maximumMedia); }},
    {"state", [](UnitEntry& unit, const JsonNode& node) { unit.options.state = compact(node.value()); }},
    {"keyFolder", [](UnitEntry& unit, const JsonNode& node) { unit.options.keyFolder = node.text(); }},
    {"actions",
     [](UnitEntry& unit, const JsonNode& node) {
         for (const JsonNode& action : node.elements())
             unit.actions.push_back(readAction(action, unit.place));
     }},
};

std::uint16_t portAfter(std::uint16_t first, std::size_t places) {
    if (first + places > std::numeric_limits<std::uint16_t>::max())
        throw std::invalid_argument("port: no port is left for unit " + std::to_string(places + 1));
    return static_cast<std::uint16_t>(first + places);
}

struct Target {
    const UnitOptions& defaults;
    Scenario scenario;
};

void readUnits(Target& target, const JsonNode& node) {
    const auto nodes = node.elements();
    if (nodes.empty() || nodes.size() > maximumUnits)
        node.fail("1 to " + std::to_string(maximumUnits) + " units are needed");
    for (std::size_t i = 0; i < nodes.size(); ++i) {
        UnitEntry unit;
        unit.options = target.defaults;
        unit.options.number += i;
        if (unit.options.port != 0 && !nodes[i].has("port"))
            unit.options.port = portAfter(unit.options.port, i);
        unit.place = i;
        nodes[i].read(unit, unitMembers);
        const std::string unitPlace = "units[" + std::to_string(i) + "].";
        try {
            target.scenario.units.push_back(completed(unit.options));
            UnitState state = initialState(target.scenario.units.back());
            for (const Action& action : unit.actions)
                if (!action.state.empty())
                    applySettings(state, action.state, action.statePlace.substr(unitPlace.size()));
        } catch (const std::invalid_argument& error) {
            throw std::invalid_argument(unitPlace + error.what());
        }
        std::move(unit.actions.begin(), unit.actions.end(), std::back_inserter(target.scenario.actions));
    }
}

const std::vector<JsonMember<Target>> scenarioMembers{{"units", readUnits}};

} // namespace

Scenario parseScenario(std::string_view text, const std::string& source, const UnitOptions& defaults) {
    rapidjson::Document document;
    document.Parse<rapidjson::kParseIterativeFlag | rapidjson::kParseValidateEncodingFlag>(text.data(),
                                                                                           text.size());
    if (document.HasParseError()) {
        const auto read = text.substr(0, document.GetErrorOffset());
        throw ScenarioError(source + ':' + std::to_string(1 + std::count(read.begin(), read.end(), '\n')) +
                            ": " + rapidjson::GetParseError_En(document.GetParseError()));
    }
    Target target{defaults, {}};
    try {
        const JsonNode root(document, {});
        if (!root.has("units"))
            throw std::invalid_argument("units: the list of units is missing");
        root.read(target, scenarioMembers);
    } catch (const std::invalid_argument& error) {
        throw ScenarioError(source + ": " + error.what());
    }
    return std::move(target.scenario);
}

Scenario readScenario(const std::filesystem::path& file, const UnitOptions& defaults) {
    std::ifstream stream(file, std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
    if (!stream)
        throw ScenarioError(file.string() + ": cannot be read");
    return parseScenario(text, file.string(), defaults);
}

std::vector<UnitOptions> expand(const UnitOptions& first, std::size_t count) {
    std::vector<UnitOptions> units;
    units.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        UnitOptions unit = first;
        unit.number += i;
        if (first.port != 0)
            unit.port = portAfter(first.port, i);
        if (i > 0 && !first.serial.empty())
            unit.serial += '-' + std::to_string(i + 1);
        if (i > 0 && !first.name.empty())
            unit.name += ' ' + std::to_string(i + 1);
        units.push_back(completed(unit));
    }
    return units;
}

} // namespace Simulator
