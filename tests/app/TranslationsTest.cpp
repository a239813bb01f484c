#include "app/Translations.h"

#include "device/DisplayTexts.h"
#include "messaging/handlers/GetMediaStatusNotificationHandler.h"
#include "messaging/records/ContentUpdateState.h"
#include "messaging/records/SeatInfo.h"
#include "qml/UserInterface.h"
#include "tests/messaging/Responses.h"

#include <QCoreApplication>
#include <QDir>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QTranslator>

#include <gtest/gtest.h>

namespace orvex {
namespace {

/// Answers from the built-in texts of one language, and keeps what was asked for in vain.
class WatchedTranslator : public QTranslator {
public:
    explicit WatchedTranslator(const QString& language) {
        EXPECT_TRUE(m_texts.load(QStringLiteral(":/translations/quivera_%1.qm").arg(language)));
        QCoreApplication::installTranslator(this);
    }
    ~WatchedTranslator() override { QCoreApplication::removeTranslator(this); }

    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* text, const char* disambiguation,
                      int n) const override {
        QString translated = m_texts.translate(context, text, disambiguation, n);
        // Qt's own classes look for their own texts.
        if (translated.isEmpty() && context[0] != 'Q') {
            m_missing << QStringLiteral("%1: %2").arg(QString::fromUtf8(context), QString::fromUtf8(text));
        }
        m_found += translated.isEmpty() ? 0 : 1;
        return translated;
    }

    int found() const { return m_found; }
    std::string missing() const { return m_missing.join(QLatin1Char('\n')).toStdString(); }

private:
    QTranslator m_texts;
    mutable QStringList m_missing;
    mutable int m_found = 0;
};

std::string mediaStatus(const std::string& audio, const std::string& motion) {
    return R"({"status":{"mediaIdState":")" + audio + R"(","motionCodeState":")" + motion + R"("}})";
}

/// Shows every text of the tables.
void showTexts() {
    for (int mode = -1; mode <= 5; ++mode) {
        DisplayTexts::experienceModeName(mode);
        DisplayTexts::experienceModeDescription(mode);
    }
    for (int code = 0; code <= 1200; ++code) {
        DisplayTexts::experienceModeError(code);
    }
    for (int status = -1; status <= 3; ++status) {
        DisplayTexts::softwareHealthHint(status);
    }
    DisplayTexts::modeIsChanging();
    DisplayTexts::updateTime({});
    for (int code = 0; code <= 50; code += 10) {
        SeatInfo seat;
        seat.statusCode = QString::number(code);
        seat.displayText();
    }
    for (int state = 0; state <= 60; ++state) {
        ContentUpdateState content;
        content.stateId = state;
        content.code = QStringLiteral("7");
        content.stateText();
        content.codeText();
    }
    Velto::Messaging::GetMediaStatusNotificationHandler handler;
    for (const char* audio :
         {"configuring", "configured", "starting", "started", "stopping", "stopped", "listening",
          "silence_detected", "ident_failure", "lost_audio", "program_error", "?"}) {
        handler.handleResponse(Test::response("GetMediaStatus", mediaStatus(audio, "?")));
    }
    for (const char* motion : {"listening", "searching", "available", "not_available", "?"}) {
        handler.handleResponse(Test::response("GetMediaStatus", mediaStatus("ident_success", motion)));
    }
}

/// Makes every document by itself: what it says does not wait for a unit to be there.
void showDocuments() {
    QQmlEngine engine;
    engine.setOutputWarningsToStandardError(false);
    const QDir documents(QStringLiteral(QML_DOCUMENTS));
    for (const QString& name : documents.entryList({QStringLiteral("[BPW]*.qml")})) {
        QQmlComponent component(&engine, QUrl(QStringLiteral("qrc:/qml/") + name));
        delete component.create();
    }
}

class Translations : public testing::TestWithParam<const char*> {};

TEST_P(Translations, EveryTextTheProgramLooksUpIsFoundUnderTheNameItIsLookedUpBy) {
    installTranslations(*QCoreApplication::instance(), {QStringLiteral("en")}); // the resources only
    prepareUserInterface();
    const WatchedTranslator watched(QString::fromLatin1(GetParam()));
    showTexts();
    const int tables = watched.found();
    EXPECT_GT(tables, 1200);
    showDocuments();
    EXPECT_GT(watched.found() - tables, 100) << "the documents ask for their texts";
    EXPECT_EQ(watched.missing(), "");
}
INSTANTIATE_TEST_SUITE_P(Each, Translations, testing::Values("de", "es", "fr", "ja"));

TEST(Language, IsTheFirstOfTheSystemsThatTheProgramSpeaksAndEnglishWhenNoneFits) {
    const struct {
        QStringList wanted;
        QString installed;
        QString name;
    } cases[] = {
        {{}, "en", "Adaptive Gaming"},
        {{"xx", "zh-Hant-TW"}, "en", "Adaptive Gaming"},
        {{"en-GB", "de"}, "en", "Adaptive Gaming"},
        {{"de-AT", "fr"}, "de", "Adaptives Gaming"},
        {{"zh-CN", "fr_CA"}, "fr", "Jeu adaptatif"},
        {{"ja-JP"}, "ja", QStringLiteral("アダプティブゲーム")},
    };
    for (const auto& [wanted, installed, name] : cases) {
        EXPECT_EQ(installTranslations(*QCoreApplication::instance(), wanted), installed);
        EXPECT_EQ(DisplayTexts::experienceModeName(3), name) << wanted.join(' ').toStdString();
        qDeleteAll(QCoreApplication::instance()->findChildren<QTranslator*>());
    }
}

} // namespace
} // namespace orvex
