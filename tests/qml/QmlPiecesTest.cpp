#include "qml/UserInterface.h"

#include <QQuickStyle>
#include <QtQuickTest>

/// What start-up does before the first document is loaded.
class Setup : public QObject {
    Q_OBJECT

public slots:
    void applicationAvailable() {
        QQuickStyle::setStyle(QStringLiteral("Material"));
        orvex::prepareUserInterface();
    }
};

QUICK_TEST_MAIN_WITH_SETUP(qml, Setup)

#include "QmlPiecesTest.moc"
