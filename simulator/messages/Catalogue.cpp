#include "simulator/messages/Body.h"
#include "simulator/messages/Messages.h"

#include <array>

namespace Simulator {

namespace {

struct Message {
    std::string_view type;
    Answer (*answer)(UnitState&, const Request&);
};

constexpr std::array catalogue{
    Message{"GetKelmName", getKelmName},
    Message{"SetKelmName", setKelmName},
    Message{"GetNetworkState", getNetworkState},
    Message{"GetUpgrade", getUpgrade},
    Message{"GetUpdate", getUpdate},
    Message{"GetContentUpdateState", getContentUpdateState},
    Message{"RequestContentUpdate", requestContentUpdate},
    Message{"GetMediaListNotification", getMediaList},
    Message{"GetCaptureDevices", getCaptureDevices},
    Message{"SetCaptureDevicesMode", setCaptureDevicesMode},
    Message{"GetCaptureVolume", getCaptureVolume},
    Message{"SetCaptureVolume", setCaptureVolume},
    Message{"GetAutomaticVolumeControl", getAutomaticVolumeControl},
    Message{"SetAutomaticVolumeControl", setAutomaticVolumeControl},
    Message{"GetAdaptiveAudioParameters", getAdaptiveAudioParameters},
    Message{"SetAdaptiveAudioParameters", setAdaptiveAudioParameters},
    Message{"GetExperienceModes", getExperienceModes},
    Message{"SetExperienceMode", setExperienceMode},
    Message{"GetSeatStatus", getSeatStatus},
    Message{"SetSeatSetting", setSeatSetting},
    Message{"GetMotionDelay", getMotionDelay},
    Message{"SetMotionDelay", setMotionDelay},
    Message{"GetRecognitionTolerance", getRecognitionTolerance},
    Message{"SetRecognitionTolerance", setRecognitionTolerance},
    Message{"GetHapticSystemStatus", getHapticSystemStatus},
    Message{"GetSoftwareHealthStatus", getSoftwareHealthStatus},
    Message{"GetAdaptiveGamingSelectedProfile", getAdaptiveGamingSelectedProfile},
    Message{"GetMediaStatus", getMediaStatus},
    Message{"GetWifiList", getWifiList},
    Message{"SetWifiSetting", setWifiSetting},
};

const Message* find(std::string_view type) {
    for (const Message& message : catalogue)
        if (message.type == type)
            return &message;
    return nullptr;
}

} // namespace

Answer answerTo(UnitState& state, std::string_view type, std::string_view body) {
    const Message* const message = find(type);
    if (!message)
        return refusal(Status::NotSupported, "no such message");
    rapidjson::Document document;
    document.SetObject();
    // Iterative: a body full of brackets must not eat the stack.
    if (!body.empty())
        document.Parse<rapidjson::kParseIterativeFlag | rapidjson::kParseValidateEncodingFlag>(body.data(),
                                                                                               body.size());
    // The parser takes a zero byte for the end: what stands behind one is no part of an object.
    if (document.HasParseError() || !document.IsObject() || body.find('\0') != std::string_view::npos)
        return refusal(Status::Malformed, "the body is not one JSON object");
    return message->answer(state, Request{type, document});
}

void tell(UnitState& state, std::string_view type) {
    state.notifications.push_back({std::string(type), answerTo(state, type, {}).body});
}

} // namespace Simulator
