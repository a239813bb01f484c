#pragma once

namespace orvex {

/// The level of the audio source, in dB; `experienceModeId` goes back to the unit with a new volume.
struct CaptureVolumeState {
    int experienceModeId = 0;
    int volume = 0;
    int step = 1;
    int min = -20;
    int max = 20;

    bool operator==(const CaptureVolumeState& other) const {
        return experienceModeId == other.experienceModeId && volume == other.volume && step == other.step &&
               min == other.min && max == other.max;
    }
};

} // namespace orvex
