#pragma once

#include "messaging/senders/MessageSender.h"

#include <QObject>

namespace Velto::Messaging {

/// Sets for how many s the unit plays on without recognising the audio.
class SetRecognitionToleranceNotificationSender : public QObject, public MessageSender {
    Q_OBJECT

public:
    using MessageSender::MessageSender;

public slots:
    void triggerSendRecognitionTolerance(int recognitionTolerance);
};

} // namespace Velto::Messaging
