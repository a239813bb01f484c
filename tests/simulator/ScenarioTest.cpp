#include "simulator/Scenario.h"

#include "Exchange.h"
#include "simulator/SimulatedUnit.h"
#include "simulator/SimulatorHost.h"

#include <algorithm>
#include <mutex>

using namespace Simulator;
using namespace std::chrono_literals;

namespace {

std::string complaintAbout(const std::string& text) {
    UnitOptions defaults;
    defaults.port = 65535;
    try {
        parseScenario(text, "file.json", defaults);
    } catch (const ScenarioError& error) {
        return error.what();
    }
    return "taken";
}

/// The place that is complained of, without the file and the explanation.
std::string placeIn(const std::string& text) {
    const std::string complaint = complaintAbout(text);
    const std::string prefix = "file.json: ";
    if (complaint.compare(0, prefix.size(), prefix) != 0)
        return complaint;
    return complaint.substr(prefix.size(), complaint.find(':', prefix.size()) - prefix.size());
}

} // namespace

TEST(Scenario, UnitsTakeWhatTheyLeaveOutFromTheDefaults) {
    UnitOptions defaults;
    defaults.port = 13000;
    defaults.media = 5;
    const auto scenario = parseScenario(
        R"({"units":[{},{"product":"hub","plain":true,"media":7,"address":"127.0.0.9"},{"product":"ruvello",
            "name":"Third","serial":"S","port":0,"accessPoint":true,"seats":4,"keyFolder":"keys"}]})",
        "file.json", defaults);
    ASSERT_EQ(scenario.units.size(), 3U);
    const auto& [first, second, third] = std::tie(scenario.units[0], scenario.units[1], scenario.units[2]);
    EXPECT_EQ(first.port, 13000);
    EXPECT_EQ(first.name, "KELM K-0001");
    EXPECT_EQ(first.media, 5U);
    EXPECT_EQ(second.port, 13001);
    EXPECT_EQ(second.serial, "H-0002");
    EXPECT_EQ(second.address, "127.0.0.9");
    EXPECT_EQ(second.media, 7U);
    EXPECT_FALSE(second.encrypted);
    EXPECT_EQ(third.port, 0);
    EXPECT_EQ(third.name, "Third");
    EXPECT_EQ(third.keyFolder, "keys");
    EXPECT_EQ(third.seats, 4U);
    EXPECT_TRUE(third.accessPoint);
}

TEST(Scenario, ErrorsNameTheFileAndTheMember) {
    EXPECT_EQ(complaintAbout("{\n\"units\":[\n{]}").substr(0, 12), "file.json:3:");
    EXPECT_EQ(placeIn("[]"), "units");
    EXPECT_EQ(placeIn("{}"), "units");
    EXPECT_EQ(placeIn(R"({"units":[]})"), "units");
    EXPECT_EQ(placeIn(R"({"units":[{}],"more":1})"), "more");
    EXPECT_EQ(placeIn(R"({"units":[{},5]})"), "port") << "no port is left";
    const auto placeInUnit = [](const std::string& members) {
        return placeIn(R"({"units":[{)" + members + "}]}");
    };
    EXPECT_EQ(placeInUnit(""), "taken");
    EXPECT_EQ(placeInUnit(R"("prot":1)"), "units[0].prot");
    EXPECT_EQ(placeInUnit(R"("port":65536)"), "units[0].port");
    EXPECT_EQ(placeInUnit(R"("port":"1")"), "units[0].port");
    EXPECT_EQ(placeInUnit(R"("plain":1)"), "units[0].plain");
    EXPECT_EQ(placeInUnit(R"("product":"sofa")"), "units[0].product");
    EXPECT_EQ(placeInUnit(R"("seats":65)"), "units[0].seats");
    EXPECT_EQ(placeInUnit(R"("actions":{})"), "units[0].actions");
    const auto placeInAction = [&](const std::string& members) {
        return placeInUnit(R"("actions":[{)" + members + "}]");
    };
    EXPECT_EQ(placeInAction(R"("at":1)"), "units[0].actions[0]");
    EXPECT_EQ(placeInAction(R"("do":"dance")"), "units[0].actions[0].do");
    EXPECT_EQ(placeInAction(R"("at":-1,"do":"stop")"), "units[0].actions[0].at");
    EXPECT_EQ(placeInAction(R"("do":"rename")"), "units[0].actions[0]");
    EXPECT_EQ(placeInAction(R"("do":"stop","name":"x")"), "units[0].actions[0]");
    EXPECT_EQ(placeInAction(R"("do":"rename","name":"")"), "units[0].actions[0].name");
    EXPECT_EQ(placeInAction(R"("do":"fault","fault":{"answer":"loudly"})"),
              "units[0].actions[0].fault.answer");
    EXPECT_EQ(placeInAction(R"("do":"fault","fault":{"types":[1]})"), "units[0].actions[0].fault.types[0]");
    EXPECT_EQ(placeInUnit(R"("state":{"seats":[{"index":3}]})"), "units[0].state.seats[0]");
    EXPECT_EQ(placeInUnit(R"("state":{"experience":{"mode":1}})"), "units[0].state.experience.mode");
    EXPECT_EQ(placeInUnit(R"("seats":3,"state":{"seats":[{"index":3,"motion":1}]})"),
              "units[0].state.seats[0].motion");
    EXPECT_EQ(placeInAction(R"("do":"set","state":{"wifi":{"fault":"odd"}})"),
              "units[0].actions[0].state.wifi.fault");
    EXPECT_THROW(readScenario("/nowhere/file.json", {}), ScenarioError);
}

TEST(Scenario, ActionsHappenInTheirOrder) {
    const auto scenario = parseScenario(R"({"units":[{"actions":[
        {"at":60,"do":"stop"}, {"at":90,"do":"start"},
        {"at":15,"do":"set","state":{"motionDelay":30,"wifi":{"joinTime":1}}},
        {"at":30,"do":"push","type":"GetSeatStatus","body":{"seat":[ ]}},
        {"at":0,"do":"rename","name":"Renamed"},
        {"at":0,"do":"fault","fault":{"connection":"hangInTls","answer":"drop","types":["GetUpgrade"],
                                      "delay":5,"trickle":6,"wrongKey":true}}]}]})",
                                        "file.json", {});
    SimulatorHost host({false, 0});
    std::vector<std::unique_ptr<SimulatedUnit>> units;
    units.push_back(std::make_unique<SimulatedUnit>(host, scenario.units[0]));
    units[0]->start();
    ForeignClient client;
    ASSERT_EQ(client.connect("127.0.0.1", units[0]->port()), "");
    const ScenarioPlayer player(host, units, scenario.actions,
                                [](const std::string& why) { ADD_FAILURE() << why; });
    EXPECT_STREQ(receive(client).body["kelmName"].GetString(), "Renamed");
    EXPECT_EQ(receive(client).bodyText, R"({"motionDelay":30})");
    EXPECT_EQ(receive(client).bodyText, R"({"seat":[]})");
    EXPECT_FALSE(client.receive());
    EXPECT_TRUE(eventually([&] { return units[0]->isRunning(); }));
    const Faults faults = units[0]->faults();
    EXPECT_EQ(faults.connection, ConnectionFault::HangInTls);
    EXPECT_EQ(faults.answer, AnswerFault::Drop);
    EXPECT_EQ(faults.types, std::set<std::string>{"GetUpgrade"});
    EXPECT_EQ(faults.delay, 5ms);
    EXPECT_EQ(faults.trickle, 6ms);
    EXPECT_TRUE(faults.wrongKey);
}

TEST(Scenario, ActionThatCannotBeDoneIsTold) {
    SimulatorHost host({false, 0});
    std::vector<std::unique_ptr<SimulatedUnit>> units;
    units.push_back(std::make_unique<SimulatedUnit>(host, UnitOptions{}));
    units[0]->start();
    UnitOptions same;
    same.port = units[0]->port();
    units.push_back(std::make_unique<SimulatedUnit>(host, same));
    Action start;
    start.unit = 1;
    start.verb = "start";
    std::mutex mutex;
    std::string told;
    const ScenarioPlayer player(host, units, {start}, [&](const std::string& why) {
        const std::lock_guard lock(mutex);
        told = why;
    });
    EXPECT_TRUE(eventually([&] {
        const std::lock_guard lock(mutex);
        return told.rfind("units[1]: start: ", 0) == 0;
    })) << told;
}
