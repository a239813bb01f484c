#pragma once

#include "messaging/senders/MessageSender.h"

#include <QObject>

namespace Velto::Messaging {

/// Asks the connected unit to renew its library of coded titles.
class SetRequestContentUpdateSender : public QObject, public MessageSender {
    Q_OBJECT

public:
    using MessageSender::MessageSender;

public slots:
    void triggerRequestContentUpdate();
};

} // namespace Velto::Messaging
