#include "messaging/DiscoveryStrategy.h"

#include "core/Areas.h"
#include "messaging/DirectStrategy.h"
#include "messaging/ProbeStrategy.h"

#include <spdlog/logger.h>

#include <algorithm>
#include <charconv>

namespace Velto::Messaging {

namespace {

constexpr std::chrono::milliseconds defaultPeriod{1500};
/// A shorter period would flood the network and gain nothing: units answer within 50 ms.
constexpr std::chrono::milliseconds shortestPeriod{100};

std::chrono::milliseconds periodOf(std::int32_t number) {
    return number <= 0 ? defaultPeriod : std::max(std::chrono::milliseconds(number), shortestPeriod);
}

using Maker = std::shared_ptr<DiscoveryStrategy> (*)(const std::string& parameter,
                                                     std::chrono::milliseconds period,
                                                     const DiscoverySurroundings& surroundings);

struct Kind {
    std::int32_t number;
    Maker make;
};

constexpr Kind kinds[] = {{2, &makeDirectStrategy}, {3, &makeProbeStrategy}};

} // namespace

std::shared_ptr<DiscoveryStrategy> makeDiscoveryStrategy(const Messenger::DiscoveryStrategyInfo& info,
                                                         const DiscoverySurroundings& surroundings) {
    std::shared_ptr<DiscoveryStrategy> strategy;
    for (const Kind& kind : kinds)
        if (kind.number == info.kind)
            strategy = kind.make(info.parameter, periodOf(info.number), surroundings);
    if (!strategy)
        detail::areaLogger(detail::Area::QAutoDiscovery)
            ->error("Discovery of kind {} with \"{}\" is not possible; it finds no unit", info.kind,
                    info.parameter);
    return strategy;
}

std::uint16_t parsePort(const std::string& text) {
    std::uint16_t port = 0;
    const char* const end = text.data() + text.size();
    const auto [rest, error] = std::from_chars(text.data(), end, port);
    return error == std::errc() && rest == end ? port : std::uint16_t{0};
}

} // namespace Velto::Messaging
