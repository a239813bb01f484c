#include "app/Facade.h"

#include "app/CompanionProgram.h"
#include "device/DeviceInfoManager.h"
#include "device/DeviceInfoProxy.h"
#include "messaging/Communicator.h"
#include "models/DetailedStatusModel.h"
#include "models/DeviceListModel.h"
#include "models/MediaListModel.h"
#include "models/SeatListModel.h"

#include <Velto/ApplicationInfo.h>
#include <Velto/Messaging/Messenger.h>

#include <QRegularExpression>

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
    , m_mediaProxy(new QSortFilterProxyModel(this))
    , m_detailedStatusModel(std::make_shared<DetailedStatusModel>()) {
    m_messenger = makeMessenger(m_hostName);
    m_communicator->setMessenger(m_messenger);
    m_deviceListModel->setDeviceInfoManager(m_deviceManager);
    m_deviceProxy->setDeviceInfoManager(m_deviceManager);
    m_seatListModel->setDeviceInfoManager(m_deviceManager);
    m_mediaListModel->setDeviceInfoManager(m_deviceManager);
    m_mediaProxy->setSourceModel(m_mediaListModel.get());
    m_mediaProxy->setSortCaseSensitivity(Qt::CaseInsensitive);
    m_mediaProxy->setFilterRole(MediaListModel::TitleRole);
    m_mediaProxy->setFilterCaseSensitivity(Qt::CaseInsensitive);
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

// The sort is stable: each pass decides among those that the next one holds equal.
void Facade::sortMediaList(const QString& roleName, Qt::SortOrder order) {
    const QHash<int, QByteArray> names = m_mediaListModel->roleNames();
    const int role = names.key(roleName.toLatin1(), -1);
    if (role < 0) {
        return;
    }
    const auto pass = [this](int by, Qt::SortOrder direction) {
        m_mediaProxy->setSortRole(by);
        m_mediaProxy->sort(0, direction);
    };
    switch (role) {
    case MediaListModel::QuiveraCodeDateRole:
        pass(MediaListModel::TitleRole, order);
        pass(MediaListModel::ReleaseDateRole, order);
        pass(MediaListModel::QuiveraCodeDateRole, order);
        break;
    case MediaListModel::ReleaseDateRole:
        pass(MediaListModel::TitleRole, order);
        pass(MediaListModel::ReleaseDateRole, order);
        break;
    case MediaListModel::DurationRole:
        pass(MediaListModel::TitleRole, Qt::AscendingOrder);
        pass(MediaListModel::DurationRole, order);
        break;
    default:
        pass(MediaListModel::TitleRole, order);
        break;
    }
}

// By its text: an expression object would bring its own case rule along.
void Facade::filterMediaList(const QString& filter) {
    m_mediaProxy->setFilterRegularExpression(filter);
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

} // namespace orvex
