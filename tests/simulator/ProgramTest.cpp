// Runs the real program; POSIX only, as it ends it by signals.
#include "Exchange.h"
#include "Product.h"

#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <regex>
#include <vector>

namespace {

/// The program, its two streams in one.
class Program {
public:
    explicit Program(const std::vector<std::string>& arguments) {
        std::array<int, 2> ends{};
        if (::pipe(ends.data()) != 0)
            return;
        std::vector<std::string> words{KELM_SIMULATOR};
        words.insert(words.end(), arguments.begin(), arguments.end());
        std::vector<char*> pointers;
        pointers.reserve(words.size() + 1);
        for (auto& word : words)
            pointers.push_back(word.data());
        pointers.push_back(nullptr);
        m_process = ::fork();
        if (m_process == 0) {
            ::dup2(ends[1], STDOUT_FILENO);
            ::dup2(ends[1], STDERR_FILENO);
            ::close(ends[0]);
            ::execv(pointers[0], pointers.data());
            ::_exit(127);
        }
        ::close(ends[1]);
        m_output = ::fdopen(ends[0], "r");
    }
    ~Program() {
        if (m_process > 0)
            end(SIGKILL);
        if (m_output)
            std::fclose(m_output);
    }
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    std::string line() {
        std::array<char, 512> text{};
        if (!m_output || !std::fgets(text.data(), text.size(), m_output))
            return "end";
        const std::string read = text.data();
        return read.substr(0, read.find('\n'));
    }

    /// Its exit code; -1 when a signal ended it.
    int end(int signal = 0) {
        if (signal != 0)
            ::kill(m_process, signal);
        int status = 0;
        ::waitpid(m_process, &status, 0);
        m_process = -1;
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

private:
    pid_t m_process = -1;
    std::FILE* m_output = nullptr;
};

struct ReadyLine {
    explicit ReadyLine(const std::string& line) {
        std::smatch match;
        EXPECT_TRUE(std::regex_match(line, match, std::regex("ready (.+) ([0-9.]+):([0-9]+) (\\S+)")))
            << line;
        if (match.empty())
            return;
        name = match[1];
        address = match[2];
        port = static_cast<std::uint16_t>(std::stoi(match[3]));
        uid = match[4];
    }
    std::string name;
    std::string address;
    std::uint16_t port = 0;
    std::string uid;
};

} // namespace

TEST(SimulatorProgram, TellsWhatIsReadyAndEndsCleanlyOnASignal) {
    for (const int signal : {SIGINT, SIGTERM}) {
        Program program(
            {"--units", "2", "--product", "hub", "--name", "Row", "--port", "0", "--no-discovery"});
        const ReadyLine first(program.line());
        const ReadyLine second(program.line());
        EXPECT_EQ(first.name, "Row");
        EXPECT_EQ(second.name, "Row 2");
        EXPECT_NE(first.uid, second.uid);
        EXPECT_EQ(program.line(), "all units ready");
        ForeignClient client;
        ASSERT_EQ(client.connect(second.address, second.port), "");
        EXPECT_EQ(client.presentedUid(), second.uid);
        EXPECT_EQ(program.end(signal), 0);
    }
}

TEST(SimulatorProgram, KeepsItsUidInAKeyFolder) {
    const auto folder = std::filesystem::temp_directory_path() / ("keys-" + std::to_string(::getpid()));
    const auto uid = [&folder] {
        Program program({"--port", "0", "--no-discovery", "--key-folder", folder.string()});
        return ReadyLine(program.line()).uid;
    };
    const std::string first = uid();
    EXPECT_EQ(uid(), first);
    std::filesystem::remove_all(folder);
}

TEST(SimulatorProgram, PlaysAScenario) {
    const auto file =
        std::filesystem::temp_directory_path() / ("scenario-" + std::to_string(::getpid()) + ".json");
    std::ofstream(file) << R"({"units":[{"product":"ruvello","plain":true,
        "actions":[{"at":1,"do":"rename","name":"By scenario"}]}]})";
    Program program(
        {"--scenario", file.string(), "--port", "0", "--discovery-port", std::to_string(freeUdpPort())});
    const ReadyLine ready(program.line());
    EXPECT_EQ(ready.name, "Ruvello R-0001");
    ForeignClient client;
    ASSERT_EQ(client.connect(ready.address, ready.port, false), "");
    EXPECT_TRUE(eventually([&client] {
        return std::string(ask(client, "GetKelmName").bodyText).find("By scenario") != std::string::npos;
    }));
    std::filesystem::remove(file);
}

TEST(SimulatorProgram, RefusesWhatItDoesNotUnderstand) {
    const std::vector<std::vector<std::string>> wrong{
        {"--bogus"},         {"--units", "-1"},     {"--units", "0"},
        {"--port", "65536"}, {"--product", "sofa"}, {"--scenario", "/nowhere.json"},
        {"stray"},           {"--seats", "many"},   {"--units", "2", "--scenario", "x"},
        {"--prod", "hub"},   {"--serial", "a/b"},   {"--units", "2", "--port", "65535"}};
    for (const auto& arguments : wrong) {
        Program program(arguments);
        EXPECT_EQ(program.line().rfind("kelm-simulator: ", 0), 0U) << arguments[0];
        EXPECT_EQ(program.end(), 2) << arguments[0];
    }
    Program help({"--help"});
    EXPECT_EQ(help.line().rfind("kelm-simulator " + std::string(QuiveraProduct::version), 0), 0U);
}
