#include "messaging/handlers/GetMediaStatusNotificationHandler.h"
#include "tests/messaging/HandlerResults.h"

#include <gtest/gtest.h>

namespace orvex {
namespace {

using namespace Velto::Messaging;
using Test::response;

class MediaStatusTest : public testing::Test {
protected:
    struct Shown {
        int audioType = -9;
        QString audioText;
        int motionType = -9;
        QString motionText;
        QString title;
        int offset = -9;
        int duration = -9;
    };

    MediaStatusTest() {
        using Handler = GetMediaStatusNotificationHandler;
        QObject::connect(&m_handler, &Handler::updateSourceDetectedStatusLabelSignal, &m_handler,
                         [this](int type, const QString& text) {
                             m_shown.audioType = type;
                             m_shown.audioText = text;
                         });
        QObject::connect(&m_handler, &Handler::updateMotionCodeStatusLabelSignal, &m_handler,
                         [this](int type, const QString& text) {
                             m_shown.motionType = type;
                             m_shown.motionText = text;
                         });
        QObject::connect(&m_handler, &Handler::updateMediaInfoTitleLabelSignal, &m_handler,
                         [this](const QVariant& key, const QVariant& title) {
                             EXPECT_EQ(key, QStringLiteral("mediaTitle"));
                             m_shown.title = title.toString();
                         });
        QObject::connect(&m_handler, &Handler::updateMediaInfoProgressBarSignal, &m_handler,
                         [this](int offset, int duration) {
                             m_shown.offset = offset;
                             m_shown.duration = duration;
                         });
    }

    Shown show(const std::string& members) { return showBody("{\"mediaStatus\":{" + members + "}}"); }

    Shown showBody(const std::string& body) {
        m_shown = {};
        m_handler.handleResponse(response("GetMediaStatus", body));
        return m_shown;
    }

    Shown audio(const std::string& state) { return show("\"mediaIdState\":\"" + state + "\""); }

    GetMediaStatusNotificationHandler m_handler;
    Shown m_shown;
};

TEST_F(MediaStatusTest, ShowsEachStateOfTheAudioCapture) {
    struct Case {
        const char* state;
        int type;
        const char* text;
    };
    const Case cases[] = {{"initializing", 0, ""},
                          {"configuring", 2, "Configuring Audio Capture"},
                          {"configured", 2, "Audio Capture Configured"},
                          {"starting", 2, "Starting Audio Capture"},
                          {"started", 2, "Audio Capture Started"},
                          {"stopping", 2, "Stopping Audio Capture"},
                          {"stopped", 0, "Audio Capture Stopped"},
                          {"listening", 2, "Capturing Audio"},
                          {"silence_detected", 2, "Silence Detected"},
                          {"ident_failure", 2, "Listening and Analyzing Audio"},
                          {"lost_audio", 1, "Audio Feed Lost"},
                          {"program_error", 1, "Audio Capture Error"},
                          {"shutting_down", 0, ""},
                          {"shutdown", 0, ""},
                          {"anything", 1, "Unknown Media State"},
                          {"ident_success", 3, "Audio Source Detected"}};
    for (const Case& c : cases) {
        const Shown shown = audio(c.state);
        EXPECT_EQ(shown.audioType, c.type) << c.state;
        EXPECT_EQ(shown.audioText, QLatin1String(c.text)) << c.state;
    }
}

TEST_F(MediaStatusTest, ShowsMotionCodeTitleAndProgressOfADetectedSourceOnly) {
    const std::string rest =
        R"(,"motionCodeState":"available","mediaTitle":"Film","mediaOffset":10,"mediaDuration":7200)";
    const Shown detected = show("\"mediaIdState\":\"ident_success\"" + rest);
    EXPECT_EQ(detected.motionType, 3);
    EXPECT_EQ(detected.motionText, QLatin1String("Motion Code Available"));
    EXPECT_EQ(detected.title, QLatin1String("Film"));
    EXPECT_EQ(detected.offset, 10);
    EXPECT_EQ(detected.duration, 7200);

    const Shown lost = show("\"mediaIdState\":\"lost_audio\"" + rest);
    EXPECT_EQ(lost.motionType, 0);
    EXPECT_EQ(lost.motionText, QString());
    EXPECT_EQ(lost.title, QString());
    EXPECT_EQ(lost.offset, -1);
    EXPECT_EQ(lost.duration, -1);

    const std::tuple<const char*, int, const char*> motions[] = {
        {"listening", 3, "Motion Code Found"},
        {"searching", 2, "Looking for Motion Code"},
        {"not_available", 2, "Motion Code not Available"},
        {"?", 1, "Unknown Motion Code"}};
    for (const auto& [state, type, text] : motions) {
        const Shown shown =
            show(std::string(R"("mediaIdState":"ident_success","motionCodeState":")") + state + "\"");
        EXPECT_EQ(shown.motionType, type) << state;
        EXPECT_EQ(shown.motionText, QLatin1String(text)) << state;
    }
}

TEST_F(MediaStatusTest, DoesNotLoseADetectedSourceToALateReportOfTheStart) {
    audio("ident_success");
    for (const char* late :
         {"initializing", "configuring", "configured", "starting", "started", "no such state"}) {
        EXPECT_EQ(audio(late).audioType, 3) << late;
    }
    EXPECT_EQ(audio("stopping").audioType, 2) << "a later state counts";
    EXPECT_EQ(audio("starting").audioType, 2) << "and the source is no longer detected";
    audio("ident_success");
    m_handler.forgetAudioState();
    EXPECT_EQ(audio("starting").audioType, 2) << "another unit has detected nothing yet";
}

TEST_F(MediaStatusTest, FindsItsMembersInEveryObjectOfTheBody) {
    const Shown shown = showBody(R"({"mediaIdState":"lost_audio","n":1,"a":{"mediaIdState":"ident_success"},
        "b":{"mediaTitle":"Film","mediaOffset":"1","mediaDuration":2.5}})");
    EXPECT_EQ(shown.audioType, 3);
    EXPECT_EQ(shown.title, QLatin1String("Film"));
    EXPECT_EQ(shown.offset, -1) << "a text is no number";
    EXPECT_EQ(shown.duration, -1) << "nor is a fraction an integer";
}

} // namespace
} // namespace orvex
