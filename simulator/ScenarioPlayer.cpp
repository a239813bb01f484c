#include "Scenario.h"
#include "simulator/SimulatedUnit.h"
#include "simulator/SimulatorHost.h"
#include "simulator/StateSettings.h"

#include <array>
#include <exception>
#include <utility>

namespace Simulator {

namespace {

struct Deed {
    const char* verb;
    void (*act)(SimulatedUnit&, const Action&);
};

constexpr std::array<Deed, 7> deeds{{
    {"rename", [](SimulatedUnit& unit, const Action& action) { unit.rename(action.name); }},
    {"set",
     [](SimulatedUnit& unit, const Action& action) {
         unit.changeState([&action](UnitState& state) { applyAndTell(state, action.state, "state"); });
     }},
    {"stop", [](SimulatedUnit& unit, const Action&) { unit.stop(); }},
    {"start", [](SimulatedUnit& unit, const Action&) { unit.start(); }},
    {"fault", [](SimulatedUnit& unit, const Action& action) { unit.setFaults(action.faults); }},
    {"push", [](SimulatedUnit& unit,
                const Action& action) { unit.push(action.notification.type, action.notification.body); }},
    {"close", [](SimulatedUnit& unit, const Action&) { unit.closeConnections(); }},
}};

void act(SimulatedUnit& unit, const Action& action) {
    for (const Deed& deed : deeds)
        if (action.verb == deed.verb)
            deed.act(unit, action);
}

} // namespace

ScenarioPlayer::ScenarioPlayer(SimulatorHost& host, const std::vector<std::unique_ptr<SimulatedUnit>>& units,
                               std::vector<Action> actions,
                               const std::function<void(const std::string&)>& failed)
    : m_host(host)
    , m_playing(std::make_shared<bool>(true)) {
    for (Action& action : actions) {
        SimulatedUnit* const unit = units.at(action.unit).get();
        const auto at = action.at;
        m_host.after(at, [unit, action = std::move(action), failed,
                          playing = std::weak_ptr<bool>(m_playing)] {
            if (playing.expired())
                return;
            try {
                act(*unit, action);
            } catch (const std::exception& error) {
                failed("units[" + std::to_string(action.unit) + "]: " + action.verb + ": " + error.what());
            }
        });
    }
}

ScenarioPlayer::~ScenarioPlayer() {
    m_host.run([this] { m_playing.reset(); });
}

} // namespace Simulator
