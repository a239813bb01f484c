#include "app/RendererChoice.h"

#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QQuickWindow>
#include <QSGRendererInterface>

namespace orvex {

namespace {

bool isOpenGlUsable() {
    QOpenGLContext context;
    if (!context.create()) {
        return false;
    }
    QOffscreenSurface surface;
    surface.setFormat(context.format());
    surface.create();
    if (!surface.isValid() || !context.makeCurrent(&surface)) {
        return false;
    }
    // A system without a graphics driver offers a version 1 that Qt Quick cannot draw with.
    const bool recent = context.isOpenGLES() || context.format().version() >= qMakePair(2, 0);
    context.doneCurrent();
    return recent;
}

} // namespace

void chooseRenderer() {
    if (qEnvironmentVariableIsSet("QT_QUICK_BACKEND") || qEnvironmentVariableIsSet("QMLSCENE_DEVICE")) {
        return;
    }
    if (!isOpenGlUsable()) {
        QQuickWindow::setSceneGraphBackend(QSGRendererInterface::Software);
    }
}

} // namespace orvex
