#pragma once

#include "messaging/records/SoftwareHealthStatus.h"

#include <Velto/Messaging/IMessage.h>

#include <QObject>

namespace Velto::Messaging {

/// Reads whether the programs around the unit are well. Runs, and emits, on the messenger's thread.
class GetSoftwareHealthStatusHandler : public QObject, public IResponseHandler {
    Q_OBJECT

public:
    void handleResponse(std::shared_ptr<const IResponse> response) override;

signals:
    /// None for a body that holds nothing.
    void softwareHealthStatusChanged(QSharedPointer<orvex::SoftwareHealthStatus> status);
};

} // namespace Velto::Messaging
