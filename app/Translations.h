#pragma once

#include <QStringList>

class QCoreApplication;

namespace orvex {

/// Installs the texts of the first of `languages` (BCP 47 names, most wanted first) that the program speaks,
/// and Qt's own where the system has them. Nothing is installed for English, which the texts are written in,
/// nor when no language fits. Returns the name of the language, "en" then. The translators live as long as
/// `application`. GUI thread, before the first text is shown.
QString installTranslations(QCoreApplication& application, const QStringList& languages);

} // namespace orvex
