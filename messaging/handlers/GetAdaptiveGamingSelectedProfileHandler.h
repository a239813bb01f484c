#pragma once

#include "messaging/records/AdaptiveGamingSelectedProfile.h"

#include <Velto/Messaging/IMessage.h>

#include <QObject>

namespace Velto::Messaging {

/// Reads the profile that adaptive gaming plays by. Runs, and emits, on the messenger's thread.
class GetAdaptiveGamingSelectedProfileHandler : public QObject, public IResponseHandler {
    Q_OBJECT

public:
    void handleResponse(std::shared_ptr<const IResponse> response) override;

signals:
    /// None for a body that holds nothing; an empty profile when none is selected.
    void
    adaptiveGamingSelectedProfileReceivedSignal(QSharedPointer<orvex::AdaptiveGamingSelectedProfile> profile);
};

} // namespace Velto::Messaging
