#include "models/MediaListModel.h"

#include "device/DeviceInfo.h"
#include "device/DeviceInfoManager.h"

namespace orvex {

namespace {

struct RoleEntry {
    int role;
    const char* name;
    QString MediaEntry::*field;
};

constexpr RoleEntry roleEntries[] = {
    {MediaListModel::TitleRole, "title", &MediaEntry::title},
    {MediaListModel::CutRole, "cut", &MediaEntry::cut},
    {MediaListModel::LanguageRole, "language", &MediaEntry::language},
    {MediaListModel::ReleaseDateRole, "releaseDate", &MediaEntry::releaseDate},
    {MediaListModel::ImdbRefRole, "imdbRef", &MediaEntry::imdbRef},
    {MediaListModel::DurationRole, "duration", &MediaEntry::duration},
    {MediaListModel::QuiveraCodeDateRole, "quiveraCodeDate", &MediaEntry::trackReleaseDate},
};

} // namespace

void MediaListModel::setDeviceInfoManager(std::shared_ptr<DeviceInfoManager> manager) {
    m_manager = std::move(manager);
    connect(m_manager.get(), &DeviceInfoManager::selectedDeviceUpdated, this,
            &MediaListModel::onDeviceInfoUpdated);
}

QVariant MediaListModel::data(const QModelIndex& index, int role) const {
    const MediaEntry* entry = rowAt(index);
    if (!entry) {
        return {};
    }
    for (const RoleEntry& known : roleEntries) {
        if (known.role == role) {
            return entry->*known.field;
        }
    }
    return {};
}

QHash<int, QByteArray> MediaListModel::roleNames() const {
    QHash<int, QByteArray> names;
    for (const RoleEntry& entry : roleEntries) {
        names.insert(entry.role, entry.name);
    }
    return names;
}

void MediaListModel::onDeviceInfoUpdated() {
    const auto unit = m_manager->selectedDevice();
    const bool isOther = unit != m_unit;
    if (!isOther && (!unit || !unit->changedFields().test(DeviceField::MediaList))) {
        return;
    }
    m_unit = unit;
    const auto list = unit ? unit->mediaList() : nullptr;
    QVector<MediaEntry> rows = list ? list->media : QVector<MediaEntry>();
    if (isOther) {
        resetRows(std::move(rows));
    } else {
        updateRows(std::move(rows));
    }
}

} // namespace orvex
