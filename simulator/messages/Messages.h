#pragma once

#include "simulator/Status.h"
#include "simulator/UnitState.h"

#include <rapidjson/document.h>

#include <string>
#include <string_view>
#include <utility>

namespace Simulator {

/// What a client asks. `body` is always an object, an empty one when the frame had none.
struct Request {
    std::string_view type;
    const rapidjson::Value& body;
};

struct Answer {
    Status status = Status::Ok;
    std::string text; ///< why not, for people
    std::string body;
    bool withheld = false; ///< done, but the client never hears of it
};

inline Answer refusal(Status status, std::string why) {
    return {status, std::move(why), {}, false};
}

inline Answer answered(std::string body = {}) {
    return {Status::Ok, {}, std::move(body), false};
}

/// A member is missing or of the wrong type.
inline Answer malformed(const std::string& member, const std::string& needed) {
    return refusal(Status::Malformed, member + ": " + needed + " is needed");
}

/// The value of a member cannot be taken.
inline Answer refused(const std::string& member, const std::string& why) {
    return refusal(Status::Refused, member + ": " + why);
}

/// Lets the other clients hear what the Get message of this type would answer now.
void tell(UnitState& state, std::string_view type);

/// Looks the message up in the catalogue and lets it answer. `body` is the request's raw body.
Answer answerTo(UnitState& state, std::string_view type, std::string_view body);

// One source per topic.
Answer getKelmName(UnitState& state, const Request& request);
Answer setKelmName(UnitState& state, const Request& request);

Answer getNetworkState(UnitState& state, const Request& request);

Answer getUpgrade(UnitState& state, const Request& request);
Answer getUpdate(UnitState& state, const Request& request);

Answer getContentUpdateState(UnitState& state, const Request& request);
Answer requestContentUpdate(UnitState& state, const Request& request);
/// Goes on with an update from where the state is now, and with no other. To be called after every change of
/// that.
void updateFromHere(UnitState& state);

Answer getMediaList(UnitState& state, const Request& request);

Answer getCaptureDevices(UnitState& state, const Request& request);
Answer setCaptureDevicesMode(UnitState& state, const Request& request);
Answer getCaptureVolume(UnitState& state, const Request& request);
Answer setCaptureVolume(UnitState& state, const Request& request);
Answer getAutomaticVolumeControl(UnitState& state, const Request& request);
Answer setAutomaticVolumeControl(UnitState& state, const Request& request);
Answer getAdaptiveAudioParameters(UnitState& state, const Request& request);
Answer setAdaptiveAudioParameters(UnitState& state, const Request& request);

Answer getExperienceModes(UnitState& state, const Request& request);
Answer setExperienceMode(UnitState& state, const Request& request);
/// What the unit says about the status of a mode change; 0 is "Ok".
std::string messageOfModeStatus(int status);

Answer getSeatStatus(UnitState& state, const Request& request);
Answer setSeatSetting(UnitState& state, const Request& request);
Answer getMotionDelay(UnitState& state, const Request& request);
Answer setMotionDelay(UnitState& state, const Request& request);
Answer getRecognitionTolerance(UnitState& state, const Request& request);
Answer setRecognitionTolerance(UnitState& state, const Request& request);
/// A seat's condition in words.
std::string describe(SeatCondition condition);

Answer getHapticSystemStatus(UnitState& state, const Request& request);
Answer getSoftwareHealthStatus(UnitState& state, const Request& request);
Answer getAdaptiveGamingSelectedProfile(UnitState& state, const Request& request);

Answer getMediaStatus(UnitState& state, const Request& request);
/// Plays the title of the list under this number, which starts again after its end; nothing when the list is
/// empty.
void playTitle(UnitState& state, std::size_t number);
/// Counts the offset from now on. To be called after every change of what plays, and from where.
void playFromHere(UnitState& state);

Answer getWifiList(UnitState& state, const Request& request);
Answer setWifiSetting(UnitState& state, const Request& request);

} // namespace Simulator
