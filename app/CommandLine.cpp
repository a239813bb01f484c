#include "app/CommandLine.h"

#include <Velto/ApplicationInfo.h>

#include <boost/program_options.hpp>

namespace orvex {

namespace {

namespace options = boost::program_options;

constexpr unsigned lineLength = 80;
constexpr unsigned minimumDescriptionLength = 40;

} // namespace

CommandLine parseCommandLine(int argc, const char* const* argv, std::ostream& out, std::ostream& err) {
    options::options_description description(Velto::ApplicationInfo::Name() + " command line options",
                                             lineLength, minimumDescriptionLength);
    description.add_options()(
        "hostname,a", options::value<std::string>(),
        "Hostname used to connect directly to the KELM. This bypasses the auto-discovery "
        "process.")("help,h", "Show this usage/help display.");
    CommandLine result;
    try {
        using namespace options::command_line_style;
        options::variables_map values;
        options::store(options::parse_command_line(argc, argv, description, unix_style | case_insensitive),
                       values);
        if (values.count("help") != 0) {
            out << description << std::endl;
            result.exitCode = 0;
            return result;
        }
        options::notify(values);
        if (values.count("hostname") != 0) {
            result.hostName = values["hostname"].as<std::string>();
        }
    } catch (const options::error& e) {
        err << "Error in command-line: " << e.what() << std::endl << std::endl << description << std::endl;
        result.exitCode = -1;
    }
    return result;
}

} // namespace orvex
