#pragma once

#include "messaging/handlers/KeptState.h"
#include "messaging/records/CaptureVolumeState.h"

#include <Velto/Messaging/IMessage.h>

#include <QObject>
#include <QVariant>

namespace Velto::Messaging {

/// Reads the level of the audio source and its bounds, and keeps them. Runs, and emits, on the messenger's
/// thread.
class GetCaptureVolumeHandler : public QObject, public IResponseHandler {
    Q_OBJECT

public:
    void handleResponse(std::shared_ptr<const IResponse> response) override;

    /// The level of the last message. Any thread.
    orvex::CaptureVolumeState volume() const { return m_volume.snapshot(); }

signals:
    /// ("getCaptureVolume", nothing)
    void captureVolumeResponseReceived(QVariant key, QVariant value);

private:
    KeptState<orvex::CaptureVolumeState> m_volume;
};

} // namespace Velto::Messaging
