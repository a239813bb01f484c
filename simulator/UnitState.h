#pragma once

#include "simulator/UnitOptions.h"

#include <chrono>
#include <cstddef>
#include <string>
#include <vector>

namespace Simulator {

struct UnitState;

/// A change of state that comes by itself some time after another.
struct Step {
    std::chrono::milliseconds delay{0};
    void (*change)(UnitState&) = nullptr;
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
    std::string ssid; ///< the network the unit is joined to
    std::vector<NetworkInterface> interfaces;
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
};

struct MediaState {
    std::size_t count = 0;
};

/// What a unit knows and remembers. Answers read and change it; what is to follow by itself goes into
/// `steps`, what other clients should hear of into `notifications`, and the unit takes both out after every
/// change.
struct UnitState {
    std::string name;
    NetworkState network;
    SoftwareState software;
    ContentState content;
    MediaState media;

    std::vector<Step> steps;
    std::vector<Notification> notifications;
};

/// The state of a unit that was just switched on.
UnitState initialState(const UnitOptions& options);

constexpr std::size_t maximumNameSize = 128; ///< bytes of UTF-8

/// Why a unit refuses this name; empty when it does not.
std::string complaintAboutName(const std::string& name);

} // namespace Simulator
