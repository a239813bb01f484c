#include "app/CompanionSettings.h"

#include <QSettings>

namespace orvex {

QString companionPath(const QString& valueName) {
    const QSettings settings(QStringLiteral("HKEY_LOCAL_MACHINE\\SOFTWARE\\Orvex"), QSettings::NativeFormat);
    return settings.value(valueName).toString();
}

} // namespace orvex
