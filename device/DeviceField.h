#pragma once

#include <bitset>
#include <cstdint>
#include <initializer_list>

namespace orvex {

/// The fields of a unit's record. The numbers are the bits of a request's mask and of the record's three
/// sets; 4, 17 and 18 are reserved and never set.
namespace DeviceField {

enum Number : int {
    Online = 0,
    Contacted = 1,
    Name = 2,
    SoftwareVersion = 3,
    LibraryUpdateTime = 5,
    ContentUpdate = 6,
    Network = 7,
    AdaptiveGamingProfile = 8,
    SoftwareHealth = 9,
    WiFiPoints = 10,
    WiFiSetupResult = 11,
    CaptureDevices = 12,
    AdaptiveAudioParameters = 13,
    AutomaticVolumeControl = 14,
    CaptureVolume = 15,
    ExperienceModes = 16,
    MotionCodeStatus = 19,
    AudioSourceStatus = 20,
    MediaTitle = 21,
    MediaProgress = 22,
    MotionDelay = 23,
    RecognitionTolerance = 24,
    Seats = 25,
    MediaList = 26,
    DetailedStatus = 27,
};

constexpr int count = 28;

using Set = std::bitset<count>;

/// The bits of these fields.
constexpr std::uint32_t mask(std::initializer_list<int> fields) {
    std::uint32_t bits = 0;
    for (const int field : fields) {
        bits |= std::uint32_t{1} << static_cast<unsigned>(field);
    }
    return bits;
}

constexpr std::uint32_t all = (std::uint32_t{1} << count) - 1;

/// What the page of one unit shows.
constexpr std::uint32_t details =
    mask({SoftwareVersion, LibraryUpdateTime, ContentUpdate, Network, AdaptiveGamingProfile, SoftwareHealth,
          CaptureDevices, AdaptiveAudioParameters, AutomaticVolumeControl, CaptureVolume, ExperienceModes,
          MotionCodeStatus, AudioSourceStatus, MediaTitle, MediaProgress, MotionDelay, RecognitionTolerance,
          Seats});

} // namespace DeviceField

} // namespace orvex
