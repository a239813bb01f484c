#include "device/states/State.h"

#include "device/DiscoveryQueue.h"
#include "messaging/Communicator.h"

#include <orvex/Messaging/Discoverer.h>

namespace orvex {

bool DeviceInfoManager::State::isCommunicatorIdle() const {
    return m_manager.m_communicator->isIdle();
}

void DeviceInfoManager::State::requestFields(const std::shared_ptr<DeviceInfo>& unit, std::uint32_t fields,
                                             std::uint32_t timeout) {
    m_manager.m_communicator->startRequest(unit, fields, nullptr, timeout);
}

void DeviceInfoManager::State::restartDiscovery() {
    m_manager.m_discovered->take();
    m_manager.m_discoverer->clearDiscovered();
}

} // namespace orvex
