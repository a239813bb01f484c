#pragma once

#include "messaging/records/MediaList.h"
#include "models/RowListModel.h"

#include <memory>

namespace orvex {

class DeviceInfo;
class DeviceInfoManager;

/// The coded titles of the selected unit. GUI thread.
class MediaListModel : public RowListModel<MediaEntry> {
    Q_OBJECT

public:
    enum Role {
        TitleRole = Qt::UserRole,
        CutRole,
        LanguageRole,
        ReleaseDateRole,
        ImdbRefRole,
        DurationRole,
        QuiveraCodeDateRole,
    };

    /// Takes the manager whose selected unit is shown. Once.
    void setDeviceInfoManager(std::shared_ptr<DeviceInfoManager> manager);

    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

public slots:
    void onDeviceInfoUpdated();

private:
    std::shared_ptr<DeviceInfoManager> m_manager;
    std::shared_ptr<DeviceInfo> m_unit;
};

} // namespace orvex
