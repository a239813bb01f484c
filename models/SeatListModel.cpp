#include "models/SeatListModel.h"

#include "device/DeviceInfo.h"
#include "device/DeviceInfoManager.h"

#include <algorithm>
#include <utility>

namespace orvex {

namespace {

// The bounds of a level that moves along with the other, in the unit's own steps.
constexpr double lowestLevel = -20.0;
constexpr double highestLevel = 0.0;

/// Changes a flag; tells whether it did.
bool changeFlag(bool& flag, const QVariant& value) {
    const bool former = std::exchange(flag, value.toBool());
    return former != flag;
}

struct Level {
    double SeatInfo::*field;
    int role;
};

constexpr Level motion{&SeatInfo::motion, SeatListModel::MotionRole};
constexpr Level vibration{&SeatInfo::vibration, SeatListModel::VibrationRole};

/// Changes a level, and the other one with it while they are chained; tells the roles that changed.
QVector<int> changeLevel(SeatInfo& seat, const Level& changed, const Level& partner, const QVariant& value) {
    bool isNumber = false;
    const double level = value.toDouble(&isNumber);
    const double former = seat.*changed.field;
    if (!isNumber || !qIsFinite(level) || level == former) {
        return {};
    }
    seat.*changed.field = level;
    if (!seat.chained) {
        return {changed.role};
    }
    seat.*partner.field = std::clamp(seat.*partner.field - former + level, lowestLevel, highestLevel);
    return {partner.role, changed.role};
}

QVector<int> edit(SeatInfo& seat, const QVariant& value, int role) {
    switch (role) {
    case SeatListModel::MutedRole:
        return changeFlag(seat.muted, value) ? QVector<int>{role} : QVector<int>();
    case SeatListModel::ControlsLockedRole:
        return changeFlag(seat.chained, value) ? QVector<int>{role} : QVector<int>();
    case SeatListModel::MotionRole:
        return changeLevel(seat, motion, vibration, value);
    case SeatListModel::VibrationRole:
        return changeLevel(seat, vibration, motion, value);
    default:
        return {};
    }
}

} // namespace

void SeatListModel::setDeviceInfoManager(std::shared_ptr<DeviceInfoManager> manager) {
    m_manager = std::move(manager);
    connect(m_manager.get(), &DeviceInfoManager::selectedDeviceUpdated, this,
            &SeatListModel::onDeviceInfoUpdated);
}

int SeatListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_rowCount;
}

QVariant SeatListModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= m_rowCount) {
        return {};
    }
    const SeatInfo& seat = *m_seats[static_cast<std::size_t>(index.row())];
    switch (role) {
    case StatusTypeRole:
        return seat.statusType();
    case StatusTextRole:
        return seat.displayText();
    case IndexRole:
        return seat.index;
    case ActiveRole:
        return seat.hasIndex;
    case MutedRole:
        return seat.muted;
    case ControlsLockedRole:
        return seat.chained;
    case MotionRole:
        return seat.motion;
    case VibrationRole:
        return seat.vibration;
    default:
        return {};
    }
}

QHash<int, QByteArray> SeatListModel::roleNames() const {
    return {{StatusTypeRole, "statusType"}, {StatusTextRole, "statusText"},
            {IndexRole, "index"},           {ActiveRole, "active"},
            {MutedRole, "muted"},           {ControlsLockedRole, "controlsLocked"},
            {MotionRole, "motion"},         {VibrationRole, "vibration"}};
}

Qt::ItemFlags SeatListModel::flags(const QModelIndex& index) const {
    const Qt::ItemFlags base = QAbstractListModel::flags(index);
    return index.isValid() ? base | Qt::ItemIsEditable : base; // the root is no item
}

bool SeatListModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (!index.isValid() || index.row() >= m_rowCount) {
        return false;
    }
    auto& row = m_seats[static_cast<std::size_t>(index.row())];
    auto edited = std::make_shared<SeatInfo>(*row);
    const QVector<int> roles = edit(*edited, value, role);
    if (roles.isEmpty()) {
        return false;
    }
    m_unit->replaceSeat(row, edited);
    row = edited;
    m_manager->setSeatSetting(edited);
    emit dataChanged(index, index, roles);
    return true;
}

void SeatListModel::onDeviceInfoUpdated() {
    const auto unit = m_manager->selectedDevice();
    const bool isOther = unit != m_unit;
    if (!isOther && (!unit || !unit->changedFields().test(DeviceField::Seats))) {
        return;
    }
    m_unit = unit;
    SeatStatusList seats = unit ? unit->seats() : SeatStatusList();
    if (isOther) {
        showOther(std::move(seats));
    } else {
        update(std::move(seats));
    }
}

void SeatListModel::showOther(SeatStatusList seats) {
    if (m_rowCount > 0) {
        beginRemoveRows({}, 0, m_rowCount - 1);
        m_seats.clear();
        m_rowCount = 0;
        endRemoveRows();
    }
    update(std::move(seats));
}

/// What the user has set and the unit has not heard yet stays: an answer that was on its way knows nothing of
/// it, and the next edit must not start from it.
void SeatListModel::keepPendingEdits(SeatStatusList& seats) const {
    const std::size_t common = std::min(seats.size(), m_seats.size());
    for (std::size_t row = 0; row < common; ++row) {
        const SeatInfo& edited = *m_seats[row];
        if (edited.index != seats[row]->index || !m_manager->isSeatSettingPending(edited.index)) {
            continue;
        }
        auto kept = std::make_shared<SeatInfo>(*seats[row]);
        kept->muted = edited.muted;
        kept->chained = edited.chained;
        kept->motion = edited.motion;
        kept->vibration = edited.vibration;
        m_unit->replaceSeat(seats[row], kept);
        seats[row] = std::move(kept);
    }
}

void SeatListModel::update(SeatStatusList seats) {
    keepPendingEdits(seats);
    const int count = static_cast<int>(seats.size());
    const SeatStatusList former = m_seats;
    const int common = std::min(count, m_rowCount);
    // A record that only repeats what is shown takes the row silently: the unit's record is the one to edit.
    std::copy(seats.begin(), seats.begin() + common, m_seats.begin());
    for (int row = 0; row < common; ++row) {
        const auto position = static_cast<std::size_t>(row);
        if (!(*m_seats[position] == *former[position])) {
            emit dataChanged(index(row), index(row));
        }
    }
    if (count < m_rowCount) {
        beginRemoveRows({}, count, m_rowCount - 1);
        m_rowCount = count;
        m_seats = std::move(seats);
        endRemoveRows();
        return;
    }
    m_seats = std::move(seats);
    if (m_rowCount < count) {
        beginInsertRows({}, m_rowCount, count - 1);
        m_rowCount = count;
        endInsertRows();
    }
}

} // namespace orvex
