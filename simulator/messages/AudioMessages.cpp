#include "simulator/messages/Body.h"
#include "simulator/messages/Messages.h"

#include <algorithm>

namespace Simulator {

namespace {

const CaptureDevice* findDevice(const AudioState& audio, const std::string& identification) {
    const auto found = std::find_if(
        audio.devices.begin(), audio.devices.end(),
        [&identification](const CaptureDevice& device) { return device.identification == identification; });
    return found == audio.devices.end() ? nullptr : &*found;
}

/// The device a unit selects by itself: the first that is connected.
std::string bestDevice(const AudioState& audio) {
    const auto found = std::find_if(audio.devices.begin(), audio.devices.end(),
                                    [](const CaptureDevice& device) { return device.connected; });
    return found == audio.devices.end() ? std::string() : found->identification;
}

bool hasMode(const ExperienceState& experience, int mode) {
    return std::count(experience.modes.begin(), experience.modes.end(), mode) > 0;
}

std::string complaintAboutVolume(const AudioState& audio, int volume) {
    if (volume < audio.minimumVolume || volume > audio.maximumVolume)
        return std::to_string(audio.minimumVolume) + " to " + std::to_string(audio.maximumVolume) +
               " is possible";
    const auto steps = static_cast<long long>(volume) - audio.minimumVolume; // more than an int may hold
    if (steps % audio.volumeStep != 0)
        return "it lies between two steps of " + std::to_string(audio.volumeStep);
    return {};
}

} // namespace

Answer getCaptureDevices(UnitState& state, const Request& /*request*/) {
    Body body;
    body.array("captureDevices");
    for (const CaptureDevice& device : state.audio.devices) {
        body.element()
            .text("friendlyName", device.name)
            .text("description", device.description)
            .text("identification", device.identification)
            .text("interface", device.interfaceName)
            .text("loopback", device.loopback ? "Loopback" : "Regular")
            .text("status", device.identification == state.audio.selected ? "OnCapture" : "Ready")
            .text("connected", device.connected ? "true" : "false")
            .endObject();
    }
    return answered(body.endArray().finish());
}

Answer setCaptureDevicesMode(UnitState& state, const Request& request) {
    const auto mode = textIn(request.body, "mode");
    if (!mode)
        return malformed("mode", "a text");
    if (*mode != "manual" && *mode != "automatic")
        return refused("mode", "\"manual\" and \"automatic\" are the modes");
    std::string selected = bestDevice(state.audio);
    if (*mode == "manual") {
        const auto identification = textIn(request.body, "identification");
        if (!identification)
            return malformed("identification", "a text");
        const CaptureDevice* const device = findDevice(state.audio, *identification);
        if (!device)
            return refused("identification", "there is no such capture device");
        if (!device->connected)
            return refused("identification", "this capture device is not connected");
        selected = *identification;
    }
    state.audio.mode = *mode;
    state.audio.selected = selected;
    tell(state, "GetCaptureDevices");
    return answered();
}

Answer getCaptureVolume(UnitState& state, const Request& /*request*/) {
    const AudioState& audio = state.audio;
    const int mode = state.experience.selected;
    return answered(Body()
                        .integer("experienceModeId", mode)
                        .integer("volume", audio.volumeIn(mode))
                        .integer("step", audio.volumeStep)
                        .integer("min", audio.minimumVolume)
                        .integer("max", audio.maximumVolume)
                        .finish());
}

Answer setCaptureVolume(UnitState& state, const Request& request) {
    const auto volume = integerIn(request.body, "volume");
    if (!volume)
        return malformed("volume", "a whole number");
    const auto mode = integerIn(request.body, "experienceModeId");
    if (!mode)
        return malformed("experienceModeId", "a whole number");
    if (!hasMode(state.experience, *mode))
        return refused("experienceModeId", "there is no such mode");
    if (const std::string complaint = complaintAboutVolume(state.audio, *volume); !complaint.empty())
        return refused("volume", complaint);
    state.audio.volumes[*mode] = *volume;
    tell(state, "GetCaptureVolume");
    return answered();
}

Answer getAutomaticVolumeControl(UnitState& state, const Request& /*request*/) {
    return answered(Body().flag("enabled", state.audio.automaticVolume).finish());
}

Answer setAutomaticVolumeControl(UnitState& state, const Request& request) {
    const auto enable = flagIn(request.body, "enable");
    if (!enable)
        return malformed("enable", "true or false");
    state.audio.automaticVolume = *enable;
    tell(state, "GetAutomaticVolumeControl");
    return answered();
}

Answer getAdaptiveAudioParameters(UnitState& state, const Request& /*request*/) {
    return answered(Body().integer("preMixType", state.audio.preMixType).finish());
}

Answer setAdaptiveAudioParameters(UnitState& state, const Request& request) {
    const auto type = integerIn(request.body, "preMixType");
    if (!type)
        return malformed("preMixType", "a whole number");
    if (*type != 0 && *type != 1)
        return refused("preMixType", "0 and 1 are possible");
    state.audio.preMixType = *type;
    tell(state, "GetAdaptiveAudioParameters");
    return answered();
}

} // namespace Simulator
