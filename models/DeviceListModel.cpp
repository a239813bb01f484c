#include "models/DeviceListModel.h"

#include "device/DeviceInfo.h"
#include "device/DeviceInfoManager.h"

#include <utility>

namespace orvex {

namespace {

/// The automatic selection is decided with this update and never again.
constexpr int decidingUpdate = 2;

struct RoleEntry {
    int role;
    const char* name;
    QVariant (*value)(const DeviceInfo& unit);
};

bool isHotspotActive(const DeviceInfo& unit) {
    const auto status = unit.networkStatus();
    return status && status->hotspotActive;
}

QString networkText(const DeviceInfo& unit) {
    const auto status = unit.networkStatus();
    return (status ? *status : NetworkStatus{}).toString();
}

const RoleEntry roleEntries[] = {
    {DeviceListModel::NameRole, "name", [](const DeviceInfo& u) -> QVariant { return u.name(); }},
    {DeviceListModel::ProductNameRole, "productName",
     [](const DeviceInfo& u) -> QVariant { return u.productName(); }},
    {DeviceListModel::SerialRole, "serial", [](const DeviceInfo& u) -> QVariant { return u.serial(); }},
    {DeviceListModel::UidRole, "uid", [](const DeviceInfo& u) -> QVariant { return u.uid(); }},
    {DeviceListModel::AddressRole, "address", [](const DeviceInfo& u) -> QVariant { return u.address(); }},
    {DeviceListModel::LocalAddressRole, "localAddress",
     [](const DeviceInfo& u) -> QVariant { return u.isLocalAddress(); }},
    {DeviceListModel::PortRole, "port", [](const DeviceInfo& u) -> QVariant { return int{u.port()}; }},
    {DeviceListModel::EncryptedRole, "encrypted",
     [](const DeviceInfo& u) -> QVariant { return u.isEncrypted(); }},
    {DeviceListModel::ContentUpdateStateTextRole, "contentUpdateStateText",
     [](const DeviceInfo& u) -> QVariant { return u.contentUpdateState().stateText(); }},
    {DeviceListModel::ContentUpdateState2ndTextRole, "contentUpdateState2ndText",
     [](const DeviceInfo& u) -> QVariant { return u.contentUpdateState().codeText(); }},
    {DeviceListModel::NetStatusRole, "netStatus",
     [](const DeviceInfo& u) -> QVariant { return networkText(u); }},
    {DeviceListModel::HotspotActiveRole, "hotspotActive",
     [](const DeviceInfo& u) -> QVariant { return isHotspotActive(u); }},
};

} // namespace

void DeviceListModel::setDeviceInfoManager(std::shared_ptr<DeviceInfoManager> manager) {
    beginResetModel();
    m_manager = std::move(manager);
    m_rowCount = m_manager->deviceCount();
    endResetModel();
    connect(m_manager.get(), &DeviceInfoManager::itemsAdded, this, &DeviceListModel::onItemsAdded);
    connect(m_manager.get(), &DeviceInfoManager::itemUpdated, this, &DeviceListModel::onItemUpdated);
    connect(m_manager.get(), &DeviceInfoManager::itemsRemoved, this, &DeviceListModel::onItemsRemoved);
}

int DeviceListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_rowCount;
}

QVariant DeviceListModel::data(const QModelIndex& index, int role) const {
    if (!m_manager || !index.isValid() || index.column() != 0) {
        return {};
    }
    const auto unit = m_manager->deviceAt(index.row());
    if (!unit) {
        return {};
    }
    for (const RoleEntry& entry : roleEntries) {
        if (entry.role == role) {
            return entry.value(*unit);
        }
    }
    return {};
}

QHash<int, QByteArray> DeviceListModel::roleNames() const {
    QHash<int, QByteArray> names;
    for (const RoleEntry& entry : roleEntries) {
        names.insert(entry.role, entry.name);
    }
    return names;
}

void DeviceListModel::onItemsAdded(int firstRow, int lastRow) {
    beginInsertRows({}, firstRow, lastRow);
    m_rowCount += lastRow - firstRow + 1;
    endInsertRows();
}

void DeviceListModel::onItemsRemoved(int firstRow, int lastRow) {
    beginRemoveRows({}, firstRow, lastRow);
    m_rowCount -= lastRow - firstRow + 1;
    endRemoveRows();
}

void DeviceListModel::onItemUpdated(int row) {
    if (m_updates < decidingUpdate) {
        ++m_updates;
        if (m_updates == decidingUpdate && shallSelectAutomatically(row)) {
            emit automaticDeviceSelect();
        }
    }
    emit dataChanged(index(row), index(row));
}

bool DeviceListModel::shallSelectAutomatically(int row) const {
    if (m_manager->deviceCount() != 1) {
        return false;
    }
    const auto unit = m_manager->deviceAt(row);
    return unit && !isHotspotActive(*unit);
}

} // namespace orvex
