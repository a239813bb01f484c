#pragma once

#include "messaging/handlers/ValueHandler.h"

namespace Velto::Messaging {

/// Reads the unit's name: reports ("GetKelmName", name), or ("SetKelmName", empty) when the unit acknowledges
/// a new one.
class GetKelmNameNotificationHandler : public ValueHandler {
public:
    void handleResponse(std::shared_ptr<const IResponse> response) override;
};

} // namespace Velto::Messaging
