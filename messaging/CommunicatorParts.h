#pragma once

#include "messaging/Communicator.h"
#include "messaging/handlers/GetContentUpdateStateHandler.h"
#include "messaging/handlers/GetKELMNetworkStateHandler.h"
#include "messaging/handlers/GetKelmNameNotificationHandler.h"
#include "messaging/handlers/GetUpgradeAndUpdateNotificationHandler.h"
#include "messaging/senders/ConnectionWizardSender.h"
#include "messaging/senders/SetKelmNameNotificationSender.h"
#include "messaging/senders/SetRequestContentUpdateSender.h"

#include <memory>

namespace orvex {

/// Everything the `Communicator` says and hears by: one object for each sender and handler, and the tables
/// that tell which of them serves which field, request and key. Made once, never changed.
struct Communicator::Parts {
    explicit Parts(Velto::Messaging::Messenger& messenger);

    /// Directs every handler's results to the slots of `communicator`, on the thread that they come on.
    void connectTo(Communicator& communicator);

    void registerWith(Velto::Messaging::Messenger& messenger);

    /// Sends the set action of a request; one of a reserved type sends nothing.
    void perform(const DeviceUpdateRequest& request, const DeviceInfo& unit);

    /// Sends the Get messages of these fields, each once, in the order of the table.
    void requestFields(std::uint32_t fields);

    /// Stores the value that is reported under this name; none for a name nobody knows.
    using Update = void (*)(DeviceInfo& unit, const QVariant& value);
    static Update updateFor(const QString& key);

    Velto::Messaging::Messenger& messenger;

    std::shared_ptr<Velto::Messaging::GetKelmNameNotificationHandler> name;
    std::shared_ptr<Velto::Messaging::GetUpgradeAndUpdateNotificationHandler> upgradeAndUpdate;
    std::shared_ptr<Velto::Messaging::GetKELMNetworkStateHandler> networkState;
    std::shared_ptr<Velto::Messaging::GetContentUpdateStateHandler> contentUpdateState;

    std::shared_ptr<Velto::Messaging::ConnectionWizardSender> connectionWizard;
    std::shared_ptr<Velto::Messaging::SetKelmNameNotificationSender> setName;
    std::shared_ptr<Velto::Messaging::SetRequestContentUpdateSender> requestContentUpdate;

    std::shared_ptr<Velto::Messaging::IMessage> getName;
    std::shared_ptr<Velto::Messaging::IMessage> getUpgrade;
    std::shared_ptr<Velto::Messaging::IMessage> getUpdate;
};

} // namespace orvex
