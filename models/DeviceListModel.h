#pragma once

#include <QAbstractListModel>

#include <memory>

namespace orvex {

class DeviceInfo;
class DeviceInfoManager;

/// The list of units: one row for each unit the manager knows, in its order, read from it without a copy. GUI
/// thread.
class DeviceListModel : public QAbstractListModel {
    Q_OBJECT

public:
    enum Role {
        NameRole = Qt::UserRole,
        ProductNameRole,
        SerialRole,
        UidRole,
        AddressRole,
        LocalAddressRole,
        PortRole,
        EncryptedRole,
        ContentUpdateStateTextRole = Qt::UserRole + 11,
        ContentUpdateState2ndTextRole,
        NetStatusRole,
        HotspotActiveRole,
    };

    DeviceListModel() = default;

    /// Takes the manager whose list is shown. Once.
    void setDeviceInfoManager(std::shared_ptr<DeviceInfoManager> manager);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

public slots:
    void onItemsAdded(int firstRow, int lastRow);
    void onItemUpdated(int row);
    void onItemsRemoved(int firstRow, int lastRow);

signals:
    /// The only unit there is may be opened without being asked for. At most once per run.
    void automaticDeviceSelect();

private:
    bool shallSelectAutomatically(int row) const;

    std::shared_ptr<DeviceInfoManager> m_manager;
    int m_rowCount =
        0; ///< what the views have been told; the manager is already ahead when it reports a change
    int m_updates = 0;
};

} // namespace orvex
