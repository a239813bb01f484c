#pragma once

#include <QMetaType>
#include <QSharedPointer>
#include <QString>
#include <QVector>

namespace orvex {

/// One program of the maker's that reports to the unit.
struct SoftwareHealthEntry {
    QString name;
    int status = 0;
    QString statusMessage;
    QString timestamp; ///< as the unit writes it
    QString userName;

    bool operator==(const SoftwareHealthEntry& other) const;
};

/// Whether the programs around the unit are well.
struct SoftwareHealthStatus {
    int overallState = -1;
    QString currentUserName;
    QVector<SoftwareHealthEntry> entries;

    bool operator==(const SoftwareHealthStatus& other) const;
};

} // namespace orvex

Q_DECLARE_METATYPE(QSharedPointer<orvex::SoftwareHealthStatus>)
