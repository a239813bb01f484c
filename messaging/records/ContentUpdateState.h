#pragma once

#include <QCoreApplication>
#include <QMetaType>
#include <QSharedPointer>
#include <QString>

namespace orvex {

/// How far the unit is with renewing its library of coded titles.
struct ContentUpdateState {
    Q_DECLARE_TR_FUNCTIONS(ContentUpdateState)

public:
    int stateId = 10; ///< 10: nothing under way
    QString stateName;
    QString code = QStringLiteral("0");
    QString message;
    int progressType = 0;  ///< 1: `progressValue` is a percentage
    QString progressValue; ///< "0": under way, no figure yet
    QString updatedTimestamp;

    /// What the unit is doing, translated, with its progress; empty when it does nothing.
    QString stateText() const;

    /// "Code: 12", translated; empty for code 0.
    QString codeText() const;

    bool operator==(const ContentUpdateState& other) const;
};

} // namespace orvex

Q_DECLARE_METATYPE(QSharedPointer<orvex::ContentUpdateState>)
