// What the program's start is measured against: the same toolkit and style, a window of the same size,
// nothing in it.
#include <QApplication>
#include <QQmlApplicationEngine>
#include <QQuickStyle>

int main(int argc, char** argv) {
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling, true);
    const QApplication application(argc, argv);
    QQuickStyle::setStyle(QStringLiteral("Material"));
    const QQmlApplicationEngine engine(QUrl(QStringLiteral("qrc:/EmptyWindow.qml")));
    return engine.rootObjects().isEmpty() ? -1 : QApplication::exec();
}
