#include <QDir>
#include <QFile>
#include <QMap>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

namespace orvex {
namespace {

/// What must be alike in a text and its translation.
struct Form {
    QStringList places; ///< "%1", sorted
    int lines = 0;
    QString ending; ///< the kind of mark it ends with
};

QString endingOf(QString text) {
    text = text.trimmed();
    text.replace(QStringLiteral("..."), QStringLiteral("…")).replace(QChar(u'\u3002'), QLatin1Char('.'));
    text.replace(QChar(u'\uFF1A'), QLatin1Char(':'));
    // A quotation's end does not hide the sentence's.
    text.remove(QRegularExpression(QStringLiteral("[»”“」\"]+(?=[.…:]$)")));
    return text.isEmpty() || !QStringLiteral(".:…").contains(text.back()) ? QString() : text.right(1);
}

Form formOf(const QString& text) {
    Form form;
    auto places = QRegularExpression(QStringLiteral("%(n|\\d)")).globalMatch(text);
    while (places.hasNext()) {
        form.places << places.next().captured();
    }
    form.places.sort();
    form.lines = text.count(QLatin1Char('\n'));
    form.ending = endingOf(text);
    return form;
}

QString faultOf(const QString& text, const QString& translation, const QString& state) {
    if (state == QLatin1String("unfinished")) {
        return QStringLiteral("is not translated");
    }
    if (!state.isEmpty()) {
        return QStringLiteral("is no longer in the program");
    }
    if (translation.trimmed().isEmpty()) {
        return QStringLiteral("has an empty translation");
    }
    const Form wanted = formOf(text);
    const Form found = formOf(translation);
    if (wanted.places != found.places) {
        return QStringLiteral("has other places for values");
    }
    if (wanted.lines != found.lines) {
        return QStringLiteral("has another number of lines");
    }
    return wanted.ending == found.ending ? QString() : QStringLiteral("ends with another mark");
}

/// What is wrong with a file, a line each.
QStringList faultsOf(const QString& path, int& texts) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return {path + QStringLiteral(" cannot be read")};
    }
    QXmlStreamReader xml(&file);
    QStringList faults;
    QString text;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        if (xml.name() == QLatin1String("source")) {
            text = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation")) {
            ++texts;
            const QString state = xml.attributes().value(QLatin1String("type")).toString();
            const QString translation = xml.readElementText(QXmlStreamReader::IncludeChildElements);
            const QString fault = faultOf(text, translation, state);
            if (!fault.isEmpty()) {
                faults << QStringLiteral("\"%1\" %2").arg(text, fault);
            }
        }
    }
    return xml.hasError() ? faults << xml.errorString() : faults;
}

TEST(TranslationFiles, HaveEveryTextOfTheProgramWithItsPlacesLinesAndFinalMark) {
    const QDir files(QStringLiteral(TRANSLATION_FILES));
    const QTemporaryDir folder;
    QStringList copies;
    for (const QString& name : files.entryList({QStringLiteral("*.ts")})) {
        copies << folder.filePath(name);
        ASSERT_TRUE(QFile::copy(files.filePath(name), copies.last()));
    }
    ASSERT_EQ(copies.size(), 4);

    QProcess update;
    update.setWorkingDirectory(files.filePath(QStringLiteral("..")));
    update.start(QStringLiteral(LUPDATE), QStringList{"-silent", "-locations", "none"} +
                                              QStringLiteral(TEXT_FOLDERS).split(QLatin1Char(' ')) +
                                              QStringList{"-ts"} + copies);
    ASSERT_TRUE(update.waitForFinished(60000) && update.exitCode() == 0)
        << update.readAllStandardError().toStdString();
    for (const QString& copy : copies) {
        int texts = 0;
        const QStringList faults = faultsOf(copy, texts);
        EXPECT_GT(texts, 200);
        EXPECT_TRUE(faults.isEmpty()) << copy.toStdString() << ":\n" << faults.join('\n').toStdString();
    }
}

} // namespace
} // namespace orvex
