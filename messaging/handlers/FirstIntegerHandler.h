#pragma once

#include "messaging/handlers/ValueHandler.h"

namespace Velto::Messaging {

/// Reads a body that holds one integer: that of its first member when it has the right name, else 0. The
/// member's name is the key it is reported under.
class FirstIntegerHandler : public ValueHandler {
public:
    void handleResponse(std::shared_ptr<const IResponse> response) override;

protected:
    FirstIntegerHandler(const char* messageType, const char* member)
        : m_messageType(messageType)
        , m_member(member) {}

private:
    const char* m_messageType;
    const char* m_member;
};

/// In ms.
class GetMotionDelayNotificationHandler : public FirstIntegerHandler {
public:
    GetMotionDelayNotificationHandler()
        : FirstIntegerHandler("GetMotionDelay", "motionDelay") {}
};

/// In s.
class GetRecognitionToleranceNotificationHandler : public FirstIntegerHandler {
public:
    GetRecognitionToleranceNotificationHandler()
        : FirstIntegerHandler("GetRecognitionTolerance", "recognitionTolerance") {}
};

} // namespace Velto::Messaging
