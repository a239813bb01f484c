#include "messaging/senders/SetSeatSettingSender.h"

#include "device/ProgramLog.h"

#include <cmath>

namespace Velto::Messaging {

void SetSeatSettingSender::triggerSendSeatSetting(const orvex::SeatInfo& seat) {
    if (!std::isfinite(seat.motion) || !std::isfinite(seat.vibration)) {
        orvex::programLog()->error("SetSeatSetting: a level of seat {} is no number, nothing is sent",
                                   seat.index);
        return;
    }
    sendObject("SetSeatSetting", [&seat](Writer& writer) {
        writer.Key("seat");
        writer.StartObject();
        writer.Key("index");
        writer.Int(seat.index);
        writer.Key("muted");
        writer.Bool(seat.muted);
        writer.Key("chained");
        writer.Bool(seat.chained);
        writer.Key("motion");
        writer.Double(seat.motion);
        writer.Key("vibration");
        writer.Double(seat.vibration);
        writer.EndObject();
    });
}

} // namespace Velto::Messaging
