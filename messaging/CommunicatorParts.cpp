#include "messaging/CommunicatorParts.h"

#include "device/DeviceInfo.h"
#include "messaging/records/RecordTypes.h"

#include <Velto/Messaging/Messenger.h>

namespace orvex {

using namespace Velto::Messaging;

namespace {

using Parts = Communicator::Parts;

struct GetStep {
    std::uint32_t fields;
    void (*send)(Parts& parts);
};

template <std::shared_ptr<IMessage> Parts::*Message>
void sendPrebuilt(Parts& parts) {
    parts.messenger.send(parts.*Message);
}

// In the order in which the messages go out.
constexpr GetStep getSteps[] = {
    {DeviceField::mask({DeviceField::Name}), &sendPrebuilt<&Parts::getName>},
    {DeviceField::mask({DeviceField::SoftwareVersion}), &sendPrebuilt<&Parts::getUpgrade>},
    {DeviceField::mask({DeviceField::LibraryUpdateTime}), &sendPrebuilt<&Parts::getUpdate>},
    {DeviceField::mask({DeviceField::Network}),
     [](Parts& parts) { parts.connectionWizard->triggerNetworkState(); }},
    {DeviceField::mask({DeviceField::WiFiPoints}),
     [](Parts& parts) { parts.connectionWizard->triggerWifiList(); }},
    {DeviceField::mask({DeviceField::ContentUpdate}),
     [](Parts& parts) { parts.contentUpdateState->sendRequest(parts.messenger); }},
};

struct SetAction {
    std::int32_t requestType;
    void (*send)(Parts& parts, const DeviceUpdateRequest& request, const DeviceInfo& unit);
};

template <class Request>
const Request& as(const DeviceUpdateRequest& request) {
    return static_cast<const Request&>(request);
}

constexpr SetAction setActions[] = {
    {DeviceUpdateRequest::SetName,
     [](Parts& parts, const DeviceUpdateRequest& request, const DeviceInfo&) {
         parts.setName->triggerSendKelmName(as<SetNameRequest>(request).name);
     }},
    {DeviceUpdateRequest::SetWiFiLogin,
     [](Parts& parts, const DeviceUpdateRequest& request, const DeviceInfo&) {
         const auto& login = as<SetWiFiLoginRequest>(request);
         parts.connectionWizard->triggerWifiChange(login.name, login.key);
     }},
    {DeviceUpdateRequest::ActivateHotspot,
     [](Parts& parts, const DeviceUpdateRequest&, const DeviceInfo&) {
         parts.connectionWizard->requestHotspotActivation();
     }},
    {DeviceUpdateRequest::SetContentUpdate,
     [](Parts& parts, const DeviceUpdateRequest&, const DeviceInfo&) {
         parts.requestContentUpdate->triggerRequestContentUpdate();
     }},
};

struct KeyedUpdate {
    QLatin1String key;
    Parts::Update store;
};

const KeyedUpdate keyedUpdates[] = {
    {QLatin1String("GetKelmName"),
     [](DeviceInfo& unit, const QVariant& value) { unit.setName(value.toString()); }},
    // The acknowledgement of a new name carries none: it neither stores nor answers.
    {QLatin1String("SetKelmName"), [](DeviceInfo&, const QVariant&) {}},
};

} // namespace

Communicator::Parts::Parts(Messenger& theMessenger)
    : messenger(theMessenger)
    , name(std::make_shared<GetKelmNameNotificationHandler>())
    , upgradeAndUpdate(std::make_shared<GetUpgradeAndUpdateNotificationHandler>())
    , networkState(std::make_shared<GetKELMNetworkStateHandler>())
    , contentUpdateState(std::make_shared<GetContentUpdateStateHandler>())
    , connectionWizard(std::make_shared<ConnectionWizardSender>(&theMessenger))
    , setName(std::make_shared<SetKelmNameNotificationSender>(&theMessenger))
    , requestContentUpdate(std::make_shared<SetRequestContentUpdateSender>(&theMessenger))
    , getName(makeGetMessage("GetKelmName"))
    , getUpgrade(makeGetMessage("GetUpgrade"))
    , getUpdate(makeGetMessage("GetUpdate")) {
    registerRecordTypes();
}

void Communicator::Parts::connectTo(Communicator& communicator) {
    const auto generic = [&communicator](const QVariant& key, const QVariant& value) {
        communicator.genericResponseHandler(key, value);
    };
    name->valueReceived.connect(generic);

    // Direct: an answer is stored while it is certain whose it is.
    constexpr auto direct = Qt::DirectConnection;
    QObject::connect(upgradeAndUpdate.get(), &GetUpgradeAndUpdateNotificationHandler::softwareVersionReceived,
                     &communicator, &Communicator::softwareVersionReceived, direct);
    QObject::connect(upgradeAndUpdate.get(),
                     &GetUpgradeAndUpdateNotificationHandler::lastUpdateTimestampReceived, &communicator,
                     &Communicator::lastUpdateTimestampReceived, direct);
    QObject::connect(networkState.get(), &GetKELMNetworkStateHandler::networkStatusChanged, &communicator,
                     &Communicator::onNetworkStatusChanged, direct);
    QObject::connect(contentUpdateState.get(), &GetContentUpdateStateHandler::contentUpdateStateChanged,
                     &communicator, &Communicator::contentUpdateStateChanged, direct);
}

void Communicator::Parts::registerWith(Messenger& target) {
    target.registerResponse("GetKelmName", messageNumber, name);
    target.registerResponse("SetKelmName", messageNumber, name);
    target.registerResponse("GetUpgrade", messageNumber, upgradeAndUpdate);
    target.registerResponse("GetUpdate", messageNumber, upgradeAndUpdate);
    target.registerResponse("GetNetworkState", messageNumber, networkState);
    contentUpdateState->registerWith(target);
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
        if (update.key == key) {
            return update.store;
        }
    }
    return nullptr;
}

} // namespace orvex
