// Any bytes as the body of any message: the handlers of one family (FAMILY) read them all, and a good message
// after them is read as ever.
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

#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace Velto::Messaging;

struct Bound {
    const char* type;
    std::shared_ptr<IResponseHandler> handler;
};

using Family = std::vector<Bound>;

[[maybe_unused]] Family statusFamily() {
    const auto upgrade = std::make_shared<GetUpgradeAndUpdateNotificationHandler>();
    return {{"GetKelmName", std::make_shared<GetKelmNameNotificationHandler>()},
            {"GetHapticSystemStatus", std::make_shared<GetDetailedStatusNotificationHandler>()},
            {"GetSeatStatus", std::make_shared<GetSeatStatusNotificationHandler>()},
            {"GetSoftwareHealthStatus", std::make_shared<GetSoftwareHealthStatusHandler>()},
            {"GetUpgrade", upgrade},
            {"GetUpdate", upgrade},
            {"GetMediaStatus", std::make_shared<GetMediaStatusNotificationHandler>()},
            {"GetMotionDelay", std::make_shared<GetMotionDelayNotificationHandler>()},
            {"GetRecognitionTolerance", std::make_shared<GetRecognitionToleranceNotificationHandler>()}};
}

[[maybe_unused]] Family audioFamily() {
    return {{"GetCaptureDevices", std::make_shared<GetCaptureDevicesHandler>()},
            {"GetCaptureVolume", std::make_shared<GetCaptureVolumeHandler>()},
            {"GetAdaptiveAudioParameters", std::make_shared<GetAdaptiveAudioParametersHandler>()},
            {"GetAutomaticVolumeControl", std::make_shared<GetAutomaticVolumeControlHandler>()},
            {"GetExperienceModes", std::make_shared<GetExperienceModesHandler>()},
            {"GetAdaptiveGamingSelectedProfile", std::make_shared<GetAdaptiveGamingSelectedProfileHandler>()},
            {"GetContentUpdateState", std::make_shared<GetContentUpdateStateHandler>()},
            {"GetMediaListNotification", std::make_shared<GetMediaListNotificationHandler>()}};
}

[[maybe_unused]] Family networkFamily() {
    return {{"GetNetworkState", std::make_shared<GetKELMNetworkStateHandler>()},
            {"GetWifiList", std::make_shared<GetWifiListHandler>()},
            {"SetWifiSetting", std::make_shared<WifiSettingHandler>()}};
}

std::shared_ptr<const IResponse> response(const char* type, std::string_view body) {
    auto buffer = std::make_shared<Velto::ManagedBuffer>();
    buffer->GetBuffer().AppendDataPtr(body.data(), body.size());
    return std::make_shared<IResponse>(type, 1, "", std::move(buffer), IMessage::GenericMessageType::Response,
                                       IResponse::StatusType::Ok);
}

/// What is kept of a good message must not depend on what came before it.
void checkGoodMessage(const Family& family) {
    for (const Bound& bound : family) {
        if (const auto seats = std::dynamic_pointer_cast<GetSeatStatusNotificationHandler>(bound.handler)) {
            seats->handleResponse(response(bound.type, R"({"seat":[{"index":7,"motion":-2.5}]})"));
            const auto kept = seats->seats();
            if (kept.size() != 1 || kept[0]->index != 7 || kept[0]->motion != -2) {
                std::abort();
            }
        }
        if (const auto volume = std::dynamic_pointer_cast<GetCaptureVolumeHandler>(bound.handler)) {
            volume->handleResponse(response(bound.type, R"({"volume":5})"));
            if (volume->volume().volume != 5 || volume->volume().min != -20) {
                std::abort();
            }
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    static const Family family = FAMILY();
    const std::string_view body(reinterpret_cast<const char*>(bytes), size);
    for (const Bound& bound : family) {
        bound.handler->handleResponse(response(bound.type, body));
    }
    checkGoodMessage(family);
    return 0;
}
