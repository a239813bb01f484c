#include "messaging/NetworkInterfaces.h"

#include <algorithm>
#include <cstdlib>
#include <sstream>

namespace Velto::Messaging {

namespace {

std::string trimmed(const std::string& text) {
    const auto first = text.find_first_not_of(" \t");
    if (first == std::string::npos)
        return {};
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

bool isNamed(const NetworkInterface& candidate, const std::string& name) {
    return candidate.name == name || candidate.address == name || (candidate.loopback && name == "lo");
}

} // namespace

std::vector<NetworkInterface> selectInterfaces(std::vector<NetworkInterface> interfaces,
                                               const std::string& restriction) {
    if (trimmed(restriction).empty())
        return interfaces;
    std::vector<std::string> names;
    std::istringstream list(restriction);
    for (std::string name; std::getline(list, name, ',');)
        names.push_back(trimmed(name));
    const auto unwanted = [&names](const NetworkInterface& candidate) {
        return std::none_of(names.begin(), names.end(),
                            [&candidate](const std::string& name) { return isNamed(candidate, name); });
    };
    interfaces.erase(std::remove_if(interfaces.begin(), interfaces.end(), unwanted), interfaces.end());
    return interfaces;
}

std::string interfaceRestriction() {
    const char* const value = std::getenv("VELTO_DISCOVERY_INTERFACES");
    return value ? value : "";
}

} // namespace Velto::Messaging
