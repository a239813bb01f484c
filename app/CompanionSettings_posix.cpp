#include "app/CompanionSettings.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QStringList>

namespace orvex {

namespace {

QStringList configFolders() {
    const QStringList named =
        qEnvironmentVariable("XDG_CONFIG_DIRS").split(QLatin1Char(':'), Qt::SkipEmptyParts);
    return named.isEmpty() ? QStringList{QStringLiteral("/etc/xdg")} : named;
}

/// Empty when there is none.
QString settingsFile() {
    for (const QString& folder : configFolders()) {
        // A relative folder in this variable counts as not set, by the convention that defines it.
        QString file = folder + QStringLiteral("/Orvex.conf");
        if (QDir::isAbsolutePath(folder) && QFileInfo(file).isFile()) {
            return file;
        }
    }
    return {};
}

} // namespace

QString companionPath(const QString& valueName) {
    const QString file = settingsFile();
    if (file.isEmpty()) {
        return {};
    }
    QSettings settings(file, QSettings::IniFormat);
    settings.setIniCodec("UTF-8");
    return settings.value(valueName).toString();
}

} // namespace orvex
