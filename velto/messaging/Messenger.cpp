#include "messaging/MessengerCore.h"

#include <Velto/Messaging/Messenger.h>

#include <algorithm>
#include <utility>

namespace Velto::Messaging {

namespace {

std::chrono::milliseconds boundOf(std::int32_t timeout) {
    return std::chrono::milliseconds(std::max(timeout, 0));
}

} // namespace

Messenger::Messenger(const std::vector<std::shared_ptr<DiscoveryStrategyInfo>>& strategies,
                     std::string serviceName, ITransport::TransportType transportType)
    : m_core(std::make_shared<Core>(*this, std::move(serviceName), transportType)) {
    m_core->addStrategies(strategies);
}

Messenger::~Messenger() {
    m_core->end();
}

bool Messenger::chooseUnit(const std::string& address, const std::string& name, std::uint16_t port,
                           bool encrypted, bool connectNow, std::int32_t timeout) {
    if (address.empty() || port == 0)
        return false;
    m_core->choose({address, name, port, encrypted}, connectNow, boundOf(timeout));
    return true;
}

CommunicationResult Messenger::connect(int timeout) {
    m_core->connect(boundOf(timeout));
    return CommunicationResult::Success;
}

void Messenger::disconnect() {
    m_core->disconnect();
}

CommunicationResult Messenger::send(std::shared_ptr<IMessage> message) {
    return message ? m_core->send(*message) : CommunicationResult::NotConnected;
}

void Messenger::registerResponse(const std::string& messageType, std::uint32_t,
                                 std::shared_ptr<IResponseHandler> handler) {
    m_core->registerResponse(messageType, std::move(handler));
}

std::shared_ptr<orvex::Messaging::Discoverer> Messenger::getDiscoverer() const {
    return m_core->discoverer();
}

} // namespace Velto::Messaging
