#pragma once

#include "device/DeviceField.h"
#include "device/ServiceStatus.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariantList>

#include <memory>

namespace orvex {

class DeviceInfo;
class DeviceInfoManager;
class WiFiPointInfo;

/// The selected unit as the pages see it: its values turned into texts, lists and flags, and the user's edits
/// turned into the manager's settings. Published as "currDevice". GUI thread. Every read works without a
/// unit.
class DeviceInfoProxy : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool online READ online NOTIFY onlineChanged)
    Q_PROPERTY(QString name READ name WRITE setName NOTIFY nameChanged)
    Q_PROPERTY(QString address READ address NOTIFY deviceChanged)
    Q_PROPERTY(bool isLocalAddress READ isLocalAddress NOTIFY deviceChanged)
    Q_PROPERTY(int port READ port NOTIFY deviceChanged)
    Q_PROPERTY(bool encrypted READ encrypted NOTIFY deviceChanged)
    Q_PROPERTY(QString uid READ uid NOTIFY deviceChanged)
    Q_PROPERTY(QString serial READ serial NOTIFY deviceChanged)
    Q_PROPERTY(QString productVendor READ productVendor NOTIFY deviceChanged)
    Q_PROPERTY(QString productName READ productName NOTIFY deviceChanged)
    Q_PROPERTY(QString productModel READ productModel NOTIFY deviceChanged)
    Q_PROPERTY(QString softwareVersion READ softwareVersion NOTIFY softwareVersionChanged)
    Q_PROPERTY(QString libraryUpdateTime READ libraryUpdateTime NOTIFY libraryUpdateTimeChanged)
    Q_PROPERTY(orvex::ServiceStatus* contentUpdateState READ contentUpdateState CONSTANT)
    Q_PROPERTY(QString contentUpdateStateTime READ contentUpdateStateTime NOTIFY contentUpdateStateChanged)
    Q_PROPERTY(bool mediaListValid READ mediaListValid NOTIFY mediaListChanged)
    Q_PROPERTY(bool mediaListEmpty READ mediaListEmpty NOTIFY mediaListChanged)
    Q_PROPERTY(bool detailedStatusInfoValid READ detailedStatusInfoValid NOTIFY detailedStatusInfoChanged)
    Q_PROPERTY(bool networkStatusValid READ networkStatusValid NOTIFY networkStatusChanged)
    Q_PROPERTY(bool hotspotActive READ hotspotActive NOTIFY networkStatusChanged)
    Q_PROPERTY(QString ssid READ ssid NOTIFY networkStatusChanged)
    Q_PROPERTY(QVariantList networkInterfaces READ networkInterfaces NOTIFY networkStatusChanged)
    Q_PROPERTY(QList<QObject*> wiFiPoints READ wiFiPoints NOTIFY wiFiPointsChanged)
    Q_PROPERTY(QString adaptiveGamingSelectedProfile READ adaptiveGamingSelectedProfile NOTIFY
                   adaptiveGamingSelectedProfileChanged)
    Q_PROPERTY(QVariantList softwareHealthList READ softwareHealthList NOTIFY softwareHealthStatusChanged)
    Q_PROPERTY(bool detailsValid READ detailsValid NOTIFY detailsChanged)
    Q_PROPERTY(QStringList captureDevices READ captureDevices NOTIFY captureDevicesChanged)
    Q_PROPERTY(int currCaptureDeviceIndex READ currCaptureDeviceIndex WRITE setCurrCaptureDeviceIndex NOTIFY
                   currCaptureDeviceIndexChanged)
    Q_PROPERTY(bool isCaptureDeviceOut READ isCaptureDeviceOut NOTIFY isCaptureDeviceOutChanged)
    Q_PROPERTY(bool adaptiveAudioParameters READ adaptiveAudioParameters WRITE setAdaptiveAudioParameters
                   NOTIFY adaptiveAudioParametersChanged)
    Q_PROPERTY(bool automaticVolumeControl READ automaticVolumeControl WRITE setAutomaticVolumeControl NOTIFY
                   automaticVolumeControlChanged)
    Q_PROPERTY(int captureVolume READ captureVolume WRITE setCaptureVolume NOTIFY captureVolumeChanged)
    Q_PROPERTY(int captureVolumeStep READ captureVolumeStep NOTIFY captureVolumeStepChanged)
    Q_PROPERTY(int captureVolumeMin READ captureVolumeMin NOTIFY captureVolumeMinChanged)
    Q_PROPERTY(int captureVolumeMax READ captureVolumeMax NOTIFY captureVolumeMaxChanged)
    Q_PROPERTY(QStringList experienceModeList READ experienceModeList NOTIFY experienceModeListChanged)
    Q_PROPERTY(int currExperienceModeIndex READ currExperienceModeIndex WRITE setCurrExperienceModeIndex
                   NOTIFY currExperienceModeIndexChanged)
    Q_PROPERTY(int experienceModeSelected READ experienceModeSelected NOTIFY experienceModeSelectedChanged)
    Q_PROPERTY(bool experienceModeIsInTransition READ experienceModeIsInTransition NOTIFY
                   experienceModeIsInTransitionChanged)
    Q_PROPERTY(QString experienceModeDescription READ experienceModeDescription NOTIFY
                   experienceModeDescriptionChanged)
    Q_PROPERTY(QString experienceModeErrorMessage READ experienceModeErrorMessage NOTIFY
                   experienceModeErrorMessageChanged)
    Q_PROPERTY(orvex::ServiceStatus* motionCodeStatus READ motionCodeStatus CONSTANT)
    Q_PROPERTY(orvex::ServiceStatus* audioSourceStatus READ audioSourceStatus CONSTANT)
    Q_PROPERTY(QString mediaTitle READ mediaTitle NOTIFY mediaTitleChanged)
    Q_PROPERTY(QString mediaOffset READ mediaOffset NOTIFY mediaProgressChanged)
    Q_PROPERTY(QString mediaDuration READ mediaDuration NOTIFY mediaProgressChanged)
    /// The part of the media that has been played, 0 to 1; 0 when nothing is playing.
    Q_PROPERTY(double mediaProgress READ mediaProgress NOTIFY mediaProgressChanged)
    Q_PROPERTY(int motionDelay READ motionDelay WRITE setMotionDelay NOTIFY motionDelayChanged)
    Q_PROPERTY(int recognitionTolerance READ recognitionTolerance WRITE setRecognitionTolerance NOTIFY
                   recognitionToleranceChanged)
    /// The user's last setting is not yet confirmed or refused: the values may be older than it.
    Q_PROPERTY(bool settling READ settling NOTIFY settlingChanged)

public:
    DeviceInfoProxy();
    ~DeviceInfoProxy() override;
    DeviceInfoProxy(const DeviceInfoProxy&) = delete;
    DeviceInfoProxy& operator=(const DeviceInfoProxy&) = delete;

    /// Takes the manager whose selected unit is shown. Once.
    void setDeviceInfoManager(std::shared_ptr<DeviceInfoManager> manager);

    bool online() const;
    QString name() const;
    QString address() const;
    bool isLocalAddress() const;
    int port() const;
    bool encrypted() const;
    QString uid() const;
    QString serial() const;
    QString productVendor() const;
    QString productName() const;
    QString productModel() const;
    QString softwareVersion() const;
    QString libraryUpdateTime() const; ///< local, in the locale's short form
    ServiceStatus* contentUpdateState() { return &m_contentUpdateState; }
    QString contentUpdateStateTime() const;
    bool mediaListValid() const;
    bool mediaListEmpty() const; ///< also without a unit or a list
    bool detailedStatusInfoValid() const;
    bool networkStatusValid() const;
    bool hotspotActive() const; ///< the unit waits to be set up: own access point, no other connection
    QString ssid() const;
    QVariantList networkInterfaces() const;
    QList<QObject*> wiFiPoints() const;
    QString adaptiveGamingSelectedProfile() const;
    /// The programs that the user can do something about, each with a hint of what.
    QVariantList softwareHealthList() const;
    bool detailsValid() const;
    QStringList captureDevices() const { return m_captureDevices; }
    int currCaptureDeviceIndex() const { return m_captureDeviceIndex; }
    bool isCaptureDeviceOut() const { return m_isCaptureDeviceOut; }
    bool adaptiveAudioParameters() const; ///< voices are left out
    bool automaticVolumeControl() const;
    int captureVolume() const; ///< dB, as the three below
    int captureVolumeStep() const;
    int captureVolumeMin() const;
    int captureVolumeMax() const;
    QStringList experienceModeList() const { return m_experienceModes; }
    int currExperienceModeIndex() const {
        return m_experienceModeIndex;
    }                                   ///< -1 when the mode is not in the list
    int experienceModeSelected() const; ///< the mode's value
    bool experienceModeIsInTransition() const;
    QString experienceModeDescription() const;
    QString experienceModeErrorMessage() const;
    ServiceStatus* motionCodeStatus() { return &m_motionCodeStatus; }
    ServiceStatus* audioSourceStatus() { return &m_audioSourceStatus; }
    QString mediaTitle() const;
    QString mediaOffset() const;
    QString mediaDuration() const;
    double mediaProgress() const;
    int motionDelay() const;          ///< ms
    int recognitionTolerance() const; ///< s
    bool settling() const;

public slots:
    void setName(QString name);
    void setCurrCaptureDeviceIndex(int index);
    void setAdaptiveAudioParameters(bool preMixType);
    void setAutomaticVolumeControl(bool enable);
    void setCaptureVolume(int volume);
    void setCurrExperienceModeIndex(int index);
    void setMotionDelay(int delay);
    void setRecognitionTolerance(int tolerance);
    void onDeviceInfoUpdated();

signals:
    void deviceChanged();
    void onlineChanged();
    void nameChanged();
    void softwareVersionChanged();
    void libraryUpdateTimeChanged();
    void contentUpdateStateChanged();
    void mediaListChanged();
    void detailedStatusInfoChanged();
    void networkStatusChanged();
    void wiFiPointsChanged();
    /// How joining a network ended; once for each outcome.
    void wiFiSetUp(bool success);
    void adaptiveGamingSelectedProfileChanged();
    void softwareHealthStatusChanged();
    void detailsChanged();
    void captureDevicesChanged();
    void currCaptureDeviceIndexChanged();
    void isCaptureDeviceOutChanged();
    void adaptiveAudioParametersChanged();
    void automaticVolumeControlChanged();
    void captureVolumeChanged();
    void captureVolumeStepChanged();
    void captureVolumeMinChanged();
    void captureVolumeMaxChanged();
    void experienceModeListChanged();
    void currExperienceModeIndexChanged();
    void experienceModeSelectedChanged();
    void experienceModeIsInTransitionChanged();
    void experienceModeDescriptionChanged();
    void experienceModeErrorMessageChanged();
    void mediaTitleChanged();
    void mediaProgressChanged();
    void motionDelayChanged();
    void recognitionToleranceChanged();
    void settlingChanged();

private:
    struct FieldUpdate;
    static const FieldUpdate fieldUpdates[];

    template <class T>
    T fromUnit(T (DeviceInfo::*read)() const, T withoutUnit = T()) const;

    void updateContentUpdateState();
    void updateWiFiPoints();
    void reportWiFiSetUp();
    void updateCaptureDevices();
    void updateExperienceModes();
    void updateMotionCodeStatus();
    void updateAudioSourceStatus();

    std::shared_ptr<DeviceInfoManager> m_manager;
    std::shared_ptr<DeviceInfo> m_unit;
    int m_captureDeviceIndex = -1; ///< none in use
    bool m_isCaptureDeviceOut = false;
    int m_experienceModeIndex = -1;
    QList<WiFiPointInfo*> m_wiFiPoints; ///< children of this object
    QStringList m_captureDevices;
    QStringList m_experienceModes;
    ServiceStatus m_contentUpdateState;
    ServiceStatus m_motionCodeStatus;
    ServiceStatus m_audioSourceStatus;
};

} // namespace orvex
