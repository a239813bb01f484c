#pragma once

#include "messaging/records/NetworkStatus.h"

#include <Velto/Messaging/IMessage.h>

#include <QObject>

namespace Velto::Messaging {

/// Reads how the unit is connected. Runs, and emits, on the messenger's thread.
class GetKELMNetworkStateHandler : public QObject, public IResponseHandler {
    Q_OBJECT

public:
    void handleResponse(std::shared_ptr<const IResponse> response) override;

signals:
    /// None for a body that holds nothing.
    void networkStatusChanged(QSharedPointer<orvex::NetworkStatus> status);
};

} // namespace Velto::Messaging
