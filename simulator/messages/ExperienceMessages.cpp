#include "simulator/messages/Body.h"
#include "simulator/messages/Messages.h"

#include <algorithm>
#include <array>

namespace Simulator {

namespace {

constexpr const char* settled = "On";
constexpr const char* changing = "Transitioning";

struct Fault {
    int first;
    int last;
    const char* message;
};

constexpr std::array<Fault, 12> faults{{{100, 100, "The mode could not be selected"},
                                        {101, 101, "A haptic device does not answer"},
                                        {102, 103, "The agent does not answer"},
                                        {104, 104, "Internal error"},
                                        {200, 200, "Internal error"},
                                        {890, 890, "No seat is connected"},
                                        {891, 891, "Adaptive gaming failed"},
                                        {892, 893, "Adaptive gaming is not set up"},
                                        {894, 899, "Adaptive gaming failed"},
                                        {910, 910, "No seat was found"},
                                        {1100, 1100, "The agent does not answer"},
                                        {1101, 1102, "Adaptive gaming failed"}}};

void endTransition(UnitState& state, int previous) {
    ExperienceState& experience = state.experience;
    if (experience.state != changing)
        return;
    experience.state = settled;
    experience.status = experience.failure;
    experience.message = messageOfModeStatus(experience.failure);
    if (experience.failure != 0)
        experience.selected = previous;
    tell(state, "GetExperienceModes");
    tell(state, "GetCaptureVolume"); // each mode has its own
}

} // namespace

std::string messageOfModeStatus(int status) {
    if (status == 0)
        return "Ok";
    const auto found = std::find_if(faults.begin(), faults.end(), [status](const Fault& fault) {
        return status >= fault.first && status <= fault.last;
    });
    return found == faults.end() ? "Unknown error" : found->message;
}

Answer getExperienceModes(UnitState& state, const Request& /*request*/) {
    const ExperienceState& experience = state.experience;
    Body body;
    body.integer("selectedModeId", experience.selected)
        .text("state", experience.state)
        .integer("status", experience.status)
        .text("statusMessage", experience.message)
        .array("experienceModes");
    for (const int mode : experience.modes)
        body.element().integer("id", mode).endObject();
    return answered(body.endArray().finish());
}

/// The answer says that the change has begun. It ends with the chosen mode or, when it fails, with the one
/// before.
Answer setExperienceMode(UnitState& state, const Request& request) {
    ExperienceState& experience = state.experience;
    const auto mode = integerIn(request.body, "experienceMode");
    if (!mode)
        return malformed("experienceMode", "a whole number");
    if (std::count(experience.modes.begin(), experience.modes.end(), *mode) == 0)
        return refused("experienceMode", "there is no such mode");
    if (experience.state == changing)
        return refused("experienceMode", "another change is under way");
    if (*mode == experience.selected && experience.status == 0)
        return answered();
    const int previous = experience.selected;
    experience.selected = *mode;
    experience.state = changing;
    experience.status = 0;
    experience.message = messageOfModeStatus(0);
    tell(state, "GetExperienceModes");
    state.steps.push_back(
        {experience.transition, [previous](UnitState& later) { endTransition(later, previous); }});
    return answered();
}

} // namespace Simulator
