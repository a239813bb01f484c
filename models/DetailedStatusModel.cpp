#include "models/DetailedStatusModel.h"

#include "device/DeviceInfo.h"
#include "device/DeviceInfoManager.h"

#include <algorithm>
#include <utility>

namespace orvex {

void DetailedStatusModel::setDeviceInfoManager(std::shared_ptr<DeviceInfoManager> manager) {
    m_manager = std::move(manager);
    connect(m_manager.get(), &DeviceInfoManager::selectedDeviceUpdated, this,
            &DetailedStatusModel::onDeviceInfoUpdated);
}

void DetailedStatusModel::setFilter(unsigned filter) {
    const auto wanted = static_cast<Filter>(filter);
    if (wanted == m_filter) {
        return;
    }
    m_filter = wanted;
    rebuild(Change::Reset);
}

QVariant DetailedStatusModel::data(const QModelIndex& index, int role) const {
    const DetailedStatusRow* row = rowAt(index);
    if (!row) {
        return {};
    }
    switch (role) {
    case LevelRole:
        return row->level;
    case NameRole:
        return row->name;
    case ValueRole:
        return row->value;
    case StatusRole:
        return row->status;
    default:
        return {};
    }
}

QHash<int, QByteArray> DetailedStatusModel::roleNames() const {
    return {{LevelRole, "level"}, {NameRole, "name"}, {ValueRole, "value"}, {StatusRole, "status"}};
}

void DetailedStatusModel::onDeviceInfoUpdated() {
    const auto unit = m_manager->selectedDevice();
    const bool isOther = unit != m_unit;
    if (!isOther && (!unit || !unit->changedFields().test(DeviceField::DetailedStatus))) {
        return;
    }
    m_unit = unit;
    rebuild(isOther ? Change::Reset : Change::Update);
}

void DetailedStatusModel::rebuild(Change change) {
    const auto info = m_unit ? m_unit->detailedStatusInfo() : nullptr;
    auto rows = info ? flatten(*info, m_filter) : QVector<DetailedStatusRow>();
    const bool hasFaults = std::any_of(rows.cbegin(), rows.cend(), [](const DetailedStatusRow& row) {
        return row.status == DetailedStatusRow::Fault;
    });
    if (change == Change::Reset) {
        resetRows(std::move(rows));
    } else {
        updateRows(std::move(rows));
    }
    if (std::exchange(m_hasFaults, hasFaults) != hasFaults) {
        emit hasFaultsChanged();
    }
}

} // namespace orvex
