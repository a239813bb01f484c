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

    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

public slots:
    void onDeviceInfoUpdated();

private:
    QVector<DetailedStatusRow> buildRows() const;

    std::shared_ptr<DeviceInfoManager> m_manager;
    std::shared_ptr<DeviceInfo> m_unit;
    Filter m_filter = Filter::FaultsOnly;
};

} // namespace orvex
