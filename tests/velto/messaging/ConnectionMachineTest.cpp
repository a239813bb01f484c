#include "messaging/ConnectionMachine.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace Velto::Messaging {
namespace {

using std::chrono::milliseconds;

/// An action as a short text, so that a failure can be read.
struct Describe {
    std::string operator()(const Act::OpenLink& act) const {
        return "open" + std::to_string(act.generation) + " " + act.unit.address + " " +
               std::to_string(act.timeout.count());
    }
    std::string operator()(const Act::BoundLink& act) const {
        return "bound" + std::to_string(act.generation) + " " + std::to_string(act.timeout.count());
    }
    std::string operator()(const Act::CloseLink& act) const {
        return "close" + std::to_string(act.generation);
    }
    std::string operator()(const Act::ReportConnected&) const { return "connected"; }
    std::string operator()(const Act::ReportLost&) const { return "lost"; }
    std::string operator()(const Act::ReportFailedAttempt&) const { return "failed"; }
};

std::string describe(const Actions& actions) {
    std::string all;
    for (const Action& action : actions)
        all += (all.empty() ? "" : ", ") + std::visit(Describe(), action);
    return all;
}

using Event = std::function<Actions(ConnectionMachine&)>;

Event choose(const std::string& address, int timeout = 700, bool now = true, bool encrypted = true) {
    return [=](ConnectionMachine& machine) {
        return machine.choose({address, "name", 12740, encrypted}, now, milliseconds(timeout));
    };
}
Event connect(int timeout) {
    return [=](ConnectionMachine& machine) { return machine.connect(milliseconds(timeout)); };
}
Event disconnect() {
    return [](ConnectionMachine& machine) { return machine.disconnect(); };
}
Event up(std::uint64_t generation) {
    return [=](ConnectionMachine& machine) { return machine.linkUp(generation); };
}
Event down(std::uint64_t generation) {
    return [=](ConnectionMachine& machine) { return machine.linkDown(generation); };
}

struct Step {
    Event event;
    std::string expected;
};

struct Story {
    const char* name;
    std::vector<Step> steps;
};

class ConnectionMachineTest : public testing::TestWithParam<Story> {};

TEST_P(ConnectionMachineTest, DecidesAsExpected) {
    ConnectionMachine machine;
    int number = 0;
    for (const Step& step : GetParam().steps)
        EXPECT_EQ(describe(step.event(machine)), step.expected) << "step " << ++number;
}

INSTANTIATE_TEST_SUITE_P(
    Stories, ConnectionMachineTest,
    testing::Values(
        Story{"ConnectedAndLostAlternate",
              {{choose("a"), "open1 a 700"},
               {up(1), "connected"},
               {up(1), ""},
               {down(1), "lost"},
               {down(1), ""},
               {disconnect(), ""}}},
        Story{"FailedAttemptIsNoLoss",
              {{choose("a"), "open1 a 700"}, {down(1), "failed"}, {choose("a"), "open2 a 700"}}},
        Story{"DroppedAttemptIsNotReported",
              {{choose("a"), "open1 a 700"}, {disconnect(), "close1"}, {up(1), ""}, {down(1), ""}}},
        Story{"DisconnectTellsBeforeItCloses",
              {{choose("a"), "open1 a 700"},
               {up(1), "connected"},
               {disconnect(), "lost, close1"},
               {disconnect(), ""},
               {down(1), ""}}},
        Story{"ConnectedUnitChosenAgainReportsAgain",
              {{choose("a"), "open1 a 700"},
               {up(1), "connected"},
               {choose("a"), "connected"},
               {choose("a", 700, false), "connected"},
               {down(1), "lost"}}},
        Story{"OtherUnitReplacesTheConnection",
              {{choose("a"), "open1 a 700"},
               {up(1), "connected"},
               {choose("b"), "lost, close1, open2 b 700"},
               {down(1), ""},
               {up(1), ""},
               {up(2), "connected"}}},
        Story{"OtherUnitReplacesTheAttempt",
              {{choose("a"), "open1 a 700"}, {choose("b"), "close1, open2 b 700"}, {down(2), "failed"}}},
        Story{"SameUnitKeepsTheAttemptAndBoundsItAnew",
              {{choose("a"), "open1 a 700"}, {choose("a", 900), "bound1 900"}, {up(1), "connected"}}},
        Story{"OtherEncryptionIsAnotherUnit",
              {{choose("a"), "open1 a 700"},
               {up(1), "connected"},
               {choose("a", 700, true, false), "lost, close1, open2 a 700"}}},
        Story{"ChosenForLaterWaitsForConnect",
              {{choose("a", 0, false), ""},
               {connect(1234), "open1 a 1234"},
               {connect(1234), ""},
               {up(1), "connected"},
               {connect(1234), ""}}},
        Story{"ChosenForLaterDropsTheOtherUnit",
              {{choose("a"), "open1 a 700"}, {up(1), "connected"}, {choose("b", 0, false), "lost, close1"}}},
        Story{"NoTimeNamedMeansTheServices",
              {{choose("a", 0), "open1 a 3000"},
               {disconnect(), "close1"},
               {connect(500), "open2 a 500"},
               {choose("a", 0), "bound2 500"}}},
        Story{"ConnectWithNobodyChosenOnlyServes", {{connect(0), ""}, {choose("a", 0), "open1 a 3000"}}}),
    [](const auto& story) { return story.param.name; });

TEST(ConnectionMachine, HearsOnlyTheConnectionInUse) {
    ConnectionMachine machine;
    choose("a")(machine);
    EXPECT_FALSE(machine.hears(1));
    up(1)(machine);
    EXPECT_TRUE(machine.hears(1));
    choose("b")(machine);
    EXPECT_FALSE(machine.hears(1));
    up(2)(machine);
    EXPECT_FALSE(machine.hears(1));
    EXPECT_TRUE(machine.hears(2));
}

} // namespace
} // namespace Velto::Messaging
