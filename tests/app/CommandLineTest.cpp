#include "app/CommandLine.h"

#include <Velto/ApplicationInfo.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <initializer_list>
#include <sstream>
#include <vector>

namespace {

class CommandLineTest : public testing::Test {
protected:
    static void SetUpTestSuite() {
        Velto::ApplicationInfo::Init("QuiveraApp", "QuiveraApp", "Orvex", "1", testing::TempDir(),
                                     Velto::ApplicationInfo::DataFolderType::User, 0, nullptr);
    }

    orvex::CommandLine parse(std::initializer_list<const char*> arguments) {
        std::vector<const char*> all{"Quivera"};
        all.insert(all.end(), arguments);
        out.str("");
        err.str("");
        return orvex::parseCommandLine(static_cast<int>(all.size()), all.data(), out, err);
    }

    std::ostringstream out;
    std::ostringstream err;
};

TEST_F(CommandLineTest, TakesTheHostNameInEverySpelling) {
    EXPECT_EQ(parse({}).hostName, "");
    for (const auto& arguments : {std::initializer_list<const char*>{"--hostname", "10.0.0.7"},
                                  {"--hostname=10.0.0.7"},
                                  {"--HOSTNAME", "10.0.0.7"},
                                  {"--HostName=10.0.0.7"},
                                  {"--host", "10.0.0.7"},
                                  {"-a", "10.0.0.7"},
                                  {"-a10.0.0.7"},
                                  {"-A", "10.0.0.7"}}) {
        const auto result = parse(arguments);
        EXPECT_EQ(result.hostName, "10.0.0.7") << *arguments.begin();
        EXPECT_FALSE(result.exitCode) << *arguments.begin();
    }
    EXPECT_EQ(parse({"/hostname", "10.0.0.7"}).hostName, "") << "a slash introduces no option";
    EXPECT_EQ(out.str() + err.str(), "");
}

TEST_F(CommandLineTest, ShowsHelpOnStandardOutputAndEndsWell) {
    for (const char* option : {"-h", "--help", "--HELP", "-H"}) {
        EXPECT_EQ(parse({option, "-a", "unit"}).exitCode, 0) << option;
        EXPECT_EQ(out.str().rfind("QuiveraApp command line options:\n", 0), 0U) << out.str();
        EXPECT_NE(out.str().find("-a [ --hostname ] arg"), std::string::npos) << out.str();
        EXPECT_NE(out.str().find("Show this usage/help display."), std::string::npos) << out.str();
        EXPECT_EQ(out.str().substr(out.str().size() - 2), "\n\n");
        EXPECT_EQ(err.str(), "");
    }
}

TEST_F(CommandLineTest, TellsWhatIsWrongOnStandardErrorAndEndsBadly) {
    for (const auto& arguments : {std::initializer_list<const char*>{"--nonsense"},
                                  {"-x"},
                                  {"--hostname"},
                                  {"-a"},
                                  {"--hostname", "one", "--hostname", "two"},
                                  {"--help", "--nonsense"}}) {
        const auto result = parse(arguments);
        EXPECT_EQ(result.exitCode, -1) << *arguments.begin();
        EXPECT_EQ(result.hostName, "");
        EXPECT_EQ(out.str(), "");
        EXPECT_EQ(err.str().rfind("Error in command-line: ", 0), 0U) << err.str();
        EXPECT_NE(err.str().find("\n\nQuiveraApp command line options:\n"), std::string::npos) << err.str();
    }
}

} // namespace
