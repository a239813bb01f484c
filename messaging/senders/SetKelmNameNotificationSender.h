#pragma once

#include "messaging/senders/MessageSender.h"

#include <QObject>

namespace Velto::Messaging {

/// Renames the connected unit.
class SetKelmNameNotificationSender : public QObject, public MessageSender {
    Q_OBJECT

public:
    using MessageSender::MessageSender;

public slots:
    void triggerSendKelmName(QString kelmName);
};

} // namespace Velto::Messaging
