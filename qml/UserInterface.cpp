#include "qml/UserInterface.h"

#include <QFont>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QtGlobal>

// The macro declares a function of the enclosing namespace, so it must stand outside every one.
static void initialiseResources() {
    Q_INIT_RESOURCE(qml);
    Q_INIT_RESOURCE(assets);
}

namespace orvex {

void prepareUserInterface() {
    initialiseResources();
    for (const char* file : {":/qml/fonts/Roboto-Regular.ttf", ":/qml/fonts/Roboto-Medium.ttf"}) {
        if (QFontDatabase::addApplicationFont(QLatin1String(file)) < 0) {
            qWarning("The font %s cannot be loaded, the system's own is used", file);
            return;
        }
    }
    QGuiApplication::setFont(QFont(QStringLiteral("Roboto")));
}

} // namespace orvex
