#pragma once

#include <QString>

namespace orvex {

/// A program of the same maker that is installed beside this one. Its place is looked up anew each time: it
/// may be installed or removed while this program runs. Any thread.
class CompanionProgram {
public:
    /// `valueName` as for `companionPath`.
    explicit CompanionProgram(QString valueName);

    /// Its recorded path is an existing regular file.
    bool isInstalled() const;

    /// Starts it on its own, without arguments; false when it is not installed or cannot be started.
    bool start() const;

private:
    QString m_valueName;
};

} // namespace orvex
