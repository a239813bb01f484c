#include "messaging/handlers/GetCaptureVolumeHandler.h"

#include "messaging/handlers/BodyReader.h"

#include <Velto/Messaging/BodyJSONParser.h>

namespace Velto::Messaging {

using orvex::CaptureVolumeState;

namespace {

constexpr Body::Member<CaptureVolumeState> volumeMembers[] = {
    {"experienceModeId", &Body::field<&CaptureVolumeState::experienceModeId>},
    {"volume", &Body::field<&CaptureVolumeState::volume>},
    {"step", &Body::field<&CaptureVolumeState::step>},
    {"min", &Body::field<&CaptureVolumeState::min>},
    {"max", &Body::field<&CaptureVolumeState::max>},
};

} // namespace

void GetCaptureVolumeHandler::handleResponse(std::shared_ptr<const IResponse> response) {
    if (response->getMessageType() != "GetCaptureVolume") {
        return;
    }
    CaptureVolumeState volume;
    Body::readMembers(*BodyJSONParser::parse(response), volume, volumeMembers);
    m_volume.replace(volume);
    emit captureVolumeResponseReceived(QStringLiteral("getCaptureVolume"), QVariant());
}

} // namespace Velto::Messaging
