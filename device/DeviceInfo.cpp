#include "device/DeviceInfo.h"

#include "messaging/records/ContentEquals.h"

#include <orvex/Messaging/Discovered.h>

#include <algorithm>
#include <mutex>
#include <stdexcept>
#include <string>
#include <utility>

namespace orvex {

namespace {

/// Known from the announcement or from the connection itself.
constexpr std::uint32_t alwaysValid =
    DeviceField::mask({DeviceField::Online, DeviceField::Contacted, DeviceField::Name});

std::size_t position(int field) {
    if (field < 0 || field >= DeviceField::count) {
        throw std::out_of_range("DeviceInfo: no field " + std::to_string(field));
    }
    return static_cast<std::size_t>(field);
}

template <class Record>
Record valueOrDefault(const QSharedPointer<Record>& record) {
    return record ? *record : Record{};
}

} // namespace

DeviceInfo::DeviceInfo(const Messaging::Discovered& discovered)
    : m_name(QString::fromStdString(discovered.getName()))
    , m_address(QString::fromStdString(discovered.getAddress()))
    , m_isLocalAddress(discovered.isLocalAddress())
    , m_port(discovered.getPort())
    , m_encrypted(discovered.isEncrypted())
    , m_uid(QString::fromStdString(discovered.getUId()))
    , m_serial(QString::fromStdString(discovered.getSerial()))
    , m_productVendor(QString::fromStdString(discovered.getProductVendor()))
    , m_productName(QString::fromStdString(discovered.getProductName()))
    , m_productModel(QString::fromStdString(discovered.getProductModel())) {}

bool DeviceInfo::isSameUnit(const DeviceInfo& other) const {
    return m_uid == other.m_uid && address() == other.address() && port() == other.port();
}

void DeviceInfo::moveTo(const DeviceInfo& announced) {
    if (&announced == this) {
        return;
    }
    const std::scoped_lock lock(m_lock, announced.m_lock);
    m_address = announced.m_address;
    m_isLocalAddress = announced.m_isLocalAddress;
    m_port = announced.m_port;
    m_encrypted = announced.m_encrypted;
}

AdaptiveGamingSelectedProfile DeviceInfo::adaptiveGamingSelectedProfile() const {
    return read(m_values.adaptiveGamingSelectedProfile);
}

template <class T>
void DeviceInfo::store(int field, T& member, T value) {
    const auto bit = position(field);
    const std::unique_lock lock(m_lock);
    m_answered.set(bit);
    m_failureCount = 0;
    const bool differs = !contentEquals(member, value);
    if (differs) {
        // The old value leaves with the argument, after the lock is released: it may be large.
        std::swap(member, value);
    }
    if (differs || !m_valid.test(bit)) {
        m_changed.set(bit);
    }
    m_valid.set(bit);
}

void DeviceInfo::setName(QString name) {
    store(DeviceField::Name, m_name, std::move(name));
}

void DeviceInfo::setSoftwareVersion(QString version) {
    store(DeviceField::SoftwareVersion, m_values.softwareVersion, std::move(version));
}

void DeviceInfo::setLibraryUpdateTime(QDateTime time) {
    store(DeviceField::LibraryUpdateTime, m_values.libraryUpdateTime, std::move(time));
}

void DeviceInfo::setContentUpdateState(const QSharedPointer<ContentUpdateState>& state) {
    store(DeviceField::ContentUpdate, m_values.contentUpdateState, valueOrDefault(state));
}

void DeviceInfo::setNetworkStatus(QSharedPointer<NetworkStatus> status) {
    store(DeviceField::Network, m_values.networkStatus, std::move(status));
}

void DeviceInfo::setAdaptiveGamingSelectedProfile(
    const QSharedPointer<AdaptiveGamingSelectedProfile>& profile) {
    store(DeviceField::AdaptiveGamingProfile, m_values.adaptiveGamingSelectedProfile,
          valueOrDefault(profile));
}

void DeviceInfo::setSoftwareHealthStatus(const QSharedPointer<SoftwareHealthStatus>& status) {
    store(DeviceField::SoftwareHealth, m_values.softwareHealthStatus, valueOrDefault(status));
}

void DeviceInfo::setWiFiPoints(QVector<WiFiListEntry> points) {
    store(DeviceField::WiFiPoints, m_values.wiFiPoints, std::move(points));
}

void DeviceInfo::setWiFiSetupResult(bool result) {
    store(DeviceField::WiFiSetupResult, m_values.wiFiSetupResult, result);
}

void DeviceInfo::setCaptureDevices(CaptureDeviceList devices) {
    store(DeviceField::CaptureDevices, m_values.captureDevices, std::move(devices));
}

void DeviceInfo::setAdaptiveAudioParameters(int preMixType) {
    store(DeviceField::AdaptiveAudioParameters, m_values.adaptiveAudioParameters, preMixType);
}

void DeviceInfo::setAutomaticVolumeControl(bool enabled) {
    store(DeviceField::AutomaticVolumeControl, m_values.automaticVolumeControl, enabled);
}

void DeviceInfo::setCaptureVolume(CaptureVolumeState volume) {
    store(DeviceField::CaptureVolume, m_values.captureVolume, volume);
}

void DeviceInfo::setExperienceModes(ExperienceModesState modes) {
    store(DeviceField::ExperienceModes, m_values.experienceModes, std::move(modes));
}

void DeviceInfo::setMotionCodeStatus(ServiceStatus::Value status) {
    store(DeviceField::MotionCodeStatus, m_values.motionCodeStatus, std::move(status));
}

void DeviceInfo::setAudioSourceStatus(ServiceStatus::Value status) {
    store(DeviceField::AudioSourceStatus, m_values.audioSourceStatus, std::move(status));
}

void DeviceInfo::setMediaTitle(QString title) {
    store(DeviceField::MediaTitle, m_values.mediaTitle, std::move(title));
}

void DeviceInfo::setMediaProgress(int offset, int duration) {
    store(DeviceField::MediaProgress, m_values.mediaProgress, MediaProgress{offset, duration});
}

void DeviceInfo::setMotionDelay(int delay) {
    store(DeviceField::MotionDelay, m_values.motionDelay, delay);
}

void DeviceInfo::setRecognitionTolerance(int tolerance) {
    store(DeviceField::RecognitionTolerance, m_values.recognitionTolerance, tolerance);
}

void DeviceInfo::setSeats(SeatStatusList seats) {
    store(DeviceField::Seats, m_values.seats, std::move(seats));
}

bool DeviceInfo::replaceSeat(const std::shared_ptr<SeatInfo>& seat, std::shared_ptr<SeatInfo> edited) {
    const std::unique_lock lock(m_lock);
    const auto found = std::find(m_values.seats.begin(), m_values.seats.end(), seat);
    if (found == m_values.seats.end()) {
        return false;
    }
    *found = std::move(edited);
    return true;
}

void DeviceInfo::setMediaList(QSharedPointer<MediaList> list) {
    store(DeviceField::MediaList, m_values.mediaList, std::move(list));
}

void DeviceInfo::setDetailedStatusInfo(QSharedPointer<DetailedStatusInfo> info) {
    store(DeviceField::DetailedStatus, m_values.detailedStatusInfo, std::move(info));
}

void DeviceInfo::setOnline(bool online) {
    Values forgotten;
    const std::unique_lock lock(m_lock);
    if (m_online != online) {
        m_online = online;
        m_changed.set(DeviceField::Online);
    }
    if (!online) {
        std::swap(m_values, forgotten);
        m_valid.reset();
        m_changed.set();
    }
}

void DeviceInfo::setContacted(bool contacted) {
    const std::unique_lock lock(m_lock);
    if (m_values.contacted != contacted) {
        m_values.contacted = contacted;
        m_changed.set(DeviceField::Contacted);
    }
}

bool DeviceInfo::isFieldValid(int field) const {
    const auto bit = position(field);
    return validFields().test(bit);
}

void DeviceInfo::setFieldValid(int field, bool valid) {
    const auto bit = position(field);
    const std::unique_lock lock(m_lock);
    if (valid && !m_valid.test(bit)) {
        m_changed.set(bit);
    }
    m_valid.set(bit, valid);
}

void DeviceInfo::setFieldChanged(int field, bool changed) {
    const auto bit = position(field);
    const std::unique_lock lock(m_lock);
    m_changed.set(bit, changed);
}

void DeviceInfo::setFieldAnswered(int field, bool answered) {
    const auto bit = position(field);
    const std::unique_lock lock(m_lock);
    m_answered.set(bit, answered);
    m_failureCount = 0;
}

DeviceField::Set DeviceInfo::validFields() const {
    return read(m_valid) | DeviceField::Set(alwaysValid);
}

void DeviceInfo::clearChangedFields() {
    const std::unique_lock lock(m_lock);
    m_changed.reset();
}

void DeviceInfo::clearAnsweredFields() {
    const std::unique_lock lock(m_lock);
    m_answered.reset();
}

void DeviceInfo::incrementFailureCount() {
    const std::unique_lock lock(m_lock);
    ++m_failureCount;
}

} // namespace orvex
