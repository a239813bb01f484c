#pragma once

#include <QCoreApplication>
#include <QString>

#include <memory>
#include <vector>

namespace orvex {

/// One seat of a unit: its settings and its state.
struct SeatInfo {
    Q_DECLARE_TR_FUNCTIONS(SeatInfo)

public:
    int index = 0;
    bool hasIndex = false; ///< the unit told the index
    bool muted = false;
    bool chained = false;
    double motion = 0;    ///< level in the unit's own steps, a whole number
    double vibration = 0; ///< as `motion`
    QString statusCode = QStringLiteral("0");
    QString statusText = QStringLiteral("OK");

    /// What to tell the user, translated.
    QString displayText() const;

    /// Scale of the services: 3 good, 2 in progress, 1 fault.
    int statusType() const;

    bool operator==(const SeatInfo& other) const;

private:
    int statusNumber() const;
};

/// Sorted by index; seats of equal index in the order of their arrival.
using SeatStatusList = std::vector<std::shared_ptr<SeatInfo>>;

} // namespace orvex
