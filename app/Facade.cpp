#include "app/Facade.h"

#include "device/DeviceInfoManager.h"
#include "messaging/Communicator.h"
#include "models/DeviceListModel.h"

#include <Velto/ApplicationInfo.h>
#include <Velto/Messaging/Messenger.h>

#include <utility>
#include <vector>

namespace orvex {

using Velto::Messaging::ITransport;
using Velto::Messaging::Messenger;

namespace {

constexpr auto serviceName = "KELM";
constexpr auto discoveryPort = "12741";
constexpr std::uint16_t unitPort = 12740;
constexpr std::int32_t automaticDiscovery = 3;
constexpr std::int32_t directConnection = 2;
constexpr std::int32_t discoveryPeriod = 1500; // ms
constexpr int connectTimeout = 3000;           // ms

std::shared_ptr<Messenger> makeMessenger(const std::string& hostName) {
    auto strategy = std::make_shared<Messenger::DiscoveryStrategyInfo>();
    strategy->kind = hostName.empty() ? automaticDiscovery : directConnection;
    strategy->parameter =
        hostName.empty() ? discoveryPort : "encrypted;" + hostName + ";" + std::to_string(unitPort);
    strategy->number = discoveryPeriod;

    auto messenger =
        std::make_shared<Messenger>(std::vector<std::shared_ptr<Messenger::DiscoveryStrategyInfo>>{strategy},
                                    serviceName, ITransport::TransportType::WebSocket);
    if (!hostName.empty()) {
        messenger->chooseUnit(hostName, hostName, unitPort, true, false, 0);
    }
    return messenger;
}

} // namespace

Facade::Facade(std::string hostName)
    : m_hostName(std::move(hostName))
    , m_communicator(std::make_shared<Communicator>())
    , m_deviceManager(std::make_shared<DeviceInfoManager>())
    , m_deviceListModel(std::make_shared<DeviceListModel>()) {
    m_messenger = makeMessenger(m_hostName);
    m_communicator->setMessenger(m_messenger);
    m_deviceListModel->setDeviceInfoManager(m_deviceManager);
    m_deviceManager->setCommunicator(m_communicator);
}

Facade::~Facade() {
    m_messenger.reset();
    m_communicator->releaseMessenger();
}

QObject* Facade::deviceManager() const {
    return m_deviceManager.get();
}

QObject* Facade::deviceListModel() const {
    return m_deviceListModel.get();
}

void Facade::start() {
    m_messenger->connect(connectTimeout);
}

QString Facade::getAppVersion() const {
    return QString::fromStdString(Velto::ApplicationInfo::Version());
}

} // namespace orvex
