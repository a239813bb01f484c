#include "device/states/State.h"

#include "device/DiscoveryQueue.h"
#include "device/PendingSettings.h"
#include "messaging/Communicator.h"

#include <orvex/Messaging/Discoverer.h>

namespace orvex {

bool DeviceInfoManager::State::isCommunicatorIdle() const {
    return m_manager.m_communicator->isIdle();
}

void DeviceInfoManager::State::requestFields(const std::shared_ptr<DeviceInfo>& unit, std::uint32_t fields,
                                             std::uint32_t timeout) {
    if (unit) {
        m_manager.startRequest(unit, fields, nullptr, timeout);
    }
}

bool DeviceInfoManager::State::areSettingsPending() const {
    return !m_manager.m_settings->isEmpty() || m_manager.m_settings->isInFlight();
}

void DeviceInfoManager::State::restartDiscovery() {
    m_manager.m_discovered->take();
    m_manager.m_discoverer->clearDiscovered();
}

} // namespace orvex
