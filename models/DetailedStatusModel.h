#pragma once

#include "models/DetailedStatusRows.h"
#include "models/RowListModel.h"

#include <memory>

namespace orvex {

class DeviceInfo;
class DeviceInfoManager;

/// The state of all modules of the selected unit, flattened and filtered. GUI thread.
class DetailedStatusModel : public RowListModel<DetailedStatusRow> {
    Q_OBJECT
    Q_PROPERTY(bool hasFaults READ hasFaults NOTIFY hasFaultsChanged)

public:
    using Filter = DetailedStatusFilter;

    enum Role {
        LevelRole = Qt::UserRole,
        NameRole,
        ValueRole,
        StatusRole,
    };

    /// Takes the manager whose selected unit is shown. Once.
    void setDeviceInfoManager(std::shared_ptr<DeviceInfoManager> manager);

    /// `filter` is a value of `Filter`; any other shows everything.
    void setFilter(unsigned filter);

    /// Whether one of the rows tells of a fault.
    bool hasFaults() const { return m_hasFaults; }

    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

public slots:
    void onDeviceInfoUpdated();

signals:
    void hasFaultsChanged();

private:
    /// Whether all rows are new, or those that stay are kept.
    enum class Change { Reset, Update };
    void rebuild(Change change);

    std::shared_ptr<DeviceInfoManager> m_manager;
    std::shared_ptr<DeviceInfo> m_unit;
    Filter m_filter = Filter::FaultsOnly;
    bool m_hasFaults = false;
};

} // namespace orvex
