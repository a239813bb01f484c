#include "device/DeviceInfoManager.h"

#include "device/DeviceInfo.h"
#include "device/DiscoveryQueue.h"
#include "device/ProgramLog.h"
#include "device/states/IdleState.h"
#include "device/states/UpdateDeviceListState.h"
#include "messaging/Communicator.h"

#include <orvex/Messaging/Discoverer.h>

#include <QTimerEvent>

#include <algorithm>
#include <exception>
#include <mutex>
#include <utility>

namespace orvex {

namespace {

constexpr int tickInterval = 800; // ms
constexpr int failuresToOffline = 2;

} // namespace

struct DeviceInfoManager::States {
    explicit States(DeviceInfoManager& manager)
        : updateDeviceList(manager)
        , idle(manager) {}

    UpdateDeviceListState updateDeviceList;
    IdleState idle;
};

DeviceInfoManager::DeviceInfoManager()
    : m_discovered(std::make_shared<DiscoveryQueue>())
    , m_states(std::make_unique<States>(*this))
    , m_state(&m_states->updateDeviceList) {}

DeviceInfoManager::~DeviceInfoManager() = default;

void DeviceInfoManager::setCommunicator(std::shared_ptr<Communicator> communicator) {
    m_communicator = std::move(communicator);
    connect(m_communicator.get(), &Communicator::requestComplete, this,
            &DeviceInfoManager::onRequestComplete);
    m_discoverer = m_communicator->discoverer();
    m_discoverer->AddObserver(m_discovered);
    startTimer(tickInterval);
}

int DeviceInfoManager::deviceCount() const {
    const std::shared_lock lock(m_lock);
    return static_cast<int>(m_devices.size());
}

std::shared_ptr<DeviceInfo> DeviceInfoManager::deviceAt(int index) const {
    const std::shared_lock lock(m_lock);
    if (index < 0 || index >= static_cast<int>(m_devices.size())) {
        return nullptr;
    }
    return m_devices[static_cast<std::size_t>(index)];
}

void DeviceInfoManager::activateDeviceList() {
    switchTo(m_states->updateDeviceList);
}

void DeviceInfoManager::selectDevice(int index) {
    const auto unit = deviceAt(index);
    if (!unit) {
        return;
    }
    cancelRequest();
    m_selected = unit;
    emit selectedDeviceUpdated();
}

void DeviceInfoManager::goIdle() {
    switchTo(m_states->idle);
}

void DeviceInfoManager::switchTo(State& state) {
    startTimer(tickInterval);
    m_state = &state;
    state.enter();
}

void DeviceInfoManager::startTimer(int milliseconds) {
    stopTimer();
    m_timerId = QObject::startTimer(milliseconds, Qt::CoarseTimer);
}

void DeviceInfoManager::stopTimer() {
    if (m_timerId != 0) {
        killTimer(std::exchange(m_timerId, 0));
    }
}

void DeviceInfoManager::timerEvent(QTimerEvent* event) {
    if (event->timerId() != m_timerId) {
        return;
    }
    stopTimer();
    guarded("timerEvent()", [this] { tick(); });
}

void DeviceInfoManager::tick() {
    m_discoverer->removeExpiredItems();
    m_state->onTimer();
}

void DeviceInfoManager::onRequestComplete(bool success) {
    stopTimer();
    guarded("onRequestComplete()", [this, success] { complete(success); });
}

void DeviceInfoManager::complete(bool success) {
    countForSelected(success);
    m_state->onRequestComplete(success);
    if (m_selected && m_selected->changedFields().any()) {
        emit selectedDeviceUpdated();
        const int row = positionOf(m_selected);
        if (row >= 0) {
            emit itemUpdated(row);
        }
    }
}

void DeviceInfoManager::countForSelected(bool success) {
    if (!m_selected || m_cancelling) {
        return;
    }
    if (success) {
        m_selected->setOnline(true);
        return;
    }
    m_selected->incrementFailureCount();
    if (m_selected->failureCount() >= failuresToOffline) {
        m_selected->setOnline(false);
    }
}

/// Runs one step; whatever it throws is logged here, for Qt's dispatcher can bear no exception, and the
/// ticking goes on.
void DeviceInfoManager::guarded(const char* what, const std::function<void()>& step) {
    try {
        step();
    } catch (const std::exception& error) {
        programLog()->critical("DeviceInfoManager: exception in {}", what);
        programLog()->critical("{}", error.what());
        stopTimer();
    } catch (...) {
        programLog()->critical("DeviceInfoManager: exception in {}", what);
        stopTimer();
    }
    if (m_timerId == 0) {
        startTimer(tickInterval);
    }
}

void DeviceInfoManager::cancelRequest() {
    const bool outer = std::exchange(m_cancelling, true);
    m_communicator->cancelRequest();
    m_cancelling = outer;
}

void DeviceInfoManager::select(std::shared_ptr<DeviceInfo> unit) {
    m_selected = std::move(unit);
    emit selectedDeviceUpdated();
}

void DeviceInfoManager::drainDiscovery() {
    for (const auto& discovered : m_discovered->take()) {
        if (!m_devicesByUid.contains(QString::fromStdString(discovered->getUId()))) {
            insert(std::make_shared<DeviceInfo>(*discovered));
        }
    }
}

void DeviceInfoManager::insert(std::shared_ptr<DeviceInfo> unit) {
    const QString name = unit->name();
    const auto place = std::upper_bound(m_devices.begin(), m_devices.end(), name,
                                        [](const QString& wanted, const auto& listed) {
                                            return wanted.compare(listed->name(), Qt::CaseInsensitive) < 0;
                                        });
    const int index = static_cast<int>(place - m_devices.begin());
    programLog()->info("DeviceInfoManager: {} ({}) listed, at {}:{}", name.toStdString(),
                       unit->productName().toStdString(), unit->address().toStdString(), unit->port());
    {
        const std::unique_lock lock(m_lock);
        m_devicesByUid.insert(unit->uid(), unit);
        m_devices.insert(place, std::move(unit));
    }
    emit itemsAdded(index, index);
}

void DeviceInfoManager::remove(const std::shared_ptr<DeviceInfo>& unit) {
    const int index = positionOf(unit);
    if (index < 0) {
        return;
    }
    programLog()->info("DeviceInfoManager: {} no longer listed", unit->name().toStdString());
    {
        const std::unique_lock lock(m_lock);
        m_devicesByUid.remove(unit->uid());
        m_devices.erase(m_devices.begin() + index);
    }
    emit itemsRemoved(index, index);
}

int DeviceInfoManager::positionOf(const std::shared_ptr<DeviceInfo>& unit) const {
    const auto found = std::find(m_devices.begin(), m_devices.end(), unit);
    return unit && found != m_devices.end() ? static_cast<int>(found - m_devices.begin()) : -1;
}

} // namespace orvex
