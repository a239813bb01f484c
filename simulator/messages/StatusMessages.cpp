#include "simulator/messages/Body.h"
#include "simulator/messages/Messages.h"

#include <array>

namespace Simulator {

namespace {

/// What a field of the detailed status is, on the line.
enum Category { StatusCategory = 0, MeasurementCategory = 1, FaultCategory = 2 };

constexpr int overallField = 1; ///< the status field that stands for the whole module

struct Field {
    int id;
    const char* name;
    std::string value;
    const char* unit;
    std::string description;
    const char* type;
    Category category;
};

void append(Body& body, const Field& field) {
    body.object("Field")
        .integer("Id", field.id)
        .text("Name", field.name)
        .text("Value", field.value)
        .text("Unit", field.unit)
        .text("Description", field.description)
        .text("Type", field.type)
        .integer("Category", field.category)
        .endObject();
}

void appendOverall(Body& body, SeatCondition condition) {
    append(body, {overallField, "Overall State", std::to_string(static_cast<int>(condition)), "",
                  describe(condition), "Enum", StatusCategory});
}

void appendMeasurement(Body& body, int id, const char* name, int value, const char* unit) {
    append(body, {id, name, std::to_string(value), unit, "", "Integer", MeasurementCategory});
}

void appendFault(Body& body, int id, const char* name, bool present, const char* description) {
    append(body, {id, name, present ? "1" : "0", "", present ? description : "", "Bool", FaultCategory});
}

/// A seat stands on one actuator under each corner. The last is the one that fails.
constexpr std::array<const char*, 4> actuators{"Front Left", "Front Right", "Rear Left", "Rear Right"};

void appendActuator(Body& body, const SeatState& seat, std::size_t place) {
    const bool last = place + 1 == actuators.size();
    const bool unplugged = seat.condition == SeatCondition::NoPower && last;
    const bool stuck = seat.condition == SeatCondition::Fault && last;
    const bool lost = unplugged || stuck;
    body.object((std::string("Actuator ") + actuators[place]).c_str());
    body.integer("Serial Number", 70000 + seat.index * 10 + static_cast<int>(place));
    body.number("Stroke (mm)", 38.1);
    appendOverall(body, lost ? seat.condition : SeatCondition::Ok);
    appendMeasurement(body, 10, "Motor Temperature", stuck ? 88 : 34 + static_cast<int>(place), "\u00b0C");
    appendFault(body, 20, "Overheated", stuck, "The motor is too hot");
    appendFault(body, 21, "Disconnected", unplugged, "No actuator answers on this port");
    body.endObject();
}

void appendSeat(Body& body, const SeatState& seat) {
    const bool silent = seat.condition == SeatCondition::NoCommunication;
    body.object(("Seat " + std::to_string(seat.index)).c_str());
    body.number("Motion (dB)", seat.motion).number("Vibration (dB)", seat.vibration);
    appendOverall(body, seat.condition);
    append(body, {2, "Output", seat.muted ? "1" : "0", "", seat.muted ? "Muted" : "Playing", "Enum",
                  StatusCategory});
    appendFault(body, 20, "Communication Lost", silent, "The seat does not answer");
    for (std::size_t place = 0; !silent && place < actuators.size(); ++place)
        appendActuator(body, seat, place);
    body.endObject();
}

/// The hub is as well as the worst of its seats, but a seat in transition is no fault.
SeatCondition hubCondition(const UnitState& state) {
    SeatCondition worst = SeatCondition::Ok;
    for (const SeatState& seat : state.seats) {
        if (seat.condition == SeatCondition::Transition && worst == SeatCondition::Ok)
            worst = SeatCondition::Transition;
        else if (seat.condition != SeatCondition::Ok && seat.condition != SeatCondition::Transition)
            worst = SeatCondition::Fault;
    }
    return worst;
}

void appendHub(Body& body, const UnitState& state) {
    body.object("Hub");
    body.text("Firmware", "2.7.0").integer("Ports", static_cast<int>(maximumSeats));
    appendOverall(body, hubCondition(state));
    appendMeasurement(body, 10, "Supply Voltage", state.hardware.supplyVoltage, "V");
    appendMeasurement(body, 11, "Connected Seats", static_cast<int>(state.seats.size()), "");
    for (const SeatState& seat : state.seats)
        appendSeat(body, seat);
    body.endObject();
}

constexpr int hottest = 85; ///< degrees Celsius at which a controller reports itself overheated

} // namespace

/// A tree: the controller, in it the hub, in it the seats, in each its actuators.
Answer getHapticSystemStatus(UnitState& state, const Request& /*request*/) {
    const HardwareState& hardware = state.hardware;
    const bool hot = hardware.temperature >= hottest;
    Body body;
    body.object("Controller");
    body.text("Product", hardware.product)
        .text("Model", hardware.model)
        .text("Serial Number", hardware.serial)
        .text("Firmware", state.software.version)
        .number("Load (%)", hardware.load);
    appendOverall(body, hot ? SeatCondition::Fault : SeatCondition::Ok);
    append(body, {2, "Experience Mode", std::to_string(state.experience.selected), "", state.experience.state,
                  "Enum", StatusCategory});
    appendMeasurement(body, 10, "Temperature", hardware.temperature, "\u00b0C");
    appendFault(body, 20, "Overheated", hot, "The controller is too hot");
    appendHub(body, state);
    return answered(body.endObject().finish());
}

Answer getSoftwareHealthStatus(UnitState& state, const Request& /*request*/) {
    const HealthState& health = state.health;
    Body body;
    body.integer("overallState", health.overall)
        .text("currentUserName", health.user)
        .array("softwareHealthStatus");
    for (const SoftwareEntry& entry : health.entries) {
        body.element()
            .text("softwareName", entry.name)
            .integer("status", entry.status)
            .text("statusMessage", entry.message)
            .text("timestamp", entry.timestamp)
            .text("userName", entry.user)
            .endObject();
    }
    return answered(body.endArray().finish());
}

Answer getAdaptiveGamingSelectedProfile(UnitState& state, const Request& /*request*/) {
    const GamingProfile& profile = state.profile;
    return answered(Body()
                        .object("selectedProfile")
                        .text("id", profile.id)
                        .text("name", profile.name)
                        .integer("type", profile.type)
                        .integer("version", profile.version)
                        .endObject()
                        .finish());
}

} // namespace Simulator
