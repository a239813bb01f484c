#pragma once

#include "messaging/senders/MessageSender.h"

#include <QObject>
#include <QVariant>

namespace Velto::Messaging {

/// Asks the connected unit about its network, and changes it.
class ConnectionWizardSender : public QObject, public MessageSender {
    Q_OBJECT

public:
    using MessageSender::MessageSender;

public slots:
    /// Joins a Wi-Fi network; `securityKey` is the pass phrase as typed.
    void triggerWifiChange(QVariant ssid, QVariant securityKey);
    void triggerWifiList();
    void triggerNetworkState();
    /// Makes the unit forget its Wi-Fi network and bring up its own access point.
    void requestHotspotActivation();
};

} // namespace Velto::Messaging
