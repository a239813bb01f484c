#pragma once

#include "messaging/handlers/KeptState.h"
#include "messaging/records/CaptureDevice.h"

#include <Velto/Messaging/IMessage.h>

#include <QObject>
#include <QVariant>

namespace Velto::Messaging {

/// Reads the audio sources of a unit and keeps them. Runs, and emits, on the messenger's thread.
class GetCaptureDevicesHandler : public QObject, public IResponseHandler {
    Q_OBJECT

public:
    void handleResponse(std::shared_ptr<const IResponse> response) override;

    /// The sources of the last message. Any thread.
    orvex::CaptureDeviceList devices() const { return m_devices.snapshot(); }

signals:
    /// ("getCaptureDevices", nothing)
    void captureDevicesResponseReceived(QVariant key, QVariant value);

private:
    KeptState<orvex::CaptureDeviceList> m_devices;
};

} // namespace Velto::Messaging
