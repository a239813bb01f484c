#include "app/Translations.h"

#include <QCoreApplication>
#include <QFile>
#include <QLibraryInfo>
#include <QRegularExpression>
#include <QTranslator>

#include <memory>

// The macro declares a function of the enclosing namespace, so it must stand outside every one.
static void initialiseTranslationResources() {
    Q_INIT_RESOURCE(translations);
}

namespace orvex {

namespace {

constexpr auto sourceLanguage = "en";

QString fileOf(const QString& language) {
    return QStringLiteral(":/translations/quivera_%1.qm").arg(language);
}

/// "de" for "de-AT": the program's texts do not differ between regions.
QString languageOf(const QString& name) {
    return name.left(name.indexOf(QRegularExpression(QStringLiteral("[-_]")))).toLower();
}

QString firstSpoken(const QStringList& names) {
    for (const QString& name : names) {
        QString language = languageOf(name);
        if (language == QLatin1String(sourceLanguage) || QFile::exists(fileOf(language))) {
            return language;
        }
    }
    return QString::fromLatin1(sourceLanguage);
}

bool install(QCoreApplication& application, const QString& file, const QString& folder = {}) {
    auto translator = std::make_unique<QTranslator>();
    if (!translator->load(file, folder)) {
        return false;
    }
    translator->setParent(&application);
    return QCoreApplication::installTranslator(translator.release());
}

} // namespace

QString installTranslations(QCoreApplication& application, const QStringList& languages) {
    initialiseTranslationResources();
    QString language = firstSpoken(languages);
    if (language == QLatin1String(sourceLanguage)) {
        return language;
    }
    install(application, QStringLiteral("qtbase_") + language,
            QLibraryInfo::location(QLibraryInfo::TranslationsPath));
    if (!install(application, fileOf(language))) {
        qWarning("The texts of the language %s cannot be loaded", qUtf8Printable(language));
        return QString::fromLatin1(sourceLanguage);
    }
    return language;
}

} // namespace orvex
