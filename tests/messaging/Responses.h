#pragma once

#include <Velto/Messaging/IMessage.h>

#include <memory>
#include <string>
#include <string_view>

namespace orvex::Test {

/// What the messenger hands a handler when a unit has answered.
inline std::shared_ptr<const Velto::Messaging::IResponse> response(const std::string& type,
                                                                   std::string_view body) {
    using namespace Velto::Messaging;
    auto buffer = std::make_shared<Velto::ManagedBuffer>();
    buffer->GetBuffer().AppendDataPtr(body.data(), body.size());
    return std::make_shared<IResponse>(type, 1, "", std::move(buffer), IMessage::GenericMessageType::Response,
                                       IResponse::StatusType::Ok);
}

} // namespace orvex::Test
