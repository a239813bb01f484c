#include "app/Facade.h"

#include "Product.h"
#include "app/CompanionProgram.h"
#include "device/DeviceInfoManager.h"
#include "device/DeviceInfoProxy.h"
#include "messaging/Communicator.h"
#include "models/DetailedStatusModel.h"
#include "models/DeviceListModel.h"
#include "models/MediaListModel.h"
#include "models/MediaListProxy.h"
#include "models/SeatListModel.h"

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

// Where the companion programs' paths are recorded.
constexpr auto controlPanelValue = "MotionService/Panel";
constexpr auto codedGamingValue = "InputModeControl/AppPerMode/2/Path";
constexpr auto adaptiveGamingValue = "InputModeControl/AppPerMode/3/Path";

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
    , m_deviceListModel(std::make_shared<DeviceListModel>())
    , m_deviceProxy(std::make_shared<DeviceInfoProxy>())
    , m_seatListModel(std::make_shared<SeatListModel>())
    , m_mediaListModel(std::make_shared<MediaListModel>())
    , m_mediaProxy(new MediaListProxy(this))
    , m_detailedStatusModel(std::make_shared<DetailedStatusModel>()) {
    m_messenger = makeMessenger(m_hostName);
    m_communicator->setMessenger(m_messenger);
    m_deviceListModel->setDeviceInfoManager(m_deviceManager);
    m_deviceProxy->setDeviceInfoManager(m_deviceManager);
    m_seatListModel->setDeviceInfoManager(m_deviceManager);
    m_mediaListModel->setDeviceInfoManager(m_deviceManager);
    m_mediaProxy->setSourceModel(m_mediaListModel.get());
    m_detailedStatusModel->setDeviceInfoManager(m_deviceManager);
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

QObject* Facade::deviceProxy() const {
    return m_deviceProxy.get();
}

QObject* Facade::seatListModel() const {
    return m_seatListModel.get();
}

QObject* Facade::mediaListModel() const {
    return m_mediaProxy;
}

QObject* Facade::detailedStatusModel() const {
    return m_detailedStatusModel.get();
}

void Facade::start() {
    m_messenger->connect(connectTimeout);
}

void Facade::sortMediaList(const QString& roleName, Qt::SortOrder order) {
    const int role = m_mediaListModel->roleNames().key(roleName.toLatin1(), -1);
    switch (role) {
    case -1:
        break;
    case MediaListModel::QuiveraCodeDateRole:
        m_mediaProxy->setSortPasses({{MediaListModel::TitleRole, order},
                                     {MediaListModel::ReleaseDateRole, order},
                                     {MediaListModel::QuiveraCodeDateRole, order}});
        break;
    case MediaListModel::ReleaseDateRole:
        m_mediaProxy->setSortPasses(
            {{MediaListModel::TitleRole, order}, {MediaListModel::ReleaseDateRole, order}});
        break;
    case MediaListModel::DurationRole:
        m_mediaProxy->setSortPasses(
            {{MediaListModel::TitleRole, Qt::AscendingOrder}, {MediaListModel::DurationRole, order}});
        break;
    default:
        m_mediaProxy->setSortPasses({{MediaListModel::TitleRole, order}});
        break;
    }
}

void Facade::filterMediaList(const QString& filter) {
    m_mediaProxy->setFilter(MediaListModel::TitleRole, filter);
}

void Facade::filterDetailedStatusList(int filterId) {
    m_detailedStatusModel->setFilter(static_cast<unsigned>(filterId));
}

QString Facade::getAppVersion() const {
    return QString::fromStdString(Velto::ApplicationInfo::Version());
}

bool Facade::isControlPanelConfigAppValid() const {
    return CompanionProgram(QString::fromLatin1(controlPanelValue)).isInstalled();
}

bool Facade::startControlPanelConfigApp() const {
    return CompanionProgram(QString::fromLatin1(controlPanelValue)).start();
}

bool Facade::isCodedGamingConfigAppValid() const {
    return CompanionProgram(QString::fromLatin1(codedGamingValue)).isInstalled();
}

bool Facade::startCodedGamingConfigApp() const {
    return CompanionProgram(QString::fromLatin1(codedGamingValue)).start();
}

bool Facade::isAdaptiveGamingConfigAppValid() const {
    return CompanionProgram(QString::fromLatin1(adaptiveGamingValue)).isInstalled();
}

bool Facade::startAdaptiveGamingConfigApp() const {
    return CompanionProgram(QString::fromLatin1(adaptiveGamingValue)).start();
}

QVariantMap Facade::getProduct() const {
    using namespace QuiveraProduct;
    QVariantList others;
    for (const Part& part : parts) {
        others << QVariantMap{{"name", part.name},
                              {"license", part.license},
                              {"homePage", part.homePage},
                              {"copyright", part.copyright}};
    }
    return {{"name", name},
            {"vendor", vendor},
            {"copyright", copyright},
            {"license", license},
            {"parts", others}};
}

} // namespace orvex
