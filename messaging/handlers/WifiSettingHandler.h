#pragma once

#include <Velto/Messaging/IMessage.h>

#include <QObject>
#include <QVariant>

namespace Velto::Messaging {

/// Reads how a change of the unit's Wi-Fi setting ended. Runs, and emits, on the messenger's thread.
class WifiSettingHandler : public QObject, public IResponseHandler {
    Q_OBJECT

public:
    void handleResponse(std::shared_ptr<const IResponse> response) override;

signals:
    /// ("wifiSettings", a bool)
    void wifiSettingResponseReceived(QVariant key, QVariant result);
};

} // namespace Velto::Messaging
