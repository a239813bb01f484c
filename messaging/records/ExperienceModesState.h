#pragma once

#include <QList>
#include <QString>

namespace orvex {

/// The experience modes a unit offers, and the one it is in.
struct ExperienceModesState {
    QList<int> modeIds; ///< ascending
    int selectedModeId = 0;
    QString state = QStringLiteral("On"); ///< "Transitioning" while the unit changes over
    int status = 0;                       ///< error code, 0 for none
    QString statusMessage = QStringLiteral("Ok");

    bool operator==(const ExperienceModesState& other) const {
        return modeIds == other.modeIds && selectedModeId == other.selectedModeId && state == other.state &&
               status == other.status && statusMessage == other.statusMessage;
    }
};

} // namespace orvex
