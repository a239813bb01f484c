#pragma once

#include "device/DeviceField.h"
#include "device/ServiceStatus.h"
#include "messaging/records/AdaptiveGamingSelectedProfile.h"
#include "messaging/records/CaptureDevice.h"
#include "messaging/records/CaptureVolumeState.h"
#include "messaging/records/ContentUpdateState.h"
#include "messaging/records/DetailedStatusInfo.h"
#include "messaging/records/ExperienceModesState.h"
#include "messaging/records/MediaList.h"
#include "messaging/records/NetworkStatus.h"
#include "messaging/records/SeatInfo.h"
#include "messaging/records/SoftwareHealthStatus.h"
#include "messaging/records/WiFiListEntry.h"

#include <QDateTime>
#include <QObject>
#include <QSharedPointer>
#include <QString>
#include <QVector>

#include <memory>
#include <shared_mutex>

namespace orvex {

namespace Messaging {
class Discovered;
}

/// Everything known of one unit: what it announced, and every value read from it since, with, for each field,
/// whether its value is known, whether the latest request changed it, and whether the unit has answered for
/// it.
///
/// Shared by the manager, the `Communicator` (which fills it) and the views. Any thread: each getter copies
/// out under the shared lock, each setter compares and stores under the exclusive one. Nothing is called
/// while it is held.
class DeviceInfo : public QObject {
    Q_OBJECT

public:
    explicit DeviceInfo(const Messaging::Discovered& discovered);
    DeviceInfo(const DeviceInfo&) = delete;
    DeviceInfo& operator=(const DeviceInfo&) = delete;

    // What the unit announced. Only the name, and where the unit is found, can change.
    QString name() const { return read(m_name); }
    QString address() const { return read(m_address); }
    bool isLocalAddress() const { return read(m_isLocalAddress); }
    quint16 port() const { return read(m_port); }
    bool isEncrypted() const { return read(m_encrypted); }
    QString uid() const { return m_uid; }
    QString serial() const { return m_serial; }
    QString productVendor() const { return m_productVendor; }
    QString productName() const { return m_productName; }
    QString productModel() const { return m_productModel; }

    /// Whether both are the unit of one uid at one address and port: one connection serves both.
    bool isSameUnit(const DeviceInfo& other) const;

    /// Takes over where a newer announcement of the same unit says that it is.
    void moveTo(const DeviceInfo& announced);

    // What was read from the unit.
    bool isOnline() const { return read(m_online); }
    bool isContacted() const { return read(m_values.contacted); }
    QString softwareVersion() const { return read(m_values.softwareVersion); }
    QDateTime libraryUpdateTime() const { return read(m_values.libraryUpdateTime); }
    ContentUpdateState contentUpdateState() const { return read(m_values.contentUpdateState); }
    QSharedPointer<NetworkStatus> networkStatus() const { return read(m_values.networkStatus); }
    AdaptiveGamingSelectedProfile adaptiveGamingSelectedProfile() const;
    SoftwareHealthStatus softwareHealthStatus() const { return read(m_values.softwareHealthStatus); }
    QVector<WiFiListEntry> wiFiPoints() const { return read(m_values.wiFiPoints); }
    bool wiFiSetupResult() const { return read(m_values.wiFiSetupResult); }
    CaptureDeviceList captureDevices() const { return read(m_values.captureDevices); }
    int adaptiveAudioParameters() const { return read(m_values.adaptiveAudioParameters); }
    bool automaticVolumeControl() const { return read(m_values.automaticVolumeControl); }
    CaptureVolumeState captureVolume() const { return read(m_values.captureVolume); }
    ExperienceModesState experienceModes() const { return read(m_values.experienceModes); }
    ServiceStatus::Value motionCodeStatus() const { return read(m_values.motionCodeStatus); }
    ServiceStatus::Value audioSourceStatus() const { return read(m_values.audioSourceStatus); }
    QString mediaTitle() const { return read(m_values.mediaTitle); }
    int mediaOffset() const { return read(m_values.mediaProgress).offset; }          ///< s, -1 for none
    int mediaDuration() const { return read(m_values.mediaProgress).duration; }      ///< s, -1 for none
    int motionDelay() const { return read(m_values.motionDelay); }                   ///< ms
    int recognitionTolerance() const { return read(m_values.recognitionTolerance); } ///< s
    SeatStatusList seats() const { return read(m_values.seats); }
    QSharedPointer<MediaList> mediaList() const { return read(m_values.mediaList); }
    QSharedPointer<DetailedStatusInfo> detailedStatusInfo() const {
        return read(m_values.detailedStatusInfo);
    }

    // Each of these makes the field valid and answered, and changed when it was not valid or its value
    // differs; all reset the failure count. A pointer to nothing is an answer without data.
    void setName(QString name);
    void setSoftwareVersion(QString version);
    void setLibraryUpdateTime(QDateTime time);
    void setContentUpdateState(const QSharedPointer<ContentUpdateState>& state);
    void setNetworkStatus(QSharedPointer<NetworkStatus> status);
    void setAdaptiveGamingSelectedProfile(const QSharedPointer<AdaptiveGamingSelectedProfile>& profile);
    void setSoftwareHealthStatus(const QSharedPointer<SoftwareHealthStatus>& status);
    void setWiFiPoints(QVector<WiFiListEntry> points);
    void setWiFiSetupResult(bool result);
    void setCaptureDevices(CaptureDeviceList devices);
    void setAdaptiveAudioParameters(int preMixType);
    void setAutomaticVolumeControl(bool enabled);
    void setCaptureVolume(CaptureVolumeState volume);
    void setExperienceModes(ExperienceModesState modes);
    void setMotionCodeStatus(ServiceStatus::Value status);
    void setAudioSourceStatus(ServiceStatus::Value status);
    void setMediaTitle(QString title);
    void setMediaProgress(int offset, int duration);
    void setMotionDelay(int delay);
    void setRecognitionTolerance(int tolerance);
    void setSeats(SeatStatusList seats);
    void setMediaList(QSharedPointer<MediaList> list);
    void setDetailedStatusInfo(QSharedPointer<DetailedStatusInfo> info);

    /// Puts an edited copy in the place of a seat: what the user has set, before the unit has answered for
    /// it. False when the unit has reported other seats meanwhile.
    bool replaceSeat(const std::shared_ptr<SeatInfo>& seat, std::shared_ptr<SeatInfo> edited);

    /// Going offline, also again, returns every value that was read from the unit to its default and marks
    /// every field changed and none valid, so that each view refreshes.
    void setOnline(bool online);
    void setContacted(bool contacted);

    // The three sets. A field number outside 0 to 27 throws std::out_of_range.
    bool isFieldValid(int field) const; ///< always so for online, contacted and name
    void setFieldValid(int field, bool valid);
    void setFieldChanged(int field, bool changed);
    void setFieldAnswered(int field, bool answered); ///< also resets the failure count
    DeviceField::Set validFields() const;
    DeviceField::Set changedFields() const { return read(m_changed); }
    DeviceField::Set answeredFields() const { return read(m_answered); }
    void clearChangedFields();
    /// Leaves the failure count alone.
    void clearAnsweredFields();

    /// Polls that failed one after the other.
    int failureCount() const { return read(m_failureCount); }
    void incrementFailureCount();

private:
    struct MediaProgress {
        int offset = -1;
        int duration = -1;

        bool operator==(const MediaProgress& other) const {
            return offset == other.offset && duration == other.duration;
        }
    };

    /// Everything that going offline forgets.
    struct Values {
        bool contacted = false;
        QString softwareVersion;
        QDateTime libraryUpdateTime;
        ContentUpdateState contentUpdateState;
        QSharedPointer<NetworkStatus> networkStatus;
        AdaptiveGamingSelectedProfile adaptiveGamingSelectedProfile;
        SoftwareHealthStatus softwareHealthStatus;
        QVector<WiFiListEntry> wiFiPoints;
        bool wiFiSetupResult = false;
        CaptureDeviceList captureDevices;
        int adaptiveAudioParameters = 0;
        bool automaticVolumeControl = true;
        CaptureVolumeState captureVolume;
        ExperienceModesState experienceModes;
        ServiceStatus::Value motionCodeStatus;
        ServiceStatus::Value audioSourceStatus;
        QString mediaTitle;
        MediaProgress mediaProgress;
        int motionDelay = 0;
        int recognitionTolerance = 0;
        SeatStatusList seats;
        QSharedPointer<MediaList> mediaList;
        QSharedPointer<DetailedStatusInfo> detailedStatusInfo;
    };

    template <class T>
    T read(const T& member) const {
        const std::shared_lock lock(m_lock);
        return member;
    }

    template <class T>
    void store(int field, T& member, T value);

    mutable std::shared_mutex m_lock;
    QString m_name;
    QString m_address;
    bool m_isLocalAddress;
    quint16 m_port;
    bool m_encrypted;
    const QString m_uid;
    const QString m_serial;
    const QString m_productVendor;
    const QString m_productName;
    const QString m_productModel;
    bool m_online = true;
    int m_failureCount = 0;
    Values m_values;
    DeviceField::Set m_changed;
    DeviceField::Set m_answered;
    DeviceField::Set m_valid;
};

} // namespace orvex
