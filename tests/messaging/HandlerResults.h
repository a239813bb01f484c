#pragma once

#include "messaging/handlers/ValueHandler.h"
#include "tests/messaging/Responses.h"

#include <QSharedPointer>
#include <QSignalSpy>
#include <QVariantMap>

#include <gtest/gtest.h>

#include <string>

namespace orvex::Test {

/// What a handler reports for this body, by name.
inline QVariantMap values(Velto::Messaging::ValueHandler& handler, const std::string& type,
                          const std::string& body) {
    QVariantMap reported;
    const boost::signals2::scoped_connection connection = handler.valueReceived.connect(
        [&](const QVariant& key, const QVariant& value) { reported.insert(key.toString(), value); });
    handler.handleResponse(response(type, body));
    return reported;
}

/// The argument in that position that a handler's signal carries for this body.
template <class Handler, class Signal>
QVariant signalledValue(Handler& handler, Signal signal, const std::string& type, const std::string& body,
                        int position = 0) {
    QSignalSpy spy(&handler, signal);
    handler.handleResponse(response(type, body));
    EXPECT_EQ(spy.size(), 1) << body;
    return spy.isEmpty() ? QVariant() : spy.first().value(position);
}

/// The record that a handler's signal carries for this body.
template <class Handler, class Record>
QSharedPointer<Record> record(Handler& handler, void (Handler::*signal)(QSharedPointer<Record>),
                              const std::string& type, const std::string& body) {
    QSharedPointer<Record> received;
    int count = 0;
    const auto connection =
        QObject::connect(&handler, signal, &handler, [&](const QSharedPointer<Record>& emitted) {
            received = emitted;
            ++count;
        });
    handler.handleResponse(response(type, body));
    QObject::disconnect(connection);
    EXPECT_EQ(count, 1) << body;
    return received;
}

/// Objects inside one another, that many.
inline std::string nested(int depth) {
    std::string body;
    for (int level = 1; level < depth; ++level) {
        body += "{\"x\":";
    }
    return body + "{}" + std::string(static_cast<std::size_t>(depth - 1), '}');
}

} // namespace orvex::Test
