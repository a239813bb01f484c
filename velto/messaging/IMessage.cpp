#include "core/Areas.h"

#include <Velto/Messaging/IMessage.h>

#include <spdlog/logger.h>

#include <utility>

namespace Velto::Messaging {

IMessage::IMessage(std::string messageType, std::uint32_t number, std::string text,
                   std::shared_ptr<const ManagedBuffer> body, GenericMessageType genericType)
    : m_messageType(std::move(messageType))
    , m_number(number)
    , m_text(std::move(text))
    , m_body(std::move(body))
    , m_genericType(genericType) {}

IMessage::~IMessage() = default;

std::string_view IMessage::getBody() const {
    return m_body ? m_body->GetBuffer().View() : std::string_view();
}

IResponse::IResponse(std::string messageType, std::uint32_t number, std::string text,
                     std::shared_ptr<const ManagedBuffer> body, GenericMessageType genericType,
                     StatusType status)
    : IMessage(std::move(messageType), number, std::move(text), std::move(body), genericType)
    , m_status(status) {}

void IMessengerObserver::handleErrorResponse(std::shared_ptr<const IResponse> response) {
    // Neither its text nor its body: they may repeat what was sent, pass phrases included.
    if (response)
        detail::areaLogger(detail::Area::InterprocMessaging)
            ->warn("The unit answered {} with error {}", response->getMessageType(),
                   static_cast<int>(response->getStatusType()));
}

} // namespace Velto::Messaging
