#include "ProgramOptions.h"

#include "Product.h"

#include <boost/program_options.hpp>

#include <limits>
#include <sstream>
#include <stdexcept>

namespace Simulator {

namespace {

namespace po = boost::program_options;

constexpr std::size_t maximumUnits = 100'000;

/// A whole number from 0 on; "-1" must not become a very large one.
std::size_t numberIn(const po::variables_map& values, const char* option, std::size_t maximum) {
    const auto number = values[option].as<long long>();
    if (number < 0 || static_cast<unsigned long long>(number) > maximum)
        throw std::invalid_argument(std::string("--") + option + " takes a number from 0 to " +
                                    std::to_string(maximum));
    return static_cast<std::size_t>(number);
}

po::options_description describe() {
    const auto number = [](long long standard) { return po::value<long long>()->default_value(standard); };
    po::options_description options("kelm-simulator " + std::string(QuiveraProduct::version) + ", part of " +
                                    QuiveraProduct::name +
                                    "\nSimulated motion-seat controllers on this machine\n\nOptions");
    auto add = options.add_options();
    add("help,h", "show this text and end");
    add("units", number(1), "how many units");
    add("product", po::value<std::string>()->default_value("kelm"), "kelm, hub or ruvello");
    add("name", po::value<std::string>(), "name of the first unit; the others are numbered");
    add("serial", po::value<std::string>(), "serial number of the first unit; the others are numbered");
    add("address", po::value<std::string>()->default_value("127.0.0.1"),
        "where the units listen and answer from");
    add("port", number(Velto::Wire::unitPort),
        "TCP port of the first unit, the others count up; 0: any free ones");
    add("seats", number(2), "seats of each unit");
    add("media", number(24), "entries in the media list of each unit");
    add("state", po::value<std::string>(),
        "first state of each unit, as the JSON object of a scenario's \"state\"");
    add("access-point", "the units are not joined to a network and have their own access point up");
    add("plain", "no encryption");
    add("key-folder", po::value<std::string>(),
        "where keys are kept, so that a unit has the same uid each time");
    add("scenario", po::value<std::string>(), "a JSON file of units and what happens to them");
    add("discovery-port", number(Velto::Wire::discoveryPort), "UDP port on which probes are heard");
    add("no-discovery", "no probe is heard");
    return options;
}

void textInto(const po::variables_map& values, const char* option, std::string& text) {
    if (values.count(option) == 0)
        return;
    text = values[option].as<std::string>();
    if (text.empty())
        throw std::invalid_argument(std::string("--") + option + " must not be empty");
}

} // namespace

ProgramOptions parseCommandLine(int argc, const char* const* argv) {
    const auto described = describe();
    po::variables_map values;
    try {
        // No guessing: an option added later must not change what a script meant.
        constexpr auto style = po::command_line_style::unix_style ^ po::command_line_style::allow_guessing;
        po::store(po::command_line_parser(argc, argv)
                      .options(described)
                      .positional(po::positional_options_description())
                      .style(style)
                      .run(),
                  values);
    } catch (const po::error& error) {
        throw std::invalid_argument(error.what());
    }
    ProgramOptions options;
    std::ostringstream text;
    text << described;
    options.helpText = text.str();
    options.help = values.count("help") > 0;
    constexpr std::size_t maximumPort = std::numeric_limits<std::uint16_t>::max();
    options.host.discovery = values.count("no-discovery") == 0;
    options.host.discoveryPort = static_cast<std::uint16_t>(numberIn(values, "discovery-port", maximumPort));
    options.units = numberIn(values, "units", maximumUnits);
    textInto(values, "scenario", options.scenario);
    textInto(values, "product", options.unit.product);
    textInto(values, "name", options.unit.name);
    textInto(values, "serial", options.unit.serial);
    textInto(values, "address", options.unit.address);
    textInto(values, "state", options.unit.state);
    textInto(values, "key-folder", options.unit.keyFolder);
    options.unit.port = static_cast<std::uint16_t>(numberIn(values, "port", maximumPort));
    options.unit.seats = numberIn(values, "seats", maximumSeats);
    options.unit.media = numberIn(values, "media", maximumMedia);
    options.unit.accessPoint = values.count("access-point") > 0;
    options.unit.encrypted = values.count("plain") == 0;
    if (options.units == 0)
        throw std::invalid_argument("--units takes a number from 1 to " + std::to_string(maximumUnits));
    if (!options.scenario.empty() && !values["units"].defaulted())
        throw std::invalid_argument("--units and --scenario do not go together: a scenario lists its units");
    return options;
}

} // namespace Simulator
