#pragma once

#include "messaging/records/MediaList.h"

#include <Velto/Messaging/IMessage.h>

#include <QObject>

#include <memory>

namespace Velto::Messaging {

class Messenger;

/// Asks for and reads the coded titles of a unit's library. Runs, and emits, on the messenger's thread.
class GetMediaListNotificationHandler : public QObject,
                                        public IResponseHandler,
                                        public std::enable_shared_from_this<GetMediaListNotificationHandler> {
    Q_OBJECT

public:
    GetMediaListNotificationHandler();

    /// Binds this handler to its messages. Once.
    void registerWith(Messenger& messenger);

    /// Asks the connected unit.
    void sendRequest(Messenger& messenger) const;

    void handleResponse(std::shared_ptr<const IResponse> response) override;

signals:
    /// None for a body whose first member is no media list.
    void mediaListChanged(QSharedPointer<orvex::MediaList> mediaList);

private:
    std::shared_ptr<IMessage> m_request;
};

} // namespace Velto::Messaging
