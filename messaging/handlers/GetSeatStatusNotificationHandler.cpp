#include "messaging/handlers/GetSeatStatusNotificationHandler.h"

#include "messaging/handlers/BodyReader.h"
#include "messaging/senders/MessageSender.h"

#include <Velto/Messaging/BodyJSONParser.h>
#include <Velto/Messaging/Messenger.h>

#include <algorithm>
#include <cmath>

namespace Velto::Messaging {

using orvex::SeatInfo;
using orvex::SeatStatusList;

namespace {

constexpr auto messageType = "GetSeatStatus";

/// To the nearest integer, halves upward (also below zero).
double rounded(double value) {
    return std::floor(value + 0.5);
}

template <double SeatInfo::*Level>
void readLevel(SeatInfo& seat, const Body::Value& value) {
    if (value.IsNumber()) {
        seat.*Level = rounded(value.GetDouble());
    }
}

void readIndex(SeatInfo& seat, const Body::Value& value) {
    if (value.IsInt()) {
        seat.index = value.GetInt();
        seat.hasIndex = true;
    }
}

constexpr Body::Member<SeatInfo> stateMembers[] = {
    {"value", &Body::field<&SeatInfo::statusCode>},
    {"description", &Body::field<&SeatInfo::statusText>},
};

void readState(SeatInfo& seat, const Body::Value& value) {
    if (value.IsObject()) {
        Body::readMembers(value, seat, stateMembers);
    }
}

constexpr Body::Member<SeatInfo> seatMembers[] = {
    {"index", &readIndex},
    {"muted", &Body::field<&SeatInfo::muted>},
    {"chained", &Body::field<&SeatInfo::chained>},
    {"motion", &readLevel<&SeatInfo::motion>},
    {"vibration", &readLevel<&SeatInfo::vibration>},
    {"overallState", &readState},
};

void readSeats(SeatStatusList& seats, const Body::Value& value) {
    Body::readObjects(value, seats, "seats", [&seats](const Body::Value& element) {
        auto seat = std::make_shared<SeatInfo>();
        Body::readMembers(element, *seat, seatMembers);
        seats.push_back(std::move(seat));
    });
}

constexpr Body::Member<SeatStatusList> bodyMembers[] = {{"seat", &readSeats}};

} // namespace

GetSeatStatusNotificationHandler::GetSeatStatusNotificationHandler()
    : m_request(makeGetMessage(messageType)) {}

void GetSeatStatusNotificationHandler::sendRequest(Messenger& messenger) const {
    messenger.send(m_request);
}

void GetSeatStatusNotificationHandler::handleResponse(std::shared_ptr<const IResponse> response) {
    if (response->getMessageType() != messageType) {
        return;
    }
    SeatStatusList seats;
    Body::readMembers(*BodyJSONParser::parse(response), seats, bodyMembers);
    std::stable_sort(seats.begin(), seats.end(),
                     [](const auto& a, const auto& b) { return a->index < b->index; });
    m_seats.replace(std::move(seats));
    valueReceived(QString::fromLatin1(messageType), QVariant());
}

} // namespace Velto::Messaging
