#include "device/DeviceInfoManager.h"

#include "device/DeviceInfo.h"
#include "device/DiscoveryQueue.h"
#include "device/PendingSettings.h"
#include "device/ProgramLog.h"
#include "device/states/IdleState.h"
#include "device/states/InitNetworkSetupState.h"
#include "device/states/MonitorDeviceWiFiState.h"
#include "device/states/SetDevicePropertyState.h"
#include "device/states/SetDeviceWiFiState.h"
#include "device/states/UpdateDeviceListState.h"
#include "device/states/UpdateDeviceWiFiState.h"
#include "device/states/UpdateSelectedDeviceFieldsState.h"
#include "device/states/UpdateSelectedDeviceState.h"
#include "messaging/Communicator.h"

#include <orvex/Messaging/Discoverer.h>

#include <QTimerEvent>

#include <algorithm>
#include <exception>
#include <utility>

namespace orvex {

namespace {

constexpr std::chrono::milliseconds tickInterval{800};
constexpr int failuresToOffline = 2;
constexpr std::chrono::milliseconds settingsBeat{100}; // while settings wait to be sent
constexpr int contentUpdateDelay = 500;                // ms
constexpr std::uint32_t wiFiLoginTimeout = 10000;      // ms

} // namespace

struct DeviceInfoManager::States {
    explicit States(DeviceInfoManager& manager)
        : updateDeviceList(manager)
        , updateSelectedDevice(manager)
        , updateSelectedDeviceFields(manager)
        , setDeviceProperty(manager)
        , updateDeviceWiFi(manager)
        , idle(manager)
        , initNetworkSetup(manager, updateDeviceWiFi)
        , monitorDeviceWiFi(manager, idle)
        , setDeviceWiFi(manager, monitorDeviceWiFi, idle) {}

    UpdateDeviceListState updateDeviceList;
    UpdateSelectedDeviceState updateSelectedDevice;
    UpdateSelectedDeviceFieldsState updateSelectedDeviceFields;
    SetDevicePropertyState setDeviceProperty;
    UpdateDeviceWiFiState updateDeviceWiFi;
    IdleState idle;
    InitNetworkSetupState initNetworkSetup;
    MonitorDeviceWiFiState monitorDeviceWiFi;
    SetDeviceWiFiState setDeviceWiFi;
};

DeviceInfoManager::DeviceInfoManager(TimeSource& time)
    : m_discovered(std::make_shared<DiscoveryQueue>())
    , m_time(time)
    , m_settings(std::make_unique<PendingSettings>())
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

void DeviceInfoManager::activateDeviceList() {
    switchTo(m_states->updateDeviceList);
}

void DeviceInfoManager::startDeviceSetup() {
    switchTo(m_states->initNetworkSetup);
}

void DeviceInfoManager::showingWiFiList() {
    switchTo(m_states->updateDeviceWiFi);
}

void DeviceInfoManager::selectDevice(int index) {
    const auto unit = deviceAt(index);
    if (!unit) {
        return;
    }
    cancelPoll();
    select(unit);
}

void DeviceInfoManager::showingDeviceInfo() {
    switchTo(m_states->updateSelectedDevice);
    triggerSubscriptionAndContentUpdate();
}

void DeviceInfoManager::triggerSubscriptionAndContentUpdate() {
    stopContentUpdateTimer();
    m_contentUpdateTimerId = m_time.startTimer(*this, contentUpdateDelay, Qt::CoarseTimer);
}

void DeviceInfoManager::showingNetworkStatus() {
    showFields(DeviceField::mask({DeviceField::Network}), 6000, 6000);
}

void DeviceInfoManager::showingDeviceVersions() {
    showFields(DeviceField::mask({DeviceField::Name, DeviceField::SoftwareVersion}), 5000, 5000);
}

void DeviceInfoManager::showingMediaList() {
    showFields(DeviceField::mask({DeviceField::MediaList}), 0, 30000);
}

void DeviceInfoManager::showingDetailedStatusInfo() {
    showFields(DeviceField::mask({DeviceField::DetailedStatus}), 0, 2000);
}

void DeviceInfoManager::showFields(std::uint32_t fields, int firstInterval, int repeatInterval) {
    m_states->updateSelectedDeviceFields.configure(fields, firstInterval, repeatInterval);
    switchTo(m_states->updateSelectedDeviceFields);
}

void DeviceInfoManager::connectDeviceToWiFi(QString name, QString key) {
    if (!m_selected) {
        return;
    }
    const auto status = m_selected->networkStatus();
    m_states->monitorDeviceWiFi.setFormerNetwork(status ? status->ssid : QString());
    m_selected->setFieldValid(DeviceField::WiFiSetupResult, false);
    cancelRequest();
    switchTo(m_states->setDeviceWiFi);
    sendNow(std::make_shared<SetWiFiLoginRequest>(std::move(name), std::move(key)), wiFiLoginTimeout);
}

void DeviceInfoManager::resetNetworkSettings() {
    if (m_selected) {
        m_leaving = m_selected;
        sendNow(std::make_shared<ActivateHotspotRequest>(), 0);
        m_selected->setOnline(false);
    }
    switchTo(m_states->idle);
}

void DeviceInfoManager::goIdle() {
    switchTo(m_states->idle);
}

void DeviceInfoManager::setDeviceName(QString name) {
    if (!m_selected || name.isEmpty() || name == m_selected->name()) {
        return;
    }
    m_selected->setName(name);
    tellSelected();
    m_states->updateSelectedDeviceFields.configure(
        DeviceField::mask({DeviceField::Name, DeviceField::SoftwareVersion}), 5000, 5000);
    queueAndShow(std::make_shared<SetNameRequest>(std::move(name)), m_states->updateSelectedDeviceFields,
                 DeviceField::mask({DeviceField::Name}));
}

void DeviceInfoManager::setAdaptiveAudioParameters(int preMixType) {
    queueAndShow(std::make_shared<SetAdaptiveAudioParametersRequest>(preMixType),
                 m_states->updateSelectedDevice);
}

void DeviceInfoManager::setAutomaticVolumeControl(bool enable) {
    queueAndShow(std::make_shared<SetAutomaticVolumeControlRequest>(enable), m_states->updateSelectedDevice);
}

void DeviceInfoManager::requestAutomaticVolumeControl() {
    queueSetting(std::make_shared<SetAutomaticVolumeControlRequest>(true));
}

void DeviceInfoManager::setCaptureDevice(int index) {
    const CaptureDeviceList devices = m_selected ? m_selected->captureDevices() : CaptureDeviceList();
    if (index >= 0 && index < static_cast<int>(devices.size())) {
        const auto& device = devices[static_cast<std::size_t>(index)];
        queueAndShow(std::make_shared<SetCaptureDeviceRequest>(device->identification),
                     m_states->updateSelectedDevice);
    }
}

void DeviceInfoManager::setCaptureVolume(int volume) {
    const int mode = m_selected ? m_selected->captureVolume().experienceModeId : 0;
    queueAndShow(std::make_shared<SetCaptureVolumeRequest>(volume, mode), m_states->updateSelectedDevice);
}

void DeviceInfoManager::setExperienceMode(int index) {
    const QList<int> modes = m_selected ? m_selected->experienceModes().modeIds : QList<int>();
    if (index >= 0 && index < modes.size()) {
        queueAndShow(std::make_shared<SetExperienceModeRequest>(modes.at(index)),
                     m_states->updateSelectedDevice);
    }
}

void DeviceInfoManager::setMotionDelay(int delay) {
    queueAndShow(std::make_shared<SetMotionDelayRequest>(delay), m_states->updateSelectedDevice);
}

void DeviceInfoManager::setRecognitionTolerance(int tolerance) {
    queueAndShow(std::make_shared<SetRecognitionToleranceRequest>(tolerance), m_states->updateSelectedDevice);
}

void DeviceInfoManager::setSeatSetting(std::shared_ptr<SeatInfo> seat) {
    queueAndShow(std::make_shared<SetSeatSettingRequest>(std::move(seat)), m_states->updateSelectedDevice);
}

bool DeviceInfoManager::isSeatSettingPending(int seatIndex) const {
    return m_settings->holdsSeat(m_selected, seatIndex);
}

void DeviceInfoManager::queueAndShow(std::shared_ptr<DeviceUpdateRequest> request, State& returnState,
                                     std::uint32_t confirmingFields) {
    if (!m_selected) {
        return;
    }
    queueSetting(std::move(request));
    m_states->setDeviceProperty.returnTo(returnState);
    switchTo(m_states->setDeviceProperty);
    setSettling(m_settlingFields | confirmingFields);
}

/// Settings outlive the page they were made on: they are sent to their unit whatever state is current by
/// then.
void DeviceInfoManager::queueSetting(std::shared_ptr<DeviceUpdateRequest> request) {
    m_settings->add(m_selected, std::move(request));
    runTimer();
}

bool DeviceInfoManager::sendPendingSetting() {
    if (m_settings->isEmpty() || !m_communicator->isIdle()) {
        return false;
    }
    const PendingSettings::Setting setting = m_settings->take();
    const bool isOfAnotherPage =
        setting.request->requestType == DeviceUpdateRequest::SetContentUpdate && setting.unit != m_selected;
    if (isOfAnotherPage) {
        m_settings->finish(true);
        return false;
    }
    startRequest(setting.unit, setting.request->refreshFields, setting.request, 0);
    return true;
}

void DeviceInfoManager::sendNow(std::shared_ptr<DeviceUpdateRequest> request, std::uint32_t timeout) {
    cancelRequest();
    const std::uint32_t fields = request->refreshFields;
    startRequest(m_selected, fields, std::move(request), timeout);
}

void DeviceInfoManager::startRequest(const std::shared_ptr<DeviceInfo>& unit, std::uint32_t fields,
                                     std::shared_ptr<DeviceUpdateRequest> request, std::uint32_t timeout) {
    m_requested = unit;
    m_requestedFields = fields;
    m_toldFields.reset();
    m_communicator->startRequest(unit, fields, std::move(request), timeout);
}

void DeviceInfoManager::switchTo(State& state) {
    startTimer(tickInterval);
    m_state = &state;
    state.enter();
}

void DeviceInfoManager::startTimer(std::chrono::milliseconds interval) {
    m_stateDue = m_time.now() + interval;
    runTimer();
}

/// Settings that wait shorten the way to the next tick, not the interval of the state.
void DeviceInfoManager::runTimer() {
    stopTimer();
    auto interval = std::chrono::ceil<std::chrono::milliseconds>(m_stateDue - m_time.now());
    if (!m_settings->isEmpty()) {
        interval = std::min(interval, settingsBeat);
    }
    interval = std::max(interval, std::chrono::milliseconds::zero());
    m_timerId = m_time.startTimer(*this, static_cast<int>(interval.count()), Qt::CoarseTimer);
}

void DeviceInfoManager::stopTimer() {
    if (m_timerId != 0) {
        m_time.stopTimer(*this, std::exchange(m_timerId, 0));
    }
}

void DeviceInfoManager::stopContentUpdateTimer() {
    if (m_contentUpdateTimerId != 0) {
        m_time.stopTimer(*this, std::exchange(m_contentUpdateTimerId, 0));
    }
}

void DeviceInfoManager::timerEvent(QTimerEvent* event) {
    if (event->timerId() == m_timerId) {
        stopTimer();
        guarded("timerEvent()", [this] { tick(); });
    } else if (event->timerId() == m_contentUpdateTimerId) {
        stopContentUpdateTimer();
        if (m_selected) {
            queueSetting(std::make_shared<SetContentUpdateRequest>());
        }
    }
}

void DeviceInfoManager::tick() {
    m_discoverer->removeExpiredItems();
    // A page that hears of a loss may have asked for something else already.
    if (!tellLoss() && !sendPendingSetting() && m_time.now() >= m_stateDue) {
        m_stateDue = m_time.now() + tickInterval;
        m_state->onTimer();
    }
}

/// A connection that is lost between two requests ends none of them: the views hear of it here, also while
/// nothing is polled.
bool DeviceInfoManager::tellLoss() {
    const bool isLost = m_wasOnline && m_selected && !m_selected->isOnline() && m_communicator->isIdle();
    if (isLost) {
        tellSelected();
        setSettling(0);
    }
    m_wasOnline = m_selected && m_selected->isOnline();
    return isLost;
}

void DeviceInfoManager::tellSelected() {
    m_wasOnline = m_selected->isOnline();
    emit selectedDeviceUpdated();
    const int row = m_devices.positionOf(m_selected);
    if (row >= 0) {
        emit itemUpdated(row);
    }
}

void DeviceInfoManager::tellNews() {
    const DeviceField::Set changed = m_selected->changedFields();
    if ((changed & ~m_toldFields).any()) {
        m_toldFields = changed;
        tellSelected();
    }
}

void DeviceInfoManager::onRequestComplete(bool success) {
    stopTimer();
    guarded("onRequestComplete()", [this, success] { complete(success); });
}

void DeviceInfoManager::complete(bool success) {
    countForSelected(success);
    if (m_settings->isInFlight()) {
        m_settings->finish(success || !m_communicator->isLastUpdateInDoubt());
    } else {
        m_stateDue = m_time.now() + tickInterval;
        m_state->onRequestComplete(success);
    }
    if (m_selected && m_selected->changedFields().any()) {
        tellSelected();
    }
    updateSettling(success);
}

/// What was read after the last setting was sent is no longer in question. A reading that began before ends
/// while the setting still waits.
void DeviceInfoManager::updateSettling(bool success) {
    if (!m_selected || !m_selected->isOnline()) {
        setSettling(0);
    } else if (success && !m_cancelling && m_requested == m_selected && m_settings->isEmpty() &&
               !m_settings->isInFlight()) {
        setSettling(m_settlingFields & ~m_requestedFields);
    }
}

void DeviceInfoManager::setSettling(std::uint32_t fields) {
    const bool wasSettling = isSettling();
    m_settlingFields = fields;
    if (isSettling() != wasSettling) {
        emit settlingChanged();
    }
}

void DeviceInfoManager::countForSelected(bool success) {
    if (!m_selected || m_selected != m_requested || m_cancelling) {
        return;
    }
    if (m_selected == m_leaving) {
        m_leaving.reset();
        m_selected->setOnline(false);
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
        startTimer(tickInterval);
    } catch (...) {
        programLog()->critical("DeviceInfoManager: exception in {}", what);
        startTimer(tickInterval);
    }
    if (m_timerId == 0) {
        runTimer();
    }
}

void DeviceInfoManager::cancelPoll() {
    if (!m_settings->isInFlight()) {
        cancelRequest();
    }
}

void DeviceInfoManager::cancelRequest() {
    const bool outer = std::exchange(m_cancelling, true);
    m_communicator->cancelRequest();
    m_cancelling = outer;
}

void DeviceInfoManager::select(std::shared_ptr<DeviceInfo> unit) {
    m_selected = std::move(unit);
    m_leaving.reset();
    m_wasOnline = m_selected && m_selected->isOnline();
    emit selectedDeviceUpdated();
    setSettling(0);
}

void DeviceInfoManager::drainDiscovery(Relocation relocation) {
    for (const auto& discovered : m_discovered->take()) {
        if (!m_discoverer->holds(discovered->getUId())) {
            continue; // announced long ago, and gone since
        }
        const auto known = m_devices.find(QString::fromStdString(discovered->getUId()));
        const auto announced = std::make_shared<DeviceInfo>(*discovered);
        if (!known) {
            insert(announced);
        } else if (relocation == Relocation::Followed && known == m_selected) {
            known->moveTo(*announced);
        } else if (relocation == Relocation::AskedAgain && !known->isSameUnit(*announced)) {
            known->moveTo(*announced);
            known->setFieldValid(DeviceField::Network, false);
        }
    }
}

void DeviceInfoManager::insert(const std::shared_ptr<DeviceInfo>& unit) {
    const int index = m_devices.insert(unit);
    programLog()->info("DeviceInfoManager: {} ({}) listed, at {}:{}", unit->name().toStdString(),
                       unit->productName().toStdString(), unit->address().toStdString(), unit->port());
    emit itemsAdded(index, index);
}

void DeviceInfoManager::remove(const std::shared_ptr<DeviceInfo>& unit) {
    const int index = m_devices.positionOf(unit);
    if (index < 0) {
        return;
    }
    programLog()->info("DeviceInfoManager: {} no longer listed", unit->name().toStdString());
    m_settings->forget(unit);
    m_devices.removeAt(index);
    emit itemsRemoved(index, index);
}

} // namespace orvex
