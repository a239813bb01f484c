#pragma once

#include "simulator/Faults.h"
#include "simulator/UnitOptions.h"
#include "simulator/UnitState.h"

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace Simulator {

class SimulatedUnit;
class SimulatorHost;

/// Something that happens to a unit at a given time after the start.
struct Action {
    std::chrono::milliseconds at{0};
    std::size_t unit = 0;      ///< its place in the scenario
    std::string verb;          ///< "rename", "set", "stop", "start", "fault", "push" or "close"
    std::string name;          ///< of "rename"
    std::string state;         ///< of "set": settings as of StateSettings.h
    std::string statePlace;    ///< where they stand in the file
    Faults faults;             ///< of "fault", which replaces all that was set before
    Notification notification; ///< of "push"
};

struct Scenario {
    std::vector<UnitOptions> units; ///< completed
    std::vector<Action> actions;
};

/// What is wrong with a scenario: the file, the member (or the line) and the fault.
class ScenarioError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Reads a scenario; what a unit leaves out is taken from `defaults`, each next unit with the next number and
/// port. Throws ScenarioError for a file that cannot be read, is not JSON, has an unknown member or a value
/// out of range.
Scenario readScenario(const std::filesystem::path& file, const UnitOptions& defaults);
/// The same for a text; `source` is what the error calls it.
Scenario parseScenario(std::string_view text, const std::string& source, const UnitOptions& defaults);

/// `count` units like `first`: numbers and ports count up (a port of 0 stays), and so does a name or serial
/// number that was given. Throws std::invalid_argument for ports beyond 65535 and for what `completed`
/// refuses.
std::vector<UnitOptions> expand(const UnitOptions& first, std::size_t count);

/// Lets the actions happen, on the host's thread, while it lives. Units and host outlive it.
class ScenarioPlayer {
public:
    /// `failed` hears of an action that could not be done, with the reason, on the host's thread.
    ScenarioPlayer(SimulatorHost& host, const std::vector<std::unique_ptr<SimulatedUnit>>& units,
                   std::vector<Action> actions, const std::function<void(const std::string&)>& failed);
    ~ScenarioPlayer();
    ScenarioPlayer(const ScenarioPlayer&) = delete;
    ScenarioPlayer& operator=(const ScenarioPlayer&) = delete;

private:
    SimulatorHost& m_host;
    std::shared_ptr<bool>
        m_playing; // its end is the end of all actions to come; belongs to the host's thread
};

} // namespace Simulator
