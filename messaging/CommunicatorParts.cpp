#include "messaging/CommunicatorParts.h"

#include "device/DeviceInfo.h"
#include "messaging/records/RecordTypes.h"

#include <Velto/Messaging/Messenger.h>

#include <QVariantMap>

namespace orvex {

using namespace Velto::Messaging;

namespace {

using Parts = Communicator::Parts;

// Which message asks for which fields, in the order in which the messages go out. A field that is not here is
// answered without being asked for: online and contacted by the connection, the Wi-Fi result by the setting
// itself.
struct GetStep {
    std::uint32_t fields;
    void (*send)(Parts& parts);
};

template <std::shared_ptr<IMessage> Parts::*Message>
void sendPrebuilt(Parts& parts) {
    parts.messenger.send(parts.*Message);
}

template <class Handler, std::shared_ptr<Handler> Parts::*Part>
void sendByHandler(Parts& parts) {
    (parts.*Part)->sendRequest(parts.messenger);
}

void sendFresh(Parts& parts, const char* type) {
    parts.messenger.send(makeGetMessage(type));
}

constexpr GetStep getSteps[] = {
    {DeviceField::mask({DeviceField::Name}), &sendPrebuilt<&Parts::getName>},
    {DeviceField::mask({DeviceField::SoftwareVersion}), &sendPrebuilt<&Parts::getUpgrade>},
    {DeviceField::mask({DeviceField::LibraryUpdateTime}), &sendPrebuilt<&Parts::getUpdate>},
    {DeviceField::mask({DeviceField::Network}), [](Parts& p) { p.connectionWizard->triggerNetworkState(); }},
    {DeviceField::mask({DeviceField::WiFiPoints}), [](Parts& p) { p.connectionWizard->triggerWifiList(); }},
    {DeviceField::mask({DeviceField::AdaptiveGamingProfile}),
     &sendPrebuilt<&Parts::getAdaptiveGamingProfile>},
    {DeviceField::mask({DeviceField::SoftwareHealth}), &sendPrebuilt<&Parts::getSoftwareHealth>},
    {DeviceField::mask({DeviceField::CaptureDevices}), [](Parts& p) { sendFresh(p, "GetCaptureDevices"); }},
    {DeviceField::mask({DeviceField::AdaptiveAudioParameters}),
     [](Parts& p) { sendFresh(p, "GetAdaptiveAudioParameters"); }},
    {DeviceField::mask({DeviceField::AutomaticVolumeControl}),
     [](Parts& p) { sendFresh(p, "GetAutomaticVolumeControl"); }},
    {DeviceField::mask({DeviceField::CaptureVolume}), [](Parts& p) { sendFresh(p, "GetCaptureVolume"); }},
    {DeviceField::mask({DeviceField::ExperienceModes}), [](Parts& p) { sendFresh(p, "GetExperienceModes"); }},
    {DeviceField::mask({DeviceField::MotionCodeStatus, DeviceField::AudioSourceStatus,
                        DeviceField::MediaTitle, DeviceField::MediaProgress}),
     &sendPrebuilt<&Parts::getMediaStatus>},
    {DeviceField::mask({DeviceField::MotionDelay}), &sendPrebuilt<&Parts::getMotionDelay>},
    {DeviceField::mask({DeviceField::RecognitionTolerance}), &sendPrebuilt<&Parts::getRecognitionTolerance>},
    {DeviceField::mask({DeviceField::Seats}),
     &sendByHandler<GetSeatStatusNotificationHandler, &Parts::seatStatus>},
    {DeviceField::mask({DeviceField::MediaList}),
     &sendByHandler<GetMediaListNotificationHandler, &Parts::mediaList>},
    {DeviceField::mask({DeviceField::DetailedStatus}),
     &sendByHandler<GetDetailedStatusNotificationHandler, &Parts::detailedStatus>},
    {DeviceField::mask({DeviceField::ContentUpdate}),
     &sendByHandler<GetContentUpdateStateHandler, &Parts::contentUpdateState>},
};

// Which sender performs which request.
struct SetAction {
    std::int32_t requestType;
    void (*send)(Parts& parts, const DeviceUpdateRequest& request, const DeviceInfo& unit);
};

template <class Request>
const Request& as(const DeviceUpdateRequest& request) {
    return static_cast<const Request&>(request);
}

using Request = DeviceUpdateRequest;

constexpr SetAction setActions[] = {
    {Request::SetName, [](Parts& p, const Request& r,
                          const DeviceInfo&) { p.setName->triggerSendKelmName(as<SetNameRequest>(r).name); }},
    {Request::SetWiFiLogin,
     [](Parts& p, const Request& r, const DeviceInfo&) {
         const auto& login = as<SetWiFiLoginRequest>(r);
         p.connectionWizard->triggerWifiChange(login.name, login.key);
     }},
    {Request::ActivateHotspot,
     [](Parts& p, const Request&, const DeviceInfo&) { p.connectionWizard->requestHotspotActivation(); }},
    {Request::SetCaptureDevice,
     [](Parts& p, const Request& r, const DeviceInfo&) {
         p.setCaptureDevice->triggerSendCaptureDevice(
             as<SetCaptureDeviceRequest>(r).identification.toStdString());
     }},
    {Request::SetAdaptiveAudioParameters,
     [](Parts& p, const Request& r, const DeviceInfo&) {
         const int preMixType = as<SetAdaptiveAudioParametersRequest>(r).value;
         p.setAdaptiveAudioParameters->triggerSendAdaptiveAudioParameters(preMixType);
     }},
    {Request::SetAutomaticVolumeControl,
     [](Parts& p, const Request& r, const DeviceInfo&) {
         const bool enable = as<SetAutomaticVolumeControlRequest>(r).value;
         p.setAutomaticVolumeControl->triggerSendAutomaticVolumeControl(enable);
     }},
    {Request::SetCaptureVolume,
     [](Parts& p, const Request& r, const DeviceInfo& unit) {
         const auto& request = as<SetCaptureVolumeRequest>(r);
         // Going offline forgets the record: a default must not pass for the unit's mode.
         const int mode = unit.isFieldValid(DeviceField::CaptureVolume)
                              ? unit.captureVolume().experienceModeId
                              : request.experienceModeId;
         p.setCaptureVolume->triggerSendCaptureVolume(mode, request.volume);
     }},
    {Request::SetExperienceMode,
     [](Parts& p, const Request& r, const DeviceInfo&) {
         p.setExperienceMode->triggerSendExperienceMode(as<SetExperienceModeRequest>(r).value);
     }},
    {Request::SetMotionDelay,
     [](Parts& p, const Request& r, const DeviceInfo&) {
         p.setMotionDelay->triggerSendMotionDelay(as<SetMotionDelayRequest>(r).value);
     }},
    {Request::SetRecognitionTolerance,
     [](Parts& p, const Request& r, const DeviceInfo&) {
         const int tolerance = as<SetRecognitionToleranceRequest>(r).value;
         p.setRecognitionTolerance->triggerSendRecognitionTolerance(tolerance);
     }},
    {Request::SetSeatSetting,
     [](Parts& p, const Request& r, const DeviceInfo&) {
         if (const auto& seat = as<SetSeatSettingRequest>(r).seat) {
             p.setSeatSetting->triggerSendSeatSetting(*seat);
         }
     }},
    {Request::SetContentUpdate,
     [](Parts& p, const Request&, const DeviceInfo&) {
         p.requestContentUpdate->triggerRequestContentUpdate();
     }},
};

// What becomes of the values that handlers report under a name. Where the value is empty, the handler keeps
// it.
struct KeyedUpdate {
    const char* key;
    Parts::Update store;
};

QVector<WiFiListEntry> wiFiListOf(const QVariantMap& networks) {
    QVector<WiFiListEntry> list;
    list.reserve(networks.size());
    for (auto network = networks.begin(); network != networks.end(); ++network) {
        list.append({network.key(), network.value().toBool()});
    }
    return list;
}

constexpr KeyedUpdate keyedUpdates[] = {
    {"GetKelmName", [](const Parts&, DeviceInfo& unit, const QVariant& v) { unit.setName(v.toString()); }},
    // The acknowledgement of a new name carries none: it neither stores nor answers.
    {"SetKelmName", [](const Parts&, DeviceInfo&, const QVariant&) {}},
    {"wifiNetworkStatus",
     [](const Parts&, DeviceInfo& unit, const QVariant& v) { unit.setWiFiPoints(wiFiListOf(v.toMap())); }},
    {"wifiSettings",
     [](const Parts&, DeviceInfo& unit, const QVariant& v) { unit.setWiFiSetupResult(v.toBool()); }},
    {"getCaptureDevices", [](const Parts& p, DeviceInfo& unit,
                             const QVariant&) { unit.setCaptureDevices(p.captureDevices->devices()); }},
    {"getAdaptiveAudioParameters",
     [](const Parts&, DeviceInfo& unit, const QVariant& v) { unit.setAdaptiveAudioParameters(v.toInt()); }},
    {"getAutomaticVolumeControl",
     [](const Parts&, DeviceInfo& unit, const QVariant& v) { unit.setAutomaticVolumeControl(v.toBool()); }},
    {"getCaptureVolume", [](const Parts& p, DeviceInfo& unit,
                            const QVariant&) { unit.setCaptureVolume(p.captureVolume->volume()); }},
    {"getExperienceModes", [](const Parts& p, DeviceInfo& unit,
                              const QVariant&) { unit.setExperienceModes(p.experienceModes->modes()); }},
    {"mediaTitle",
     [](const Parts&, DeviceInfo& unit, const QVariant& v) { unit.setMediaTitle(v.toString()); }},
    {"motionDelay",
     [](const Parts&, DeviceInfo& unit, const QVariant& v) { unit.setMotionDelay(v.toInt()); }},
    {"recognitionTolerance",
     [](const Parts&, DeviceInfo& unit, const QVariant& v) { unit.setRecognitionTolerance(v.toInt()); }},
    {"GetSeatStatus",
     [](const Parts& p, DeviceInfo& unit, const QVariant&) { unit.setSeats(p.seatStatus->seats()); }},
};

} // namespace

Communicator::Parts::Parts(Messenger& theMessenger)
    : messenger(theMessenger)
    , name(std::make_shared<GetKelmNameNotificationHandler>())
    , upgradeAndUpdate(std::make_shared<GetUpgradeAndUpdateNotificationHandler>())
    , networkState(std::make_shared<GetKELMNetworkStateHandler>())
    , wifiList(std::make_shared<GetWifiListHandler>())
    , wifiSetting(std::make_shared<WifiSettingHandler>())
    , adaptiveGamingProfile(std::make_shared<GetAdaptiveGamingSelectedProfileHandler>())
    , softwareHealth(std::make_shared<GetSoftwareHealthStatusHandler>())
    , captureDevices(std::make_shared<GetCaptureDevicesHandler>())
    , adaptiveAudioParameters(std::make_shared<GetAdaptiveAudioParametersHandler>())
    , automaticVolumeControl(std::make_shared<GetAutomaticVolumeControlHandler>())
    , captureVolume(std::make_shared<GetCaptureVolumeHandler>())
    , experienceModes(std::make_shared<GetExperienceModesHandler>())
    , mediaStatus(std::make_shared<GetMediaStatusNotificationHandler>())
    , motionDelay(std::make_shared<GetMotionDelayNotificationHandler>())
    , recognitionTolerance(std::make_shared<GetRecognitionToleranceNotificationHandler>())
    , seatStatus(std::make_shared<GetSeatStatusNotificationHandler>())
    , mediaList(std::make_shared<GetMediaListNotificationHandler>())
    , detailedStatus(std::make_shared<GetDetailedStatusNotificationHandler>())
    , contentUpdateState(std::make_shared<GetContentUpdateStateHandler>())
    , connectionWizard(std::make_shared<ConnectionWizardSender>(&theMessenger))
    , setName(std::make_shared<SetKelmNameNotificationSender>(&theMessenger))
    , setCaptureDevice(std::make_shared<SetCaptureDevicesModeSender>(&theMessenger))
    , setAdaptiveAudioParameters(std::make_shared<SetAdaptiveAudioParametersSender>(&theMessenger))
    , setAutomaticVolumeControl(std::make_shared<SetAutomaticVolumeControlSender>(&theMessenger))
    , setCaptureVolume(std::make_shared<SetCaptureVolumeSender>(&theMessenger))
    , setExperienceMode(std::make_shared<SetExperienceModeSender>(&theMessenger))
    , setMotionDelay(std::make_shared<SetMotionDelayNotificationSender>(&theMessenger))
    , setRecognitionTolerance(std::make_shared<SetRecognitionToleranceNotificationSender>(&theMessenger))
    , setSeatSetting(std::make_shared<SetSeatSettingSender>(&theMessenger))
    , requestContentUpdate(std::make_shared<SetRequestContentUpdateSender>(&theMessenger))
    , getName(makeGetMessage("GetKelmName"))
    , getUpgrade(makeGetMessage("GetUpgrade"))
    , getUpdate(makeGetMessage("GetUpdate"))
    , getAdaptiveGamingProfile(makeGetMessage("GetAdaptiveGamingSelectedProfile"))
    , getSoftwareHealth(makeGetMessage("GetSoftwareHealthStatus"))
    , getMediaStatus(makeGetMessage("GetMediaStatus"))
    , getMotionDelay(makeGetMessage("GetMotionDelay"))
    , getRecognitionTolerance(makeGetMessage("GetRecognitionTolerance")) {
    registerRecordTypes();
}

void Communicator::Parts::connectTo(Communicator& communicator) {
    const auto generic = [&communicator](const QVariant& key, const QVariant& value) {
        communicator.genericResponseHandler(key, value);
    };
    name->valueReceived.connect(generic);
    motionDelay->valueReceived.connect(generic);
    recognitionTolerance->valueReceived.connect(generic);
    seatStatus->valueReceived.connect(generic);

    // Direct: an answer is stored while it is certain whose it is.
    const auto direct = [&communicator](const auto& handler, auto signal, auto slot) {
        QObject::connect(handler.get(), signal, &communicator, slot, Qt::DirectConnection);
    };
    direct(captureDevices, &GetCaptureDevicesHandler::captureDevicesResponseReceived,
           &Communicator::genericResponseHandler);
    direct(captureVolume, &GetCaptureVolumeHandler::captureVolumeResponseReceived,
           &Communicator::genericResponseHandler);
    direct(adaptiveAudioParameters,
           &GetAdaptiveAudioParametersHandler::adaptiveAudioParametersResponseReceived,
           &Communicator::genericResponseHandler);
    direct(automaticVolumeControl, &GetAutomaticVolumeControlHandler::automaticVolumeControlResponseReceived,
           &Communicator::genericResponseHandler);
    direct(experienceModes, &GetExperienceModesHandler::experienceModesResponseReceived,
           &Communicator::genericResponseHandler);
    direct(wifiList, &GetWifiListHandler::wifiNetworkStatusListChangedSignal,
           &Communicator::genericResponseHandler);
    direct(wifiSetting, &WifiSettingHandler::wifiSettingResponseReceived,
           &Communicator::genericResponseHandler);
    direct(mediaStatus, &GetMediaStatusNotificationHandler::updateMediaInfoTitleLabelSignal,
           &Communicator::genericResponseHandler);

    direct(mediaStatus, &GetMediaStatusNotificationHandler::updateMotionCodeStatusLabelSignal,
           &Communicator::onMotionCodeStatusChanged);
    direct(mediaStatus, &GetMediaStatusNotificationHandler::updateSourceDetectedStatusLabelSignal,
           &Communicator::onAudioSourceStatusChanged);
    direct(mediaStatus, &GetMediaStatusNotificationHandler::updateMediaInfoProgressBarSignal,
           &Communicator::onMediaProgress);
    direct(upgradeAndUpdate, &GetUpgradeAndUpdateNotificationHandler::softwareVersionReceived,
           &Communicator::softwareVersionReceived);
    direct(upgradeAndUpdate, &GetUpgradeAndUpdateNotificationHandler::lastUpdateTimestampReceived,
           &Communicator::lastUpdateTimestampReceived);
    direct(networkState, &GetKELMNetworkStateHandler::networkStatusChanged,
           &Communicator::onNetworkStatusChanged);
    direct(adaptiveGamingProfile,
           &GetAdaptiveGamingSelectedProfileHandler::adaptiveGamingSelectedProfileReceivedSignal,
           &Communicator::onAdaptiveGamingSelectedProfileChanged);
    direct(softwareHealth, &GetSoftwareHealthStatusHandler::softwareHealthStatusChanged,
           &Communicator::onSoftwareHealthStatusChanged);
    direct(mediaList, &GetMediaListNotificationHandler::mediaListChanged, &Communicator::mediaListChanged);
    direct(detailedStatus, &GetDetailedStatusNotificationHandler::detailedStatusInfoChanged,
           &Communicator::detailedStatusChanged);
    direct(contentUpdateState, &GetContentUpdateStateHandler::contentUpdateStateChanged,
           &Communicator::contentUpdateStateChanged);
}

void Communicator::Parts::registerHandlers() {
    const std::pair<const char*, std::shared_ptr<IResponseHandler>> handlers[] = {
        {"GetKelmName", name},
        {"SetKelmName", name},
        {"GetUpgrade", upgradeAndUpdate},
        {"GetUpdate", upgradeAndUpdate},
        {"GetNetworkState", networkState},
        {"GetWifiList", wifiList},
        {"SetWifiSetting", wifiSetting},
        {"GetAdaptiveGamingSelectedProfile", adaptiveGamingProfile},
        {"GetSoftwareHealthStatus", softwareHealth},
        {"GetCaptureDevices", captureDevices},
        {"GetAdaptiveAudioParameters", adaptiveAudioParameters},
        {"GetAutomaticVolumeControl", automaticVolumeControl},
        {"GetCaptureVolume", captureVolume},
        {"GetExperienceModes", experienceModes},
        {"GetMediaStatus", mediaStatus},
        {"GetMotionDelay", motionDelay},
        {"GetRecognitionTolerance", recognitionTolerance},
        {"GetSeatStatus", seatStatus},
    };
    for (const auto& [type, handler] : handlers) {
        messenger.registerResponse(type, messageNumber, handler);
    }
    mediaList->registerWith(messenger);
    detailedStatus->registerWith(messenger);
    contentUpdateState->registerWith(messenger);
}

void Communicator::Parts::perform(const DeviceUpdateRequest& request, const DeviceInfo& unit) {
    for (const SetAction& action : setActions) {
        if (action.requestType == request.requestType) {
            action.send(*this, request, unit);
            return;
        }
    }
}

void Communicator::Parts::requestFields(std::uint32_t fields) {
    for (const GetStep& step : getSteps) {
        if ((fields & step.fields) != 0) {
            step.send(*this);
        }
    }
}

Communicator::Parts::Update Communicator::Parts::updateFor(const QString& key) {
    for (const KeyedUpdate& update : keyedUpdates) {
        if (key == QLatin1String(update.key)) {
            return update.store;
        }
    }
    return nullptr;
}

} // namespace orvex
