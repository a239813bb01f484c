#include "simulator/messages/Body.h"
#include "simulator/messages/Messages.h"
#include "simulator/messages/Titles.h"

#include <algorithm>
#include <cmath>

namespace Simulator {

namespace {

using Seconds = std::chrono::duration<double>;

/// Times beyond this would not fit into a clock's own unit.
constexpr Seconds longestWait{std::chrono::hours(24) * 365};

bool isPlaying(const PlaybackState& playback) {
    return playback.audioState == "ident_success" && playback.duration > 0;
}

int offsetNow(const PlaybackState& playback) {
    if (!isPlaying(playback))
        return playback.offset;
    const Seconds played = std::chrono::steady_clock::now() - playback.since;
    const double offset = playback.offset + std::floor(played.count() * playback.speed);
    return static_cast<int>(std::min<double>(offset, playback.duration));
}

/// Plays the next title of the list once this one is over.
void waitForEnd(UnitState& state) {
    PlaybackState& playback = state.playback;
    const int number = ++playback.run;
    if (!isPlaying(playback) || playback.speed <= 0)
        return;
    const Seconds left{(playback.duration - playback.offset) / playback.speed};
    const auto wait = std::chrono::ceil<std::chrono::milliseconds>(std::min(left, longestWait));
    state.steps.push_back({wait, [number](UnitState& later) {
                               if (later.playback.run != number)
                                   return; // something else plays by now
                               playTitle(later, later.playback.number + 1);
                               tell(later, "GetMediaStatus");
                           }});
}

} // namespace

void playTitle(UnitState& state, std::size_t number) {
    PlaybackState& playback = state.playback;
    if (state.media.count == 0) {
        playback.audioState = "listening";
        playback.motionCode = "listening";
        playback.title.clear();
        playback.duration = 0;
    } else {
        playback.number = number % state.media.count;
        playback.audioState = "ident_success";
        playback.motionCode = "available";
        playback.title = titleOf(playback.number);
        playback.duration = playingTimeOf(playback.number);
    }
    playback.offset = 0;
    playFromHere(state);
}

void playFromHere(UnitState& state) {
    state.playback.since = std::chrono::steady_clock::now();
    waitForEnd(state);
}

Answer getMediaStatus(UnitState& state, const Request& /*request*/) {
    const PlaybackState& playback = state.playback;
    return answered(Body()
                        .object("mediaStatus")
                        .text("mediaIdState", playback.audioState)
                        .text("motionCodeState", playback.motionCode)
                        .text("mediaTitle", playback.title)
                        .integer("mediaOffset", offsetNow(playback))
                        .integer("mediaDuration", playback.duration)
                        .endObject()
                        .finish());
}

} // namespace Simulator
