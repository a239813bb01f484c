#pragma once

#include <Velto/Messaging/IMessage.h>

#include <QDateTime>
#include <QObject>
#include <QString>

namespace Velto::Messaging {

/// Reads the unit's software version ("GetUpgrade") and when its library was renewed ("GetUpdate"). Runs, and
/// emits, on the messenger's thread.
class GetUpgradeAndUpdateNotificationHandler : public QObject, public IResponseHandler {
    Q_OBJECT

public:
    void handleResponse(std::shared_ptr<const IResponse> response) override;

signals:
    /// 0 scheduled, 1 in progress, 2 cancelled, 3 failed, 4 success, -1 unknown; the version of that upgrade.
    void upgradeStatusChanged(int status, QString version);
    /// 0 in progress, 1 cancelled, 2 failed, 3 success, -1 unknown: an update is never scheduled.
    void updateStatusChanged(int status);
    void softwareVersionReceived(QString version);
    /// Invalid when the unit tells none.
    void lastUpdateTimestampReceived(QDateTime lastUpdateTimestamp);

private:
    void handleUpdate(const std::shared_ptr<const IResponse>& response);
    void handleUpgrade(const std::shared_ptr<const IResponse>& response);
};

} // namespace Velto::Messaging
