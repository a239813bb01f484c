#pragma once

#include "messaging/records/DetailedStatusInfo.h"

#include <Velto/Messaging/IMessage.h>

#include <QObject>

#include <memory>

namespace Velto::Messaging {

class Messenger;

/// Asks for and reads the state of all modules of a unit. Runs, and emits, on the messenger's thread.
class GetDetailedStatusNotificationHandler
    : public QObject,
      public IResponseHandler,
      public std::enable_shared_from_this<GetDetailedStatusNotificationHandler> {
    Q_OBJECT

public:
    GetDetailedStatusNotificationHandler();

    /// Binds this handler to its messages. Once.
    void registerWith(Messenger& messenger);

    /// Asks the connected unit.
    void sendRequest(Messenger& messenger) const;

    void handleResponse(std::shared_ptr<const IResponse> response) override;

signals:
    /// None for a body that holds nothing.
    void detailedStatusInfoChanged(QSharedPointer<orvex::DetailedStatusInfo> detailedStatusInfo);

private:
    std::shared_ptr<IMessage> m_request;
};

} // namespace Velto::Messaging
