#pragma once

#include "simulator/UnitOptions.h"

#include <chrono>
#include <cstddef>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace Simulator {

struct UnitState;

/// A change of state that comes by itself some time after another.
struct Step {
    std::chrono::milliseconds delay{0};
    std::function<void(UnitState&)> change;
};

/// A notification nobody asked for.
struct Notification {
    std::string type;
    std::string body;
};

struct NetworkInterface {
    std::string name; ///< "Access Point", "Ethernet" or "Wi-Fi"
    std::string hardwareAddress;
    std::string ip;
    std::string netmask;
    std::string broadcast;
};

struct NetworkState {
    bool online = true;
    bool wifiOnline = true;
    bool hotspotActive = false;
    std::string ssid;      ///< the network the unit is joined to
    std::string address;   ///< where clients find it
    bool reachable = true; ///< false while it is between two networks
    bool moving = false;   ///< a change of network has begun
    std::vector<NetworkInterface> interfaces;
};

struct WifiNetwork {
    std::string ssid;
    std::string key; ///< pass phrase; empty: the network is open
};

/// What goes wrong when the unit changes networks.
enum class JoinFault {
    None,
    LeavesUnanswered, ///< it is gone before it answers
    NeverReturns,
};

struct WifiState {
    std::vector<WifiNetwork> seen;
    std::chrono::milliseconds leaveTime{200}; ///< from the answer to the loss of all connections
    std::chrono::milliseconds joinTime{2000}; ///< how long the unit is away
    JoinFault fault = JoinFault::None;
    std::string joinedAddress;      ///< where clients find it on the network; empty: where it was
    std::string accessPointAddress; ///< the same for its own access point
};

/// Firmware; the words of the statuses are those of the line ("scheduled", "in_progress", "success"…).
struct SoftwareState {
    std::string version = "4.2.1";
    std::string lastVersion = "4.2.1";
    std::string lastStatus = "success";
};

/// Where a content update fails, for those who want to see that.
enum class ContentFailure { None, Checking, ServerNotReady, Downloading, Installing };

struct ContentState {
    int id = 10;      ///< 10 is idle; the others are in the table of ContentMessages.cpp
    int percent = -1; ///< -1: this state has no progress
    std::string code = "0";
    std::string message;
    std::string updatedTimestamp =
        "2025-11-03T08:15:00Z"; ///< of the last update that succeeded, ISO 8601, UTC
    std::string lastStatus = "success";
    ContentFailure failure = ContentFailure::None;
    std::chrono::milliseconds pace{300}; ///< between two steps of an update
    int run = 0; ///< counts the updates, so that a step of one is not taken for another's
};

struct MediaState {
    std::size_t count = 0;
};

/// What is heard and recognised. The words are those of the line.
struct PlaybackState {
    std::string audioState = "listening";
    std::string motionCode = "listening";
    std::string title;
    int offset = 0;   ///< s, at `since`
    int duration = 0; ///< s
    double speed = 1; ///< seconds of the title for each second that goes by; 0: paused
    std::chrono::steady_clock::time_point since{};
    std::size_t number = 0; ///< of the title in the media list
    int run = 0;            ///< counts what was played, so that the end of one is not taken for another's
};

struct CaptureDevice {
    std::string name;
    std::string description;
    std::string identification;
    std::string interfaceName;
    bool loopback = false; ///< the sound that another device plays, rather than what comes in
    bool connected = true;
};

/// Where the unit takes the sound from, and how.
struct AudioState {
    std::vector<CaptureDevice> devices;
    std::string selected;        ///< `identification` of a device; empty for none
    std::string mode = "manual"; ///< "manual" or "automatic": who selects the device
    bool automaticVolume = true;
    int preMixType = 0;         ///< 1: central audio (voice) is ignored
    std::map<int, int> volumes; ///< dB, for each experience mode; 0 where there is none
    int minimumVolume = -20;
    int maximumVolume = 20;
    int volumeStep = 1;

    int volumeIn(int experienceMode) const {
        const auto found = volumes.find(experienceMode);
        return found == volumes.end() ? 0 : found->second;
    }
};

/// What the seats play: 0 coded video, 1 coded gaming, 2 adaptive audio, 3 adaptive gaming.
struct ExperienceState {
    std::vector<int> modes{0, 1, 2, 3};
    int selected = 0;
    std::string state = "On"; ///< or "Transitioning"
    int status = 0;           ///< 0, or what went wrong with the latest change
    std::string message = "Ok";

    std::chrono::milliseconds transition{1500}; ///< how long a change takes
    int failure = 0;                            ///< every change ends with this status; 0: it succeeds
};

/// A seat's overall state; the values are those of the line.
enum class SeatCondition {
    Ok = 0,
    Fault = 10,
    Transition = 20,
    NoPower = 30,         ///< or an actuator is unplugged
    NoCommunication = 40, ///< takes no settings
};

struct SeatState {
    int index = 1; ///< counts from 1
    bool muted = false;
    bool chained = false; ///< motion and vibration are moved together
    double motion = -6;   ///< dB, -20 to 0, as vibration
    double vibration = -6;
    SeatCondition condition = SeatCondition::Ok;
};

/// The controller itself, as its detailed status shows it.
struct HardwareState {
    std::string product;
    std::string model;
    std::string serial;
    double load = 12.5;     ///< per cent
    int temperature = 46;   ///< degrees Celsius; overheated from 85 on
    int supplyVoltage = 24; ///< V
};

/// A piece of the software on the PC that the unit works with. Status: 3 good, 2 in progress, 1 error,
/// 0 stopped.
struct SoftwareEntry {
    std::string name;
    std::string user; ///< whose session it runs in; empty for a service
    int status = 3;
    std::string message = "Running";
    std::string timestamp = "2025-11-03T08:15:00Z"; ///< ISO 8601, UTC: since when
};

struct HealthState {
    int overall = 3; ///< as the status of an entry
    std::string user = "viewer";
    std::vector<SoftwareEntry> entries;
};

/// The adaptive gaming profile that is selected.
struct GamingProfile {
    std::string id = "racing-01";
    std::string name = "Racing";
    int type = 1;
    int version = 3;
};

/// What a unit knows and remembers. Answers read and change it; what is to follow by itself goes into
/// `steps`, what other clients should hear of into `notifications`, and the unit takes both out after every
/// change.
struct UnitState {
    std::string name;
    NetworkState network;
    WifiState wifi;
    SoftwareState software;
    ContentState content;
    MediaState media;
    PlaybackState playback;
    AudioState audio;
    ExperienceState experience;
    std::vector<SeatState> seats;
    HardwareState hardware;
    HealthState health;
    GamingProfile profile;
    int motionDelay = 0;           ///< ms, -1000 to 1000
    int recognitionTolerance = 10; ///< s, 0 to 60

    std::vector<Step> steps;
    std::vector<Notification> notifications;
};

/// The state of a unit that was just switched on.
UnitState initialState(const UnitOptions& options);

/// The unit on the Wi-Fi network, or with its own access point up, reached at this address.
void joinNetwork(NetworkState& network, const std::string& ssid, const std::string& address);
void openAccessPoint(NetworkState& network, const std::string& address);
/// Moves the unit's address to the interface that its flags tell of: the access point's, or Wi-Fi or, without
/// either, Ethernet.
void useInterface(NetworkState& network);

constexpr std::size_t maximumNameSize = 128; ///< bytes of UTF-8

/// Why a unit refuses this name; empty when it does not.
std::string complaintAboutName(const std::string& name);

} // namespace Simulator
