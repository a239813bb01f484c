#pragma once

#include <Velto/Messaging/IMessage.h>

#include <QObject>
#include <QVariant>

namespace Velto::Messaging {

/// Reads how the unit mixes the audio it analyses. Runs, and emits, on the messenger's thread.
class GetAdaptiveAudioParametersHandler : public QObject, public IResponseHandler {
    Q_OBJECT

public:
    void handleResponse(std::shared_ptr<const IResponse> response) override;

signals:
    /// ("getAdaptiveAudioParameters", the pre-mix type as an int)
    void adaptiveAudioParametersResponseReceived(QVariant key, QVariant value);
};

} // namespace Velto::Messaging
