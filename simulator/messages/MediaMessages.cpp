#include "simulator/messages/Body.h"
#include "simulator/messages/Messages.h"
#include "simulator/messages/Titles.h"

#include <array>
#include <cstdio>

namespace Simulator {

namespace {

constexpr std::array<const char*, 12> adjectives{"Silent", "Crimson", "Last",    "Hollow",
                                                 "Golden", "Distant", "Burning", "Frozen",
                                                 "Hidden", "Iron",    "Paper",   "Restless"};
constexpr std::array<const char*, 13> nouns{"Harbour", "Orbit",  "Engine",  "Valley", "Signal",
                                            "Thunder", "Garden", "Mirror",  "Runner", "Tide",
                                            "Summit",  "Circus", "Frontier"};
constexpr std::array<const char*, 3> cuts{"Theatrical", "Extended", "Director's Cut"};
constexpr std::array<const char*, 4> languages{"English", "French", "German", "Japanese"};

template <typename... Values>
std::string formatted(const char* format, Values... values) {
    std::array<char, 48> text{};
    std::snprintf(text.data(), text.size(), format, values...);
    return text.data();
}

std::string dateOf(std::size_t number, unsigned int firstYear) {
    const auto scattered = static_cast<unsigned int>(number * 2654435761U % 100000U);
    return formatted("%04u-%02u-%02u", firstYear + scattered % 24U, 1U + scattered / 24U % 12U,
                     1U + scattered / 288U % 28U);
}

std::string durationOf(std::size_t number) {
    const auto seconds = static_cast<unsigned int>(playingTimeOf(number));
    return formatted("%02u:%02u:%02u", seconds / 3600U, seconds / 60U % 60U, seconds % 60U);
}

} // namespace

std::string titleOf(std::size_t number) {
    const std::size_t part = number / (adjectives.size() * nouns.size());
    std::string title = std::string("The ") + adjectives[number % adjectives.size()] + ' ' +
                        nouns[number / adjectives.size() % nouns.size()];
    return part == 0 ? title : title + ' ' + std::to_string(part + 1);
}

int playingTimeOf(std::size_t number) {
    return static_cast<int>(4800U + number * 977U % 5400U);
}

Answer getMediaList(UnitState& state, const Request& /*request*/) {
    Body body;
    body.object("mediaList").array("media");
    for (std::size_t number = 0; number < state.media.count; ++number) {
        body.element()
            .text("title", titleOf(number))
            .text("cut", cuts[number % cuts.size()])
            .text("language", languages[number / cuts.size() % languages.size()])
            .text("releaseDate", dateOf(number, 1998))
            .text("imdbRef", formatted("tt%07u", static_cast<unsigned int>(9000000U + number)))
            .text("duration", durationOf(number))
            .text("trackReleaseDate", dateOf(number, 2000))
            .endObject();
    }
    return answered(body.endArray().endObject().finish());
}

} // namespace Simulator
