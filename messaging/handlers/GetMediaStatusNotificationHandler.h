#pragma once

#include <Velto/Messaging/IMessage.h>

#include <QCoreApplication>
#include <QObject>
#include <QVariant>

#include <atomic>

namespace Velto::Messaging {

/// Reads what the unit hears and plays. Runs, and emits, on the messenger's thread. Remembers the last state
/// of the audio capture, so that a source once detected is not lost by a late report of the capture's start.
class GetMediaStatusNotificationHandler : public QObject, public IResponseHandler {
    Q_OBJECT

public:
    void handleResponse(std::shared_ptr<const IResponse> response) override;

    /// Forgets what was heard before: another unit is connected. Any thread.
    void forgetAudioState() { m_audioCode = 0; }

signals:
    // The types are those of `ServiceStatus`; positions are in seconds, -1 for none.
    void updateSourceDetectedStatusLabelSignal(int statusType, QString text);
    void updateMotionCodeStatusLabelSignal(int statusType, QString text);
    void updateMediaInfoTitleLabelSignal(QVariant key, QVariant mediaTitle);
    void updateMediaInfoProgressBarSignal(int offset, int duration);

private:
    std::atomic<int> m_audioCode{0};
};

} // namespace Velto::Messaging
