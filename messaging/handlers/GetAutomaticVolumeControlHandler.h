#pragma once

#include <Velto/Messaging/IMessage.h>

#include <QObject>
#include <QVariant>

namespace Velto::Messaging {

/// Reads whether the unit controls the level of its audio source by itself. Runs, and emits, on the
/// messenger's thread.
class GetAutomaticVolumeControlHandler : public QObject, public IResponseHandler {
    Q_OBJECT

public:
    void handleResponse(std::shared_ptr<const IResponse> response) override;

signals:
    /// ("getAutomaticVolumeControl", a bool)
    void automaticVolumeControlResponseReceived(QVariant key, QVariant value);
};

} // namespace Velto::Messaging
