#pragma once

#include <Velto/Messaging/IMessage.h>

#include <QVariant>

#include <boost/signals2/signal.hpp>

namespace Velto::Messaging {

/// Reads the unit's name. Calls `valueReceived` on the messenger's thread.
class GetKelmNameNotificationHandler : public IResponseHandler {
public:
    /// ("GetKelmName", name), or ("SetKelmName", empty) when the unit acknowledges a new name.
    boost::signals2::signal<void(QVariant key, QVariant value)> valueReceived;

    void handleResponse(std::shared_ptr<const IResponse> response) override;
};

} // namespace Velto::Messaging
