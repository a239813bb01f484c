#include "ProgramOptions.h"
#include "simulator/Platform.h"
#include "simulator/Scenario.h"
#include "simulator/SimulatedUnit.h"

#include <boost/asio/io_context.hpp>
#include <boost/asio/signal_set.hpp>

#include <csignal>
#include <cstdio>
#include <exception>
#include <iostream>
#include <memory>
#include <stdexcept>
#include <vector>

namespace {

using namespace Simulator;

constexpr int exitFailure = 1;
constexpr int exitUsage = 2;

Scenario scenarioFor(const ProgramOptions& options) {
    if (!options.scenario.empty())
        return readScenario(options.scenario, options.unit);
    return {expand(options.unit, options.units), {}};
}

void tell(const std::string& problem) {
    std::cerr << "kelm-simulator: " + problem + '\n' << std::flush;
}

void simulate(const HostOptions& hostOptions, const Scenario& scenario) {
    // Before any unit runs: a signal that comes early must end the program as cleanly as a late one.
    boost::asio::io_context context(1);
    boost::asio::signal_set signals(context, SIGINT, SIGTERM);
    signals.async_wait([](const boost::system::error_code&, int) {});

    Platform::raiseSocketLimit();
    SimulatorHost host(hostOptions);
    if (const auto problem = host.discoveryProblem(); !problem.empty())
        tell(problem + "; units can only be reached directly");
    std::vector<std::unique_ptr<SimulatedUnit>> units;
    for (const UnitOptions& options : scenario.units) {
        auto& unit = units.emplace_back(std::make_unique<SimulatedUnit>(host, options));
        unit->start();
        std::cout << "ready " << options.name << ' ' << options.address << ':' << unit->port() << ' '
                  << unit->uid() << '\n';
    }
    std::cout << "all units ready" << std::endl;
    const ScenarioPlayer player(host, units, scenario.actions, tell);
    context.run();
}

int runProgram(int argc, const char* const* argv) {
    Scenario scenario;
    ProgramOptions options;
    try {
        options = parseCommandLine(argc, argv);
        if (options.help) {
            std::cout << options.helpText;
            return 0;
        }
        scenario = scenarioFor(options);
    } catch (const std::exception& error) {
        tell(error.what());
        return exitUsage;
    }
    simulate(options.host, scenario);
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    try {
        return runProgram(argc, argv);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "kelm-simulator: %s\n", error.what());
        return exitFailure;
    }
}
