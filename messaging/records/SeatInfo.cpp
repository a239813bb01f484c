#include "messaging/records/SeatInfo.h"

#include <tuple>

namespace orvex {

namespace {

constexpr int statusOk = 0;
constexpr int statusFault = 10;
constexpr int statusTransition = 20;
constexpr int statusNoPower = 30;
constexpr int statusNoCommunication = 40;
constexpr int statusUnknown = -1;

} // namespace

int SeatInfo::statusNumber() const {
    bool isNumber = false;
    const int number = statusCode.toInt(&isNumber, 10);
    if (!isNumber) {
        return statusUnknown;
    }
    switch (number) {
    case statusOk:
    case statusFault:
    case statusTransition:
    case statusNoPower:
    case statusNoCommunication:
        return number;
    default:
        return statusUnknown;
    }
}

QString SeatInfo::displayText() const {
    switch (statusNumber()) {
    case statusOk:
        return tr("System OK");
    case statusFault:
        return tr("Fault in System");
    case statusTransition:
        return tr("System in Transition");
    case statusNoPower:
        return tr("No Power or Actuator Disconnected");
    case statusNoCommunication:
        return tr("No Communication with System");
    default:
        return tr("Status: %1").arg(statusText);
    }
}

int SeatInfo::statusType() const {
    switch (statusNumber()) {
    case statusOk:
        return 3;
    case statusTransition:
        return 2;
    default:
        return 1;
    }
}

bool SeatInfo::operator==(const SeatInfo& other) const {
    const auto members = [](const SeatInfo& s) {
        return std::tie(s.index, s.hasIndex, s.muted, s.chained, s.motion, s.vibration, s.statusCode,
                        s.statusText);
    };
    return members(*this) == members(other);
}

} // namespace orvex
