#include "app/ComponentSteps.h"
#include "app/Logging.h"
#include "app/QtMessages.h"

#include <QString>
#include <QtDebug>

#include <gtest/gtest.h>
#include <spdlog/sinks/ostream_sink.h>
#include <spdlog/spdlog.h>

#include <algorithm>
#include <sstream>
#include <thread>

namespace {

using Result = Velto::Component::Result;

QStringList handedOn;

void recordMessage(QtMsgType, const QMessageLogContext&, const QString& message) {
    handedOn.append(message);
}

/// The program's own logger over a text, and Qt's messages routed to it.
class LogRoutesTest : public testing::Test {
protected:
    static void SetUpTestSuite() {
        m_original = qInstallMessageHandler(&recordMessage);
        orvex::installAppLoggerHandler();
    }
    static void TearDownTestSuite() { qInstallMessageHandler(m_original); }

    void SetUp() override {
        handedOn.clear();
        const auto sink = std::make_shared<spdlog::sinks::ostream_sink_mt>(text);
        sink->set_pattern("%l:%v");
        spdlog::register_logger(std::make_shared<spdlog::logger>(orvex::programLoggerName, sink));
    }
    void TearDown() override { spdlog::drop_all(); }

    /// The lines so far, whatever the system ends them with.
    std::string logged() const {
        std::string lines = text.str();
        lines.erase(std::remove(lines.begin(), lines.end(), '\r'), lines.end());
        return lines;
    }

    std::ostringstream text;
    inline static QtMessageHandler m_original = nullptr;
};

TEST_F(LogRoutesTest, QtMessagesAreLoggedAtTheirLevelAndHandedOn) {
    qDebug("debug");
    qInfo("info");
    qWarning("warning");
    qCritical("critical");
    // What Qt itself would do next ends the process.
    orvex::appLoggerHandler(QtFatalMsg, {}, QStringLiteral("fatal"));
    EXPECT_EQ(logged(), "info:info\nwarning:warning\nerror:critical\ncritical:fatal\n");
    EXPECT_EQ(handedOn, (QStringList{"debug", "info", "warning", "critical", "fatal"}));
}

TEST_F(LogRoutesTest, QtMessagesAreNeverTakenForFormats) {
    const QString message = QStringLiteral("%s{}%n{0}{:>99999}{");
    qInfo("%s", qPrintable(message));
    EXPECT_EQ(logged(), "info:" + message.toStdString() + "\n");
}

TEST_F(LogRoutesTest, QtMessagesOfAnyThreadAreOnlyHandedOnWithoutALogger) {
    spdlog::drop_all();
    std::thread([] { qWarning("after the log"); }).join();
    EXPECT_EQ(handedOn, QStringList{"after the log"});
    EXPECT_EQ(logged(), "");
}

TEST_F(LogRoutesTest, ComponentFailuresAreLoggedInTheirKnownWords) {
    using Step = orvex::ComponentStep;
    for (const auto step : {Step::Initialize, Step::Activate, Step::Suspend, Step::Shutdown}) {
        for (const auto result : {Result::Success, Result::FatalFailure, Result::ConfigurationFailure}) {
            orvex::reportComponentStep(step, result);
        }
    }
    orvex::reportComponentStep(Step::Suspend, static_cast<Result>(17));
    EXPECT_EQ(logged(), "error:Fatal Error: Failed to initialize Components\n"
                        "error:Configuration Error: Failed to initialize Components\n"
                        "error:Fatal Error: failed to activate Components\n"
                        "error:Configuration Error: failed to activate Components\n"
                        "error:Fatal Error: Failed to suspend Components\n"
                        "error:Configuration Error: Failed to suspend Components\n"
                        "error:Fatal Error: Failed to shutdown Components\n"
                        "error:Configuration Error: Failed to shutdown Components\n"
                        "error:Configuration Error: Failed to suspend Components\n");
}

} // namespace
