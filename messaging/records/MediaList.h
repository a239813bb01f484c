#pragma once

#include <QMetaType>
#include <QSharedPointer>
#include <QString>
#include <QVector>

namespace orvex {

/// One coded title of the unit's library; all values are the unit's own text.
struct MediaEntry {
    QString title;
    QString cut;
    QString language;
    QString releaseDate;
    QString imdbRef;
    QString duration;
    QString trackReleaseDate;

    bool operator==(const MediaEntry& other) const;
};

struct MediaList {
    QVector<MediaEntry> media;

    bool operator==(const MediaList& other) const { return media == other.media; }
};

} // namespace orvex

Q_DECLARE_TYPEINFO(orvex::MediaEntry, Q_MOVABLE_TYPE);
Q_DECLARE_METATYPE(QSharedPointer<orvex::MediaList>)
