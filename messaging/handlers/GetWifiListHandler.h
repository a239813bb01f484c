#pragma once

#include <Velto/Messaging/IMessage.h>

#include <QObject>
#include <QVariant>

namespace Velto::Messaging {

/// Reads the Wi-Fi networks that a unit sees. Runs, and emits, on the messenger's thread.
class GetWifiListHandler : public QObject, public IResponseHandler {
    Q_OBJECT

public:
    void handleResponse(std::shared_ptr<const IResponse> response) override;

signals:
    /// ("wifiNetworkList", the names in the unit's order as a string list)
    void wifiNetworkListChangedSignal(QVariant key, QVariant wifiNetworkList);
    /// ("wifiNetworkStatus", a map from each name to whether the unit is joined to it)
    void wifiNetworkStatusListChangedSignal(QVariant key, QVariant wifiNetworkStatusList);
};

} // namespace Velto::Messaging
