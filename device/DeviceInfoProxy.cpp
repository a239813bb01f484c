#include "device/DeviceInfoProxy.h"

#include "device/DeviceInfo.h"
#include "device/DeviceInfoManager.h"
#include "device/DisplayTexts.h"
#include "device/WiFiPointInfo.h"

#include <QVariantMap>

#include <algorithm>
#include <utility>

namespace orvex {

namespace {

// The bounds of the level while no unit is shown.
constexpr int volumeStepWithoutUnit = 1;
constexpr int volumeMinWithoutUnit = -10;
constexpr int volumeMaxWithoutUnit = 10;

constexpr int voicesLeftOut = 1; // pre-mix type

int contentUpdateType(int stateId) {
    switch (stateId) {
    case 10:
        return 0;
    case 20:
    case 30:
    case 36:
    case 40:
    case 50:
        return 2;
    default:
        return 1;
    }
}

bool isNamed(const SoftwareHealthEntry& entry, const char* name) {
    return entry.name.compare(QLatin1String(name), Qt::CaseInsensitive) == 0;
}

/// Every user of the PC has an agent of their own; another one's is nothing this user can do anything about.
bool isShown(const SoftwareHealthEntry& entry, const QString& currentUser) {
    return isNamed(entry, "Monitor Service") ||
           (isNamed(entry, "Quivera Agent") && entry.userName.compare(currentUser, Qt::CaseInsensitive) == 0);
}

} // namespace

/// What a changed field makes the proxy refresh and tell, in the order of the table.
struct DeviceInfoProxy::FieldUpdate {
    std::uint32_t fields;
    void (*tell)(DeviceInfoProxy& proxy);
};

const DeviceInfoProxy::FieldUpdate DeviceInfoProxy::fieldUpdates[] = {
    {DeviceField::mask({DeviceField::Online}), [](DeviceInfoProxy& p) { emit p.onlineChanged(); }},
    {DeviceField::mask({DeviceField::Name}), [](DeviceInfoProxy& p) { emit p.nameChanged(); }},
    {DeviceField::mask({DeviceField::SoftwareVersion}),
     [](DeviceInfoProxy& p) { emit p.softwareVersionChanged(); }},
    {DeviceField::mask({DeviceField::LibraryUpdateTime}),
     [](DeviceInfoProxy& p) { emit p.libraryUpdateTimeChanged(); }},
    {DeviceField::mask({DeviceField::ContentUpdate}),
     [](DeviceInfoProxy& p) { p.updateContentUpdateState(); }},
    {DeviceField::mask({DeviceField::MediaList}), [](DeviceInfoProxy& p) { emit p.mediaListChanged(); }},
    {DeviceField::mask({DeviceField::DetailedStatus}),
     [](DeviceInfoProxy& p) { emit p.detailedStatusInfoChanged(); }},
    {DeviceField::mask({DeviceField::Network}), [](DeviceInfoProxy& p) { emit p.networkStatusChanged(); }},
    {DeviceField::mask({DeviceField::WiFiPoints}), [](DeviceInfoProxy& p) { p.updateWiFiPoints(); }},
    {DeviceField::all, [](DeviceInfoProxy& p) { p.reportWiFiSetUp(); }},
    {DeviceField::mask({DeviceField::AdaptiveGamingProfile}),
     [](DeviceInfoProxy& p) { emit p.adaptiveGamingSelectedProfileChanged(); }},
    {DeviceField::mask({DeviceField::SoftwareHealth}),
     [](DeviceInfoProxy& p) { emit p.softwareHealthStatusChanged(); }},
    {DeviceField::details, [](DeviceInfoProxy& p) { emit p.detailsChanged(); }},
    {DeviceField::mask({DeviceField::CaptureDevices}), [](DeviceInfoProxy& p) { p.updateCaptureDevices(); }},
    {DeviceField::mask({DeviceField::AdaptiveAudioParameters}),
     [](DeviceInfoProxy& p) { emit p.adaptiveAudioParametersChanged(); }},
    {DeviceField::mask({DeviceField::AutomaticVolumeControl}),
     [](DeviceInfoProxy& p) { emit p.automaticVolumeControlChanged(); }},
    {DeviceField::mask({DeviceField::CaptureVolume}),
     [](DeviceInfoProxy& p) {
         emit p.captureVolumeChanged();
         emit p.captureVolumeStepChanged();
         emit p.captureVolumeMinChanged();
         emit p.captureVolumeMaxChanged();
     }},
    {DeviceField::mask({DeviceField::ExperienceModes}),
     [](DeviceInfoProxy& p) { p.updateExperienceModes(); }},
    {DeviceField::mask({DeviceField::MotionCodeStatus}),
     [](DeviceInfoProxy& p) { p.updateMotionCodeStatus(); }},
    {DeviceField::mask({DeviceField::AudioSourceStatus}),
     [](DeviceInfoProxy& p) { p.updateAudioSourceStatus(); }},
    {DeviceField::mask({DeviceField::MediaTitle}), [](DeviceInfoProxy& p) { emit p.mediaTitleChanged(); }},
    {DeviceField::mask({DeviceField::MediaProgress}),
     [](DeviceInfoProxy& p) { emit p.mediaProgressChanged(); }},
    {DeviceField::mask({DeviceField::MotionDelay}), [](DeviceInfoProxy& p) { emit p.motionDelayChanged(); }},
    {DeviceField::mask({DeviceField::RecognitionTolerance}),
     [](DeviceInfoProxy& p) { emit p.recognitionToleranceChanged(); }},
};

DeviceInfoProxy::DeviceInfoProxy() = default;

DeviceInfoProxy::~DeviceInfoProxy() = default;

void DeviceInfoProxy::setDeviceInfoManager(std::shared_ptr<DeviceInfoManager> manager) {
    m_manager = std::move(manager);
    connect(m_manager.get(), &DeviceInfoManager::selectedDeviceUpdated, this,
            &DeviceInfoProxy::onDeviceInfoUpdated);
    connect(m_manager.get(), &DeviceInfoManager::settlingChanged, this, &DeviceInfoProxy::settlingChanged);
}

void DeviceInfoProxy::onDeviceInfoUpdated() {
    const auto unit = m_manager->selectedDevice();
    DeviceField::Set changed;
    if (unit != m_unit) {
        m_unit = unit;
        m_captureDeviceIndex = -1;
        changed.set();
        emit deviceChanged();
    } else if (m_unit) {
        changed = m_unit->changedFields();
    }
    for (const FieldUpdate& update : fieldUpdates) {
        if ((changed & DeviceField::Set(update.fields)).any()) {
            update.tell(*this);
        }
    }
}

template <class T>
T DeviceInfoProxy::fromUnit(T (DeviceInfo::*read)() const, T withoutUnit) const {
    return m_unit ? ((*m_unit).*read)() : withoutUnit;
}

bool DeviceInfoProxy::online() const {
    return fromUnit(&DeviceInfo::isOnline);
}
QString DeviceInfoProxy::name() const {
    return fromUnit(&DeviceInfo::name);
}
QString DeviceInfoProxy::address() const {
    return fromUnit(&DeviceInfo::address);
}
bool DeviceInfoProxy::isLocalAddress() const {
    return fromUnit(&DeviceInfo::isLocalAddress);
}
int DeviceInfoProxy::port() const {
    return fromUnit(&DeviceInfo::port);
}
bool DeviceInfoProxy::encrypted() const {
    return fromUnit(&DeviceInfo::isEncrypted);
}
QString DeviceInfoProxy::uid() const {
    return fromUnit(&DeviceInfo::uid);
}
QString DeviceInfoProxy::serial() const {
    return fromUnit(&DeviceInfo::serial);
}
QString DeviceInfoProxy::productVendor() const {
    return fromUnit(&DeviceInfo::productVendor);
}
QString DeviceInfoProxy::productName() const {
    return fromUnit(&DeviceInfo::productName);
}
QString DeviceInfoProxy::productModel() const {
    return fromUnit(&DeviceInfo::productModel);
}
QString DeviceInfoProxy::softwareVersion() const {
    return fromUnit(&DeviceInfo::softwareVersion);
}

QString DeviceInfoProxy::libraryUpdateTime() const {
    return m_unit ? DisplayTexts::updateTime(m_unit->libraryUpdateTime()) : QString();
}

QString DeviceInfoProxy::contentUpdateStateTime() const {
    const QString timestamp = fromUnit(&DeviceInfo::contentUpdateState).updatedTimestamp;
    return DisplayTexts::updateTime(QDateTime::fromString(timestamp, Qt::ISODate));
}

bool DeviceInfoProxy::mediaListValid() const {
    return m_unit && m_unit->isFieldValid(DeviceField::MediaList);
}

bool DeviceInfoProxy::mediaListEmpty() const {
    const auto list = fromUnit(&DeviceInfo::mediaList);
    return !list || list->media.isEmpty();
}

bool DeviceInfoProxy::detailedStatusInfoValid() const {
    return m_unit && m_unit->isFieldValid(DeviceField::DetailedStatus);
}

bool DeviceInfoProxy::networkStatusValid() const {
    const auto status = fromUnit(&DeviceInfo::networkStatus);
    return status && status->valid;
}

bool DeviceInfoProxy::hotspotActive() const {
    const auto status = fromUnit(&DeviceInfo::networkStatus);
    return status && status->hotspotActive && !status->online;
}

QString DeviceInfoProxy::ssid() const {
    const auto status = fromUnit(&DeviceInfo::networkStatus);
    return status ? status->ssid : QString();
}

QVariantList DeviceInfoProxy::networkInterfaces() const {
    QVariantList list;
    const auto status = fromUnit(&DeviceInfo::networkStatus);
    for (const auto& entry : status ? status->interfaces : QVector<NetworkInterfaceInfo>()) {
        list.append(QVariantMap{{QStringLiteral("type"), entry.type},
                                {QStringLiteral("name"), entry.interfaceName},
                                {QStringLiteral("ip"), entry.ip},
                                {QStringLiteral("mac"), entry.hardwareAddress},
                                {QStringLiteral("netmask"), entry.netmask},
                                {QStringLiteral("broadcast"), entry.broadcast},
                                {QStringLiteral("active"), entry.active}});
    }
    return list;
}

QList<QObject*> DeviceInfoProxy::wiFiPoints() const {
    QList<QObject*> list;
    std::copy(m_wiFiPoints.begin(), m_wiFiPoints.end(), std::back_inserter(list));
    return list;
}

QString DeviceInfoProxy::adaptiveGamingSelectedProfile() const {
    return fromUnit(&DeviceInfo::adaptiveGamingSelectedProfile).name;
}

QVariantList DeviceInfoProxy::softwareHealthList() const {
    QVariantList list;
    const auto health = fromUnit(&DeviceInfo::softwareHealthStatus);
    for (const SoftwareHealthEntry& entry : health.entries) {
        if (isShown(entry, health.currentUserName)) {
            const QString hint = DisplayTexts::softwareHealthHint(entry.status);
            list.append(QVariantMap{{QStringLiteral("softwareName"), entry.name},
                                    {QStringLiteral("status"), entry.status},
                                    {QStringLiteral("statusMessage"), entry.statusMessage},
                                    {QStringLiteral("timestamp"), entry.timestamp},
                                    {QStringLiteral("userName"), entry.userName},
                                    {QStringLiteral("errorHintMessage"), hint}});
        }
    }
    return list;
}

bool DeviceInfoProxy::detailsValid() const {
    return m_unit && (DeviceField::Set(DeviceField::details) & ~m_unit->validFields()).none();
}

bool DeviceInfoProxy::adaptiveAudioParameters() const {
    return fromUnit(&DeviceInfo::adaptiveAudioParameters) == voicesLeftOut;
}

bool DeviceInfoProxy::automaticVolumeControl() const {
    return fromUnit(&DeviceInfo::automaticVolumeControl, true);
}

int DeviceInfoProxy::captureVolume() const {
    return fromUnit(&DeviceInfo::captureVolume).volume;
}

int DeviceInfoProxy::captureVolumeStep() const {
    return m_unit ? m_unit->captureVolume().step : volumeStepWithoutUnit;
}

int DeviceInfoProxy::captureVolumeMin() const {
    return m_unit ? m_unit->captureVolume().min : volumeMinWithoutUnit;
}

int DeviceInfoProxy::captureVolumeMax() const {
    return m_unit ? m_unit->captureVolume().max : volumeMaxWithoutUnit;
}

int DeviceInfoProxy::experienceModeSelected() const {
    return fromUnit(&DeviceInfo::experienceModes).selectedModeId;
}

bool DeviceInfoProxy::experienceModeIsInTransition() const {
    return !m_unit ||
           m_unit->experienceModes().state.compare(QLatin1String("Transitioning"), Qt::CaseInsensitive) == 0;
}

QString DeviceInfoProxy::experienceModeDescription() const {
    return m_unit ? DisplayTexts::experienceModeDescription(experienceModeSelected())
                  : DisplayTexts::modeIsChanging();
}

QString DeviceInfoProxy::experienceModeErrorMessage() const {
    return DisplayTexts::experienceModeError(fromUnit(&DeviceInfo::experienceModes).status);
}

QString DeviceInfoProxy::mediaTitle() const {
    return fromUnit(&DeviceInfo::mediaTitle);
}
QString DeviceInfoProxy::mediaOffset() const {
    return DisplayTexts::mediaTime(fromUnit(&DeviceInfo::mediaOffset, -1));
}
QString DeviceInfoProxy::mediaDuration() const {
    return DisplayTexts::mediaTime(fromUnit(&DeviceInfo::mediaDuration, -1));
}
double DeviceInfoProxy::mediaProgress() const {
    const int duration = fromUnit(&DeviceInfo::mediaDuration, -1);
    const int offset = fromUnit(&DeviceInfo::mediaOffset, -1);
    return duration > 0 ? std::clamp(static_cast<double>(offset) / duration, 0.0, 1.0) : 0.0;
}
int DeviceInfoProxy::motionDelay() const {
    return fromUnit(&DeviceInfo::motionDelay);
}
int DeviceInfoProxy::recognitionTolerance() const {
    return fromUnit(&DeviceInfo::recognitionTolerance);
}

bool DeviceInfoProxy::settling() const {
    return m_manager && m_manager->isSettling();
}

void DeviceInfoProxy::updateContentUpdateState() {
    const auto state = fromUnit(&DeviceInfo::contentUpdateState);
    QString text = state.stateText();
    if (const QString code = state.codeText(); !code.isEmpty()) {
        text += QLatin1Char('\n') + code;
    }
    m_contentUpdateState.setType(contentUpdateType(state.stateId));
    m_contentUpdateState.setText(text);
    emit contentUpdateStateChanged();
}

void DeviceInfoProxy::updateWiFiPoints() {
    const QList<WiFiPointInfo*> former = std::exchange(m_wiFiPoints, {});
    for (const WiFiListEntry& entry : fromUnit(&DeviceInfo::wiFiPoints)) {
        m_wiFiPoints.append(new WiFiPointInfo(entry, this));
    }
    emit wiFiPointsChanged();
    // After the new list is out: a page may still be reading the old one.
    for (WiFiPointInfo* point : former) {
        point->deleteLater();
    }
}

void DeviceInfoProxy::reportWiFiSetUp() {
    if (!m_unit || !m_unit->isFieldValid(DeviceField::WiFiSetupResult)) {
        return;
    }
    const bool success = m_unit->wiFiSetupResult();
    m_unit->setFieldValid(DeviceField::WiFiSetupResult, false);
    emit wiFiSetUp(success);
}

void DeviceInfoProxy::updateCaptureDevices() {
    const CaptureDeviceList devices = fromUnit(&DeviceInfo::captureDevices);
    m_captureDevices.clear();
    for (const auto& device : devices) {
        m_captureDevices.append(device->friendlyName);
    }
    const auto inUse = std::find_if(devices.begin(), devices.end(), [](const auto& device) {
        return device->status == QLatin1String("OnCapture");
    });
    m_isCaptureDeviceOut = inUse != devices.end() && (*inUse)->isOutput();
    if (inUse != devices.end()) {
        m_captureDeviceIndex = static_cast<int>(inUse - devices.begin());
    } else if (m_captureDeviceIndex >= static_cast<int>(devices.size())) {
        m_captureDeviceIndex = -1;
    }
    if (m_isCaptureDeviceOut && !automaticVolumeControl()) {
        m_manager->requestAutomaticVolumeControl();
    }
    emit captureDevicesChanged();
    emit currCaptureDeviceIndexChanged();
    emit isCaptureDeviceOutChanged();
}

void DeviceInfoProxy::updateExperienceModes() {
    const ExperienceModesState modes = fromUnit(&DeviceInfo::experienceModes);
    m_experienceModes.clear();
    for (const int mode : modes.modeIds) {
        m_experienceModes.append(DisplayTexts::experienceModeName(mode));
    }
    m_experienceModeIndex = modes.modeIds.indexOf(modes.selectedModeId);
    emit experienceModeListChanged();
    emit currExperienceModeIndexChanged();
    emit experienceModeSelectedChanged();
    emit experienceModeIsInTransitionChanged();
    emit experienceModeDescriptionChanged();
    emit experienceModeErrorMessageChanged();
}

void DeviceInfoProxy::updateMotionCodeStatus() {
    m_motionCodeStatus = ServiceStatus(fromUnit(&DeviceInfo::motionCodeStatus));
}

void DeviceInfoProxy::updateAudioSourceStatus() {
    m_audioSourceStatus = ServiceStatus(fromUnit(&DeviceInfo::audioSourceStatus));
}

void DeviceInfoProxy::setName(QString name) {
    if (m_unit) {
        m_manager->setDeviceName(std::move(name));
    }
}

void DeviceInfoProxy::setCurrCaptureDeviceIndex(int index) {
    if (m_unit) {
        m_manager->setCaptureDevice(index);
    }
}

void DeviceInfoProxy::setAdaptiveAudioParameters(bool preMixType) {
    // While an earlier choice is on its way, what is shown is no measure.
    if (m_unit && (settling() || preMixType != adaptiveAudioParameters())) {
        m_manager->setAdaptiveAudioParameters(preMixType ? voicesLeftOut : 0);
    }
}

void DeviceInfoProxy::setAutomaticVolumeControl(bool enable) {
    if (m_unit) {
        m_manager->setAutomaticVolumeControl(enable);
    }
}

void DeviceInfoProxy::setCaptureVolume(int volume) {
    if (m_unit) {
        m_manager->setCaptureVolume(volume);
    }
}

void DeviceInfoProxy::setCurrExperienceModeIndex(int index) {
    if (m_unit) {
        m_manager->setExperienceMode(index);
    }
}

void DeviceInfoProxy::setMotionDelay(int delay) {
    if (m_unit) {
        m_manager->setMotionDelay(delay);
    }
}

void DeviceInfoProxy::setRecognitionTolerance(int tolerance) {
    if (m_unit) {
        m_manager->setRecognitionTolerance(tolerance);
    }
}

} // namespace orvex
