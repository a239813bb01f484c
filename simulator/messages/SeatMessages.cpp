#include "simulator/messages/Body.h"
#include "simulator/messages/Messages.h"

#include <algorithm>
#include <array>

namespace Simulator {

namespace {

constexpr double lowestLevel = -20; ///< dB, as the highest
constexpr double highestLevel = 0;
constexpr int longestDelay = 1000;   ///< ms, in both directions
constexpr int longestTolerance = 60; ///< s

struct Condition {
    SeatCondition value;
    const char* description;
};

constexpr std::array<Condition, 5> conditions{
    {{SeatCondition::Ok, "System OK"},
     {SeatCondition::Fault, "Fault in System"},
     {SeatCondition::Transition, "System in Transition"},
     {SeatCondition::NoPower, "No Power or Actuator Disconnected"},
     {SeatCondition::NoCommunication, "No Communication with System"}}};

bool isLevel(double level) {
    return level >= lowestLevel && level <= highestLevel;
}

} // namespace

std::string describe(SeatCondition condition) {
    for (const Condition& known : conditions)
        if (known.value == condition)
            return known.description;
    return {};
}

Answer getSeatStatus(UnitState& state, const Request& /*request*/) {
    Body body;
    body.array("seat");
    for (const SeatState& seat : state.seats) {
        body.element()
            .integer("index", seat.index)
            .flag("muted", seat.muted)
            .flag("chained", seat.chained)
            .number("motion", seat.motion)
            .number("vibration", seat.vibration)
            .object("overallState")
            .text("value", std::to_string(static_cast<int>(seat.condition)))
            .text("description", describe(seat.condition))
            .endObject()
            .endObject();
    }
    return answered(body.endArray().finish());
}

Answer setSeatSetting(UnitState& state, const Request& request) {
    const auto* const setting = objectIn(request.body, "seat");
    if (!setting)
        return malformed("seat", "an object");
    const auto index = integerIn(*setting, "index");
    const auto muted = flagIn(*setting, "muted");
    const auto chained = flagIn(*setting, "chained");
    const auto motion = numberIn(*setting, "motion");
    const auto vibration = numberIn(*setting, "vibration");
    if (!index)
        return malformed("seat.index", "a whole number");
    if (!muted || !chained)
        return malformed(muted ? "seat.chained" : "seat.muted", "true or false");
    if (!motion || !vibration)
        return malformed(motion ? "seat.vibration" : "seat.motion", "a number");
    const auto seat = std::find_if(state.seats.begin(), state.seats.end(),
                                   [&index](const SeatState& known) { return known.index == *index; });
    if (seat == state.seats.end())
        return refused("seat.index", "there is no such seat");
    if (!isLevel(*motion) || !isLevel(*vibration))
        return refused(isLevel(*motion) ? "seat.vibration" : "seat.motion", "-20 to 0 is possible");
    if (seat->condition == SeatCondition::NoCommunication)
        return refusal(Status::Failed, "the seat does not answer");
    seat->muted = *muted;
    seat->chained = *chained;
    seat->motion = *motion;
    seat->vibration = *vibration;
    tell(state, "GetSeatStatus");
    return answered();
}

Answer getMotionDelay(UnitState& state, const Request& /*request*/) {
    return answered(Body().integer("motionDelay", state.motionDelay).finish());
}

Answer setMotionDelay(UnitState& state, const Request& request) {
    const auto delay = integerIn(request.body, "motionDelay");
    if (!delay)
        return malformed("motionDelay", "a whole number");
    if (*delay < -longestDelay || *delay > longestDelay)
        return refused("motionDelay", "-1000 to 1000 ms is possible");
    state.motionDelay = *delay;
    tell(state, "GetMotionDelay");
    return answered();
}

Answer getRecognitionTolerance(UnitState& state, const Request& /*request*/) {
    return answered(Body().integer("recognitionTolerance", state.recognitionTolerance).finish());
}

Answer setRecognitionTolerance(UnitState& state, const Request& request) {
    const auto tolerance = integerIn(request.body, "recognitionTolerance");
    if (!tolerance)
        return malformed("recognitionTolerance", "a whole number");
    if (*tolerance < 0 || *tolerance > longestTolerance)
        return refused("recognitionTolerance", "0 to 60 s is possible");
    state.recognitionTolerance = *tolerance;
    tell(state, "GetRecognitionTolerance");
    return answered();
}

} // namespace Simulator
