#pragma once

#include "messaging/records/ContentEquals.h"

#include <QMetaType>
#include <QSharedPointer>
#include <QString>

#include <memory>
#include <utility>
#include <vector>

namespace orvex {

/// One measured or reported value of a module.
struct StatusField {
    int id = 0;
    QString name;
    QString value;
    QString unit;
    QString description;
    QString type;
    int category = 0;

    bool operator==(const StatusField& other) const;
};

/// A node of the tree of modules that a unit reports.
struct ModuleInfo {
    QString name;
    std::vector<std::pair<QString, QString>> properties; ///< key and displayed text, in the unit's order
    std::vector<StatusField> fields;
    std::vector<std::shared_ptr<ModuleInfo>> subModules;

    bool operator==(const ModuleInfo& other) const;
};

/// Everything a unit says of the state of its modules.
struct DetailedStatusInfo {
    std::vector<std::shared_ptr<ModuleInfo>> modules;

    bool operator==(const DetailedStatusInfo& other) const { return contentEquals(modules, other.modules); }
};

} // namespace orvex

Q_DECLARE_METATYPE(QSharedPointer<orvex::DetailedStatusInfo>)
