#pragma once

#include "messaging/records/DetailedStatusInfo.h"

#include <QString>
#include <QVector>

namespace orvex {

/// One line of the tree of modules as it is shown.
struct DetailedStatusRow {
    enum Status : int { None = 0, Ok = 1, InTransition = 2, Fault = 3 };

    unsigned level = 0; ///< depth in the tree, 0 for the outermost modules
    QString name;
    QString value;
    int status = None;
    bool hasFault = false; ///< a field of this very module reports a fault

    bool operator==(const DetailedStatusRow& other) const {
        return level == other.level && name == other.name && value == other.value && status == other.status &&
               hasFault == other.hasFault;
    }
};

/// Which of the rows are shown.
enum class DetailedStatusFilter : unsigned {
    FullStatus = 0,
    FaultsOnly = 1,
    FaultsWithSiblings = 2,
    TopologyOutline = 3,
    TopologyDetails = 4,
};

/// Turns the tree into indented rows.
QVector<DetailedStatusRow> flatten(const DetailedStatusInfo& info, DetailedStatusFilter filter);

} // namespace orvex

Q_DECLARE_TYPEINFO(orvex::DetailedStatusRow, Q_MOVABLE_TYPE);
