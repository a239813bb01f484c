#pragma once

#include "device/DeviceField.h"
#include "messaging/records/SeatInfo.h"

#include <QString>

#include <cstdint>
#include <memory>
#include <utility>

namespace orvex {

/// One change of a unit's settings, to be sent by the `Communicator`. Immutable once handed over.
struct DeviceUpdateRequest {
    /// What is changed; 3 is reserved.
    enum Type : std::int32_t {
        SetName = 0,
        SetWiFiLogin = 1,
        ActivateHotspot = 2,
        SetCaptureDevice = 4,
        SetAdaptiveAudioParameters = 5,
        SetAutomaticVolumeControl = 6,
        SetCaptureVolume = 7,
        SetExperienceMode = 8,
        SetMotionDelay = 9,
        SetRecognitionTolerance = 10,
        SetSeatSetting = 11,
        SetContentUpdate = 12,
    };

    explicit DeviceUpdateRequest(std::int32_t type, std::uint32_t fields = 0)
        : requestType(type)
        , refreshFields(fields) {}
    virtual ~DeviceUpdateRequest() = default;
    DeviceUpdateRequest(const DeviceUpdateRequest&) = default;
    DeviceUpdateRequest& operator=(const DeviceUpdateRequest&) = default;

    std::int32_t requestType;
    std::uint32_t refreshFields; ///< mask of the fields to read back once the unit has answered
};

struct SetNameRequest : DeviceUpdateRequest {
    explicit SetNameRequest(QString newName)
        : DeviceUpdateRequest(SetName)
        , name(std::move(newName)) {}
    QString name;
};

struct SetWiFiLoginRequest : DeviceUpdateRequest {
    SetWiFiLoginRequest(QString networkName, QString passPhrase)
        : DeviceUpdateRequest(SetWiFiLogin, DeviceField::mask({DeviceField::WiFiSetupResult}))
        , name(std::move(networkName))
        , key(std::move(passPhrase)) {}
    QString name;
    QString key; ///< the pass phrase as typed; never logged
};

struct ActivateHotspotRequest : DeviceUpdateRequest {
    ActivateHotspotRequest()
        : DeviceUpdateRequest(ActivateHotspot) {}
};

struct SetCaptureDeviceRequest : DeviceUpdateRequest {
    explicit SetCaptureDeviceRequest(QString deviceIdentification)
        : DeviceUpdateRequest(SetCaptureDevice)
        , identification(std::move(deviceIdentification)) {}
    QString identification; ///< `CaptureDevice::identification`, never the display name
};

/// A request that carries one number or flag; `Kind` is its `requestType`.
template <DeviceUpdateRequest::Type Kind, class Value>
struct SetValueRequest : DeviceUpdateRequest {
    explicit SetValueRequest(Value newValue)
        : DeviceUpdateRequest(Kind)
        , value(newValue) {}
    Value value;
};

/// 1: the centre channel (voices) is left out; 0: it is used.
using SetAdaptiveAudioParametersRequest =
    SetValueRequest<DeviceUpdateRequest::SetAdaptiveAudioParameters, int>;
using SetAutomaticVolumeControlRequest =
    SetValueRequest<DeviceUpdateRequest::SetAutomaticVolumeControl, bool>;
/// dB, within the bounds the unit reports.
struct SetCaptureVolumeRequest : DeviceUpdateRequest {
    SetCaptureVolumeRequest(int newVolume, int modeWhenSet)
        : DeviceUpdateRequest(SetCaptureVolume)
        , volume(newVolume)
        , experienceModeId(modeWhenSet) {}
    int volume;
    /// As read with the level that the user has changed. It serves when the unit's record has forgotten its
    /// own by the time this is sent.
    int experienceModeId;
};
/// The mode's value, never its position in a list.
using SetExperienceModeRequest = SetValueRequest<DeviceUpdateRequest::SetExperienceMode, int>;
/// ms.
using SetMotionDelayRequest = SetValueRequest<DeviceUpdateRequest::SetMotionDelay, int>;
/// s.
using SetRecognitionToleranceRequest = SetValueRequest<DeviceUpdateRequest::SetRecognitionTolerance, int>;

struct SetSeatSettingRequest : DeviceUpdateRequest {
    explicit SetSeatSettingRequest(std::shared_ptr<SeatInfo> changedSeat)
        : DeviceUpdateRequest(SetSeatSetting)
        , seat(std::move(changedSeat)) {}
    std::shared_ptr<SeatInfo> seat;
};

struct SetContentUpdateRequest : DeviceUpdateRequest {
    SetContentUpdateRequest()
        : DeviceUpdateRequest(SetContentUpdate) {}
};

} // namespace orvex
