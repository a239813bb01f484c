#pragma once

#include <QMessageLogContext>
#include <QString>
#include <QtGlobal>

namespace orvex {

/// Routes Qt's own messages, QML's console lines among them, into the program's log and then to the handler
/// that was installed before. Debug messages are handed on but not logged. Any thread; does without a logger
/// that does not exist yet, or any more.
void appLoggerHandler(QtMsgType type, const QMessageLogContext& context, const QString& message);

/// Installs it and keeps the handler installed before. Main thread, once logging is configured.
void installAppLoggerHandler();

} // namespace orvex
