#include "app/Logging.h"

#include "app/ApplicationException.h"
#include "app/LogConfigParser.h"
#include "velto/core/Areas.h"

#include <Velto/ApplicationInfo.h>

#include <gtest/gtest.h>
#include <spdlog/async_logger.h>
#include <spdlog/sinks/base_sink.h>
#include <spdlog/spdlog.h>

#include <algorithm>
#include <condition_variable>
#include <fstream>
#include <iterator>
#include <mutex>
#include <regex>
#include <sstream>
#include <thread>

namespace {

namespace fs = std::filesystem;
using orvex::Logging;

std::string sinkXml(int id, const std::string& type, const std::string& more = {}) {
    return "<sink><id>" + std::to_string(id) + "</id><type>" + type + "</type>" + more + "</sink>";
}

std::string loggerXml(const std::string& more, int sinkId) {
    return "<logger>" + more + "<sinks><id>" + std::to_string(sinkId) + "</id></sinks></logger>";
}

std::string configXml(const std::string& globals, const std::string& sinks, const std::string& loggers) {
    return "<logging>" + globals + "<sinks>" + sinks + "</sinks><loggers>" + loggers + "</loggers></logging>";
}

const std::string programName = "<name>orvex.QuiveraApp</name>";

class LoggingTest : public testing::Test {
protected:
    void SetUp() override {
        fs::remove_all(m_root);
        Velto::ApplicationInfo::Init("Quivera App", "data", "Orvex", "1", m_root.u8string(),
                                     Velto::ApplicationInfo::DataFolderType::User, 0, nullptr);
        m_folder = Velto::ApplicationInfo::DataPath();
        m_logging = std::make_unique<Logging>(m_folder, m_problems);
    }
    void TearDown() override {
        m_logging->shutDown();
        m_logging.reset();
        fs::remove_all(m_root);
    }

    void configure(const std::string& xml) {
        std::ofstream(m_folder / "test.log.config", std::ios::binary) << xml;
        m_logging->configure(m_folder / "test.log.config");
    }

    std::string content(const std::string& name) const {
        std::ifstream stream(m_folder / fs::u8path(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }

    bool told(const std::string& text) const { return m_problems.str().find(text) != std::string::npos; }

    const fs::path m_root = fs::temp_directory_path() / fs::u8path(u8"quivera-log-Zoë-席");
    fs::path m_folder;
    std::ostringstream m_problems;
    std::unique_ptr<Logging> m_logging;
};

TEST_F(LoggingTest, WritesToEveryKindOfFileInBothVariants) {
    std::string sinks;
    std::string loggers;
    int id = 0;
    for (const char* variant : {"yes", "no"}) {
        for (const char* kind : {"rotating_file", "daily_file", "simple_file"}) {
            const std::string name = std::string(kind) + "-" + variant;
            sinks += sinkXml(
                ++id, kind,
                "<multi_thread>" + std::string(variant) + "</multi_thread><file_name>sub/" + name +
                    ".log</file_name><file_size_mb>1</file_size_mb><file_num>2</file_num><hour>3</hour>"
                    "<format>own %v</format>");
            loggers += loggerXml("<name>" + name + "</name>", id);
        }
    }
    configure(configXml("", sinks, loggers + loggerXml(programName, 1)));
    EXPECT_EQ(m_problems.str(), "");
    for (const char* variant : {"yes", "no"}) {
        for (const char* kind : {"rotating_file", "daily_file", "simple_file"}) {
            const std::string name = std::string(kind) + "-" + variant;
            const auto logger = spdlog::get(name);
            ASSERT_TRUE(logger) << name;
            logger->info("line of {}", name);
            logger->flush();
            std::string written = content("sub/" + name + ".log");
            for (const auto& entry : fs::directory_iterator(m_folder / "sub")) {
                if (std::regex_match(entry.path().filename().string(),
                                     std::regex(name + "_\\d{4}-\\d{2}-\\d{2}\\.log"))) {
                    written = content("sub/" + entry.path().filename().string());
                }
            }
            EXPECT_EQ(written.rfind("own line of " + name, 0), 0U) << name << ": " << written;
        }
    }
    const auto rotating = spdlog::get("rotating_file-yes");
    for (int i = 0; i < 5; ++i) {
        rotating->info(std::string(700 * 1024, 'x'));
    }
    EXPECT_TRUE(fs::exists(m_folder / "sub" / "rotating_file-yes.2.log"));
    EXPECT_FALSE(fs::exists(m_folder / "sub" / "rotating_file-yes.3.log"));
}

TEST_F(LoggingTest, MakesTheConsolesAndWhatTheSystemHasAndLeavesOutTheRest) {
    std::string sinks;
    int id = 0;
    for (const char* variant : {"yes", "no"}) {
        for (const char* kind : {"stdout", "stdout_color", "syslog", "msvc", "carrier_pigeon"}) {
            sinks += sinkXml(++id, kind, "<multi_thread>" + std::string(variant) + "</multi_thread>");
        }
    }
    std::string ids;
    for (int i = 1; i <= id; ++i) {
        ids += "<id>" + std::to_string(i) + "</id>";
    }
    configure(
        configXml("", sinks, "<logger>" + programName + "<sinks>" + ids + "<id>99</id></sinks></logger>"));
#ifdef _WIN32
    EXPECT_TRUE(told("sink 3 is left out: this system has no \"syslog\""));
#else
    EXPECT_TRUE(told("sink 4 is left out: this system has no \"msvc\""));
#endif
    EXPECT_TRUE(told("sink 5 is left out: its kind \"carrier_pigeon\" is unknown"));
    EXPECT_EQ(spdlog::get(orvex::programLoggerName)->sinks().size(), 6U);
}

TEST_F(LoggingTest, LevelsAndPatternsAreTheirOwnElseTheGlobalOnes) {
    const std::string file = "<file_name>a.log</file_name><log_level>trace</log_level>";
    configure(
        configXml("<format>global %l %v</format><log_level>error</log_level>",
                  sinkXml(1, "simple_file", file) + sinkXml(2, "simple_file", "<file_name>b.log</file_name>"),
                  loggerXml("<name>own</name><log_level>debug</log_level>", 1) +
                      loggerXml("<name>global</name><log_level>Info</log_level>", 1) +
                      loggerXml(programName + "<log_level>trace</log_level>", 2)));
    for (const char* name : {"own", "global", "orvex.QuiveraApp"}) {
        const auto logger = spdlog::get(name);
        ASSERT_TRUE(logger) << name;
        logger->trace("trace of {}", name);
        logger->debug("debug of {}", name);
        logger->warn("warning of {}", name);
        logger->error("error of {}", name);
        logger->flush();
    }
    EXPECT_TRUE(told("\"Info\" is no level"));
    std::istringstream lines(content("a.log") + content("b.log"));
    std::vector<std::string> seen;
    for (std::string line; std::getline(lines, line);) {
        seen.push_back(line.substr(0, line.find('\r')));
    }
    EXPECT_EQ(seen, (std::vector<std::string>{"global debug debug of own", "global warning warning of own",
                                              "global error error of own", "global error error of global",
                                              "global error error of orvex.QuiveraApp"}));
}

/// Lets nothing pass until it is opened, then counts.
class GateSink : public spdlog::sinks::base_sink<std::mutex> {
public:
    void open() {
        const std::lock_guard lock(m_gateMutex);
        m_isOpen = true;
        m_opened.notify_all();
    }
    int count() {
        const std::lock_guard lock(m_gateMutex);
        return m_count;
    }

protected:
    void sink_it_(const spdlog::details::log_msg&) override {
        std::unique_lock lock(m_gateMutex);
        m_opened.wait(lock, [this] { return m_isOpen; });
        ++m_count;
    }
    void flush_() override {}

private:
    std::mutex m_gateMutex;
    std::condition_variable m_opened;
    bool m_isOpen = false;
    int m_count = 0;
};

TEST_F(LoggingTest, OverflowPolicyDecidesWhatAFullQueueDoes) {
    configure(
        configXml("<thread_pool_size>2</thread_pool_size><thread_num>1</thread_num>", "",
                  loggerXml("<name>blocks</name><overflow_policy>block</overflow_policy>", 1) +
                      loggerXml("<name>drops</name><overflow_policy>overrun_oldest</overflow_policy>", 1) +
                      loggerXml("<name>plain</name><overflow_policy>Block</overflow_policy>", 1)));
    EXPECT_FALSE(std::dynamic_pointer_cast<spdlog::async_logger>(spdlog::get("plain")));

    const auto dropGate = std::make_shared<GateSink>();
    spdlog::get("drops")->sinks().push_back(dropGate);
    for (int i = 0; i < 50; ++i) {
        spdlog::get("drops")->info("would wait for ever if it did not drop");
    }
    dropGate->open();

    const auto blockGate = std::make_shared<GateSink>();
    spdlog::get("blocks")->sinks().push_back(blockGate);
    std::thread writer([] {
        for (int i = 0; i < 50; ++i) {
            spdlog::get("blocks")->info("waits");
        }
    });
    blockGate->open();
    writer.join();
    m_logging->shutDown();
    EXPECT_LT(dropGate->count(), 50);
    EXPECT_GE(dropGate->count(), 2);
    EXPECT_EQ(blockGate->count(), 50) << "shutting down writes what is queued";
}

TEST_F(LoggingTest, FlushesPeriodically) {
    configure(
        configXml("<flush_interval_s>1</flush_interval_s>",
                  sinkXml(1, "simple_file", "<multi_thread>yes</multi_thread><file_name>a.log</file_name>"),
                  loggerXml(programName, 1)));
    spdlog::get(orvex::programLoggerName)->info("soon on disk");
    const auto limit = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (content("a.log").empty() && std::chrono::steady_clock::now() < limit) {
        std::this_thread::yield();
    }
    EXPECT_NE(content("a.log").find("soon on disk"), std::string::npos);
}

TEST_F(LoggingTest, TypeNamesALoggerThatHasNoNameAndAnyOtherWritesWhereTheProgramDoes) {
    configure(configXml("<format>%n %v</format>", sinkXml(1, "simple_file", "<file_name>a.log</file_name>"),
                        loggerXml(programName + "<type>ignored</type>", 1) +
                            loggerXml("<type>Velto.ZComm</type>", 7) + loggerXml("", 1)));
    EXPECT_TRUE(told("neither a name nor a type"));
    EXPECT_FALSE(spdlog::get("ignored"));
    EXPECT_EQ(m_logging->logger("Velto.ZComm")->sinks().size(), 0U);

    m_logging->initialise({&Velto::InitLoggerBaseComm});
    Velto::detail::areaLogger(Velto::detail::Area::BaseComm)->info("connected");
    m_logging->shutDown();
    Velto::detail::areaLogger(Velto::detail::Area::BaseComm)->info("nobody hears");
    EXPECT_EQ(content("a.log").substr(0, 24), "Velto.BaseComm connected");
    EXPECT_EQ(content("a.log").find("nobody"), std::string::npos);
    EXPECT_FALSE(spdlog::get(orvex::programLoggerName));
}

TEST_F(LoggingTest, WithoutAUsableFileItSaysSoAndLogsToItsDefaultFile) {
    for (const char* notXml : {"", "not XML", "<logging><sinks></logging>", "<!-- only this -->"}) {
        configure(notXml);
        EXPECT_TRUE(told("LogConfigParser::LoadConfigFile: Failed to load XML document")) << notXml;
        EXPECT_TRUE(told("instead")) << notXml;
        m_logging->shutDown();
        m_problems.str("");
    }
    for (const fs::path& unreadable : {m_folder / "missing.log.config", m_folder}) {
        EXPECT_THROW(orvex::LogConfigParser::loadConfigFile(unreadable), orvex::ApplicationException);
    }
    m_logging->configure(m_folder / "missing.log.config");
    spdlog::get(orvex::programLoggerName)->info("all the same");
    m_logging->shutDown();
    EXPECT_NE(content("QuiveraApp.log").find("[orvex.QuiveraApp] [info]"), std::string::npos);
}

TEST_F(LoggingTest, HalfRightFileIsUsedAsFarAsItIsRightAndTheRestIsTold) {
    configure(configXml(
        "<thread_pool_size>-5</thread_pool_size><thread_num>many</thread_num><log_level>loud</log_level>"
        "<flush_interval_s>0</flush_interval_s>",
        "<sink><type>stdout</type></sink>" + sinkXml(1, "simple_file", "<file_name>a.log</file_name>") +
            sinkXml(1, "stdout") + sinkXml(2, "simple_file") + sinkXml(3, "daily_file", "<hour>24</hour>"),
        loggerXml("<name>x</name><overflow_policy>block</overflow_policy>", 1) +
            loggerXml("<name>x</name>", 2)));
    for (const char* remark :
         {"thread_pool_size \"-5\"", "thread_num \"many\"", "\"loud\" is no level", "flush_interval_s \"0\"",
          "a sink without an id", "a second sink with the id 1", "sink 2 is left out: it names no file",
          "hour \"24\"", "a second logger \"x\"", "no logger orvex.QuiveraApp is configured"}) {
        EXPECT_TRUE(told(remark)) << remark << " in\n" << m_problems.str();
    }
    spdlog::get(orvex::programLoggerName)->info("kept");
    m_logging->shutDown();
    EXPECT_NE(content("a.log").find("kept"), std::string::npos);
}

TEST_F(LoggingTest, UnwritableFileIsToldAndTheRestIsUsed) {
    std::ofstream(m_folder / "file") << "no folder";
    const std::string sinks = sinkXml(1, "simple_file", "<file_name>file/a.log</file_name>") +
                              sinkXml(2, "simple_file", "<file_name>b.log</file_name>");
    configure(
        configXml("", sinks, "<logger>" + programName + "<sinks><id>1</id><id>2</id></sinks></logger>"));
    EXPECT_TRUE(told("sink 1 is left out: "));
    EXPECT_EQ(spdlog::get(orvex::programLoggerName)->sinks().size(), 1U);
    m_logging->shutDown();

    configure(configXml("", sinks, loggerXml(programName, 1)));
    EXPECT_TRUE(told("has none of its sinks"));
    spdlog::get(orvex::programLoggerName)->info("not lost");
    m_logging->shutDown();
    EXPECT_NE(content("QuiveraApp.log").find("not lost"), std::string::npos);
}

class FailingSink : public spdlog::sinks::base_sink<std::mutex> {
protected:
    void sink_it_(const spdlog::details::log_msg&) override { throw std::runtime_error("disk full"); }
    void flush_() override {}
};

TEST_F(LoggingTest, FailureWhileWritingIsPrintedAndTheProgramGoesOn) {
    configure(
        configXml("", sinkXml(1, "simple_file", "<file_name>a.log</file_name>"), loggerXml(programName, 1)));
    const auto logger = spdlog::get(orvex::programLoggerName);
    logger->sinks().push_back(std::make_shared<FailingSink>());
    testing::internal::CaptureStderr();
    logger->info("one");
    logger->info("two");
    const std::string printed = testing::internal::GetCapturedStderr();
    const std::string line = R"(\[\*\*\* LOG ERROR #\d{4} \*\*\*\] \[\d{4}-\d\d-\d\d \d\d:\d\d:\d\d\] )"
                             R"(\[orvex\.QuiveraApp\] \{disk full.*\}\r?\n)";
    EXPECT_TRUE(std::regex_match(printed, std::regex(line + line))) << printed;
    logger->flush();
    EXPECT_NE(content("a.log").find("two"), std::string::npos);
}

TEST_F(LoggingTest, ConfigurationThatShipsWithTheProgramIsRight) {
    const auto config = orvex::LogConfigParser::loadConfigFile(SHIPPED_LOG_CONFIG);
    EXPECT_TRUE(config.remarks.empty()) << config.remarks.front();
    m_logging->configure(SHIPPED_LOG_CONFIG);
    EXPECT_EQ(m_problems.str(), "");
    spdlog::get(orvex::programLoggerName)->info("shipped");
    m_logging->shutDown();
    EXPECT_NE(content("QuiveraApp.log").find("shipped"), std::string::npos);
    EXPECT_EQ(fs::path(SHIPPED_LOG_CONFIG).filename(), orvex::logConfigFile().filename());
    EXPECT_EQ(orvex::logConfigFile().parent_path(), Velto::ApplicationInfo::ExecutablePath().parent_path());
}

} // namespace
