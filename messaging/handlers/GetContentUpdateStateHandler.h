#pragma once

#include "messaging/records/ContentUpdateState.h"

#include <Velto/Messaging/IMessage.h>

#include <QObject>

#include <memory>

namespace Velto::Messaging {

class Messenger;

/// Asks for and reads how far the renewal of the unit's library is. Runs, and emits, on the messenger's
/// thread.
class GetContentUpdateStateHandler : public QObject,
                                     public IResponseHandler,
                                     public std::enable_shared_from_this<GetContentUpdateStateHandler> {
    Q_OBJECT

public:
    GetContentUpdateStateHandler();

    /// Binds this handler to its messages. Once.
    void registerWith(Messenger& messenger);

    /// Asks the connected unit.
    void sendRequest(Messenger& messenger) const;

    void handleResponse(std::shared_ptr<const IResponse> response) override;

signals:
    /// None for a body that holds nothing.
    void contentUpdateStateChanged(QSharedPointer<orvex::ContentUpdateState> contentUpdateState);

private:
    std::shared_ptr<IMessage> m_request;
};

} // namespace Velto::Messaging
