#include <Velto/CrashHandler.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#ifndef _WIN32
#include <sys/wait.h>
#endif

namespace {

namespace fs = std::filesystem;

struct Crash {
    const char* how;
    const char* cause; ///< in the report
};

void PrintTo(const Crash& crash, std::ostream* out) {
    *out << crash.how;
}

class CrashTest : public testing::TestWithParam<Crash> {
protected:
    void SetUp() override { fs::remove_all(m_folder); }
    void TearDown() override { fs::remove_all(m_folder); }

    /// Runs the crashing program to its end and returns how that was: the signal, on Windows the exit code.
    int run(const std::string& manner) const {
#ifdef _WIN32
        return std::system((std::string(CRASHING_PROGRAM) + " " + m_folder.string() + " " + manner).c_str());
#else
        // No core files; no sanitizer's report in place of the system's own end; and the program in place of
        // the shell, so that its own signal is seen.
        const std::string command =
            std::string("ulimit -c 0; export ASAN_OPTIONS=handle_segv=0 TSAN_OPTIONS=handle_segv=0; exec '") +
            CRASHING_PROGRAM + "' '" + m_folder.string() + "' " + manner;
        const int status = std::system(command.c_str());
        EXPECT_TRUE(WIFSIGNALED(status)) << status;
        return WTERMSIG(status);
#endif
    }

    fs::path dataFolder() const {
        return m_folder / "Orvex" / fs::u8path(u8"Zoë-席");
    }

    static std::string content(const fs::path& file) {
        std::ifstream stream(file);
        return {std::istreambuf_iterator<char>(stream), {}};
    }

    const fs::path m_folder = fs::temp_directory_path() / (std::string("velto-crash-") + GetParam().how);
};

TEST_P(CrashTest, IsRecordedThenToldOnceThenEndsTheProcessAsTheSystemWould) {
    const int endWithoutHandling = run(std::string("plain-") + GetParam().how);
    EXPECT_TRUE(fs::is_empty(dataFolder())) << "a handler that is not enabled keeps out";
    EXPECT_EQ(run(GetParam().how), endWithoutHandling);
    EXPECT_EQ(content(dataFolder() / "told"), "report;");
    std::string report;
    int reports = 0;
    for (const auto& entry : fs::directory_iterator(dataFolder())) {
        if (entry.path().filename().string().rfind("CrashTest-crash-20", 0) == 0) {
            report = content(entry);
            ++reports;
        }
    }
    ASSERT_EQ(reports, 1);
    EXPECT_NE(report.find("Crash Test 1.2.3"), std::string::npos) << report;
    EXPECT_NE(report.find(GetParam().cause), std::string::npos) << report;
    const std::size_t backtrace = report.find("Backtrace:\n");
    ASSERT_NE(backtrace, std::string::npos) << report;
    EXPECT_NE(report.find("crashing_program", backtrace), std::string::npos) << report;
}

#ifdef _WIN32
constexpr const char* memoryFault = "Cause: exception 0xc0000005";
constexpr const char* overflowFault = "Cause: exception 0xc00000fd";
constexpr const char* abortCause = "Cause: abort";
#else
constexpr const char* memoryFault = "Cause: SIGSEGV at address 0x40";
constexpr const char* overflowFault = "Cause: SIGSEGV";
constexpr const char* abortCause = "Cause: SIGABRT";
#endif

INSTANTIATE_TEST_SUITE_P(Every, CrashTest,
                         testing::Values(Crash{"memory", memoryFault}, Crash{"thread", memoryFault},
                                         Crash{"overflow", overflowFault}, Crash{"abort", abortCause},
                                         Crash{"exception",
                                               "uncaught exception std::runtime_error: seat 3 on fire"},
                                         Crash{"observer", memoryFault}),
                         [](const auto& crash) { return std::string(crash.param.how); });

TEST(CrashHandler, IsNotInstalledWithoutAFolderForItsReports) {
    const auto handler = Velto::CrashHandler::getInstance();
    EXPECT_FALSE(handler->configure({"name", fs::temp_directory_path() / "no-such-folder-here", true}));
    EXPECT_FALSE(handler->initialize());
}

} // namespace
