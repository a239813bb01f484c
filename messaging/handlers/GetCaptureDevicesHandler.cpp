#include "messaging/handlers/GetCaptureDevicesHandler.h"

#include "messaging/handlers/BodyReader.h"

#include <Velto/Messaging/BodyJSONParser.h>

#include <algorithm>

namespace Velto::Messaging {

using orvex::CaptureDevice;
using orvex::CaptureDeviceList;

namespace {

constexpr Body::Member<CaptureDevice> deviceMembers[] = {
    {"friendlyName", &Body::field<&CaptureDevice::friendlyName>},
    {"description", &Body::field<&CaptureDevice::description>},
    {"identification", &Body::field<&CaptureDevice::identification>},
    {"interface", &Body::field<&CaptureDevice::interfaceName>},
    {"loopback", &Body::field<&CaptureDevice::loopback>},
    {"status", &Body::field<&CaptureDevice::status>},
    {"connected", &Body::field<&CaptureDevice::connected>},
};

CaptureDeviceList parseDevices(const Body::Value& array) {
    CaptureDeviceList devices;
    Body::readObjects(array, devices, "capture devices", [&devices](const Body::Value& element) {
        auto device = std::make_shared<CaptureDevice>();
        Body::readMembers(element, *device, deviceMembers);
        device->prefixDisplayName();
        devices.push_back(std::move(device));
    });
    std::stable_sort(devices.begin(), devices.end(),
                     [](const auto& a, const auto& b) { return a->friendlyName < b->friendlyName; });
    return devices;
}

} // namespace

void GetCaptureDevicesHandler::handleResponse(std::shared_ptr<const IResponse> response) {
    if (response->getMessageType() != "GetCaptureDevices") {
        return;
    }
    const auto body = BodyJSONParser::parse(response);
    const auto* array = Body::firstMember(*body, "captureDevices");
    m_devices.replace(array ? parseDevices(*array) : CaptureDeviceList());
    emit captureDevicesResponseReceived(QStringLiteral("getCaptureDevices"), QVariant());
}

} // namespace Velto::Messaging
