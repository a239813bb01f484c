#pragma once

#include "messaging/senders/MessageSender.h"

#include <QObject>

namespace Velto::Messaging {

/// Sets by how many ms the motion trails the audio.
class SetMotionDelayNotificationSender : public QObject, public MessageSender {
    Q_OBJECT

public:
    using MessageSender::MessageSender;

public slots:
    void triggerSendMotionDelay(int motionDelay);
};

} // namespace Velto::Messaging
