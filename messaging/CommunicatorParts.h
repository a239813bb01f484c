#pragma once

#include "messaging/Communicator.h"
#include "messaging/handlers/FirstIntegerHandler.h"
#include "messaging/handlers/GetAdaptiveAudioParametersHandler.h"
#include "messaging/handlers/GetAdaptiveGamingSelectedProfileHandler.h"
#include "messaging/handlers/GetAutomaticVolumeControlHandler.h"
#include "messaging/handlers/GetCaptureDevicesHandler.h"
#include "messaging/handlers/GetCaptureVolumeHandler.h"
#include "messaging/handlers/GetContentUpdateStateHandler.h"
#include "messaging/handlers/GetDetailedStatusNotificationHandler.h"
#include "messaging/handlers/GetExperienceModesHandler.h"
#include "messaging/handlers/GetKELMNetworkStateHandler.h"
#include "messaging/handlers/GetKelmNameNotificationHandler.h"
#include "messaging/handlers/GetMediaListNotificationHandler.h"
#include "messaging/handlers/GetMediaStatusNotificationHandler.h"
#include "messaging/handlers/GetSeatStatusNotificationHandler.h"
#include "messaging/handlers/GetSoftwareHealthStatusHandler.h"
#include "messaging/handlers/GetUpgradeAndUpdateNotificationHandler.h"
#include "messaging/handlers/GetWifiListHandler.h"
#include "messaging/handlers/WifiSettingHandler.h"
#include "messaging/senders/ConnectionWizardSender.h"
#include "messaging/senders/SetAdaptiveAudioParametersSender.h"
#include "messaging/senders/SetAutomaticVolumeControlSender.h"
#include "messaging/senders/SetCaptureDevicesModeSender.h"
#include "messaging/senders/SetCaptureVolumeSender.h"
#include "messaging/senders/SetExperienceModeSender.h"
#include "messaging/senders/SetKelmNameNotificationSender.h"
#include "messaging/senders/SetMotionDelayNotificationSender.h"
#include "messaging/senders/SetRecognitionToleranceNotificationSender.h"
#include "messaging/senders/SetRequestContentUpdateSender.h"
#include "messaging/senders/SetSeatSettingSender.h"

#include <memory>

namespace orvex {

/// Everything the `Communicator` says and hears by: one object for each sender and handler, and the tables
/// that tell which of them serves which field, request and key. Made once, never changed.
struct Communicator::Parts {
    explicit Parts(Velto::Messaging::Messenger& messenger);

    /// Directs every handler's results to the slots of `communicator`, on the thread that they come on.
    void connectTo(Communicator& communicator);

    void registerHandlers();

    /// Sends the set action of a request; one of a reserved type sends nothing.
    void perform(const DeviceUpdateRequest& request, const DeviceInfo& unit);

    /// Sends the Get messages of these fields, each once, in the order of the table.
    void requestFields(std::uint32_t fields);

    /// Stores the value that is reported under this name; none for a name nobody knows.
    using Update = void (*)(const Parts& parts, DeviceInfo& unit, const QVariant& value);
    static Update updateFor(const QString& key);

    Velto::Messaging::Messenger& messenger;

    template <class Part>
    using Shared = std::shared_ptr<Part>;

    Shared<Velto::Messaging::GetKelmNameNotificationHandler> name;
    Shared<Velto::Messaging::GetUpgradeAndUpdateNotificationHandler> upgradeAndUpdate;
    Shared<Velto::Messaging::GetKELMNetworkStateHandler> networkState;
    Shared<Velto::Messaging::GetWifiListHandler> wifiList;
    Shared<Velto::Messaging::WifiSettingHandler> wifiSetting;
    Shared<Velto::Messaging::GetAdaptiveGamingSelectedProfileHandler> adaptiveGamingProfile;
    Shared<Velto::Messaging::GetSoftwareHealthStatusHandler> softwareHealth;
    Shared<Velto::Messaging::GetCaptureDevicesHandler> captureDevices;
    Shared<Velto::Messaging::GetAdaptiveAudioParametersHandler> adaptiveAudioParameters;
    Shared<Velto::Messaging::GetAutomaticVolumeControlHandler> automaticVolumeControl;
    Shared<Velto::Messaging::GetCaptureVolumeHandler> captureVolume;
    Shared<Velto::Messaging::GetExperienceModesHandler> experienceModes;
    Shared<Velto::Messaging::GetMediaStatusNotificationHandler> mediaStatus;
    Shared<Velto::Messaging::GetMotionDelayNotificationHandler> motionDelay;
    Shared<Velto::Messaging::GetRecognitionToleranceNotificationHandler> recognitionTolerance;
    Shared<Velto::Messaging::GetSeatStatusNotificationHandler> seatStatus;
    Shared<Velto::Messaging::GetMediaListNotificationHandler> mediaList;
    Shared<Velto::Messaging::GetDetailedStatusNotificationHandler> detailedStatus;
    Shared<Velto::Messaging::GetContentUpdateStateHandler> contentUpdateState;

    Shared<Velto::Messaging::ConnectionWizardSender> connectionWizard;
    Shared<Velto::Messaging::SetKelmNameNotificationSender> setName;
    Shared<Velto::Messaging::SetCaptureDevicesModeSender> setCaptureDevice;
    Shared<Velto::Messaging::SetAdaptiveAudioParametersSender> setAdaptiveAudioParameters;
    Shared<Velto::Messaging::SetAutomaticVolumeControlSender> setAutomaticVolumeControl;
    Shared<Velto::Messaging::SetCaptureVolumeSender> setCaptureVolume;
    Shared<Velto::Messaging::SetExperienceModeSender> setExperienceMode;
    Shared<Velto::Messaging::SetMotionDelayNotificationSender> setMotionDelay;
    Shared<Velto::Messaging::SetRecognitionToleranceNotificationSender> setRecognitionTolerance;
    Shared<Velto::Messaging::SetSeatSettingSender> setSeatSetting;
    Shared<Velto::Messaging::SetRequestContentUpdateSender> requestContentUpdate;

    Shared<Velto::Messaging::IMessage> getName;
    Shared<Velto::Messaging::IMessage> getUpgrade;
    Shared<Velto::Messaging::IMessage> getUpdate;
    Shared<Velto::Messaging::IMessage> getAdaptiveGamingProfile;
    Shared<Velto::Messaging::IMessage> getSoftwareHealth;
    Shared<Velto::Messaging::IMessage> getMediaStatus;
    Shared<Velto::Messaging::IMessage> getMotionDelay;
    Shared<Velto::Messaging::IMessage> getRecognitionTolerance;
};

} // namespace orvex
