#pragma once

#include "messaging/records/SeatInfo.h"

#include <QAbstractListModel>

#include <memory>

namespace orvex {

class DeviceInfo;
class DeviceInfoManager;

/// The seats of the selected unit, whose settings can be changed in place. GUI thread.
class SeatListModel : public QAbstractListModel {
    Q_OBJECT

public:
    enum Role {
        StatusTypeRole = Qt::UserRole,
        StatusTextRole,
        IndexRole,
        ActiveRole,
        MutedRole,
        ControlsLockedRole,
        MotionRole,
        VibrationRole,
    };

    /// Takes the manager whose selected unit is shown. Once.
    void setDeviceInfoManager(std::shared_ptr<DeviceInfoManager> manager);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    /// Changes "muted", "controlsLocked", "motion" or "vibration" of a seat and sends it to the unit. While
    /// the two levels are chained, the other one moves along. False when nothing changes.
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

public slots:
    void onDeviceInfoUpdated();

private:
    void showOther(SeatStatusList seats);
    void keepPendingEdits(SeatStatusList& seats) const;
    void update(SeatStatusList seats);

    std::shared_ptr<DeviceInfoManager> m_manager;
    std::shared_ptr<DeviceInfo> m_unit;
    SeatStatusList m_seats; ///< the unit's own records; one that was handed on is never written
    int m_rowCount = 0;     ///< what the views have been told
};

} // namespace orvex
