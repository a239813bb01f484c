#pragma once

#include <QMetaType>
#include <QSharedPointer>
#include <QString>

namespace orvex {

/// The profile that the adaptive gaming mode plays by.
struct AdaptiveGamingSelectedProfile {
    QString id;
    QString name;
    int type = 0;
    int version = 0;

    bool operator==(const AdaptiveGamingSelectedProfile& other) const {
        return id == other.id && name == other.name && type == other.type && version == other.version;
    }
};

} // namespace orvex

Q_DECLARE_METATYPE(QSharedPointer<orvex::AdaptiveGamingSelectedProfile>)
