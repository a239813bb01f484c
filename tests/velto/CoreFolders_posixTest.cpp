#include <Velto/ApplicationInfo.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>

namespace {

using Velto::ApplicationInfo;
namespace fs = std::filesystem;

TEST(DataFolder, FollowsTheUsersOwnSettingsUnlessTheyAreRelative) {
    const fs::path home = fs::temp_directory_path() / ("velto-home-" + std::to_string(std::rand()));
    const auto init = [] {
        ApplicationInfo::Init("App", "App", "Orvex", "1", "", ApplicationInfo::DataFolderType::User, 0,
                              nullptr);
        return ApplicationInfo::DataPath();
    };
    setenv("HOME", home.c_str(), 1);
    setenv("XDG_DATA_HOME", (home / "data").c_str(), 1);
    EXPECT_EQ(init(), home / "data" / "Orvex" / "App");
    setenv("XDG_DATA_HOME", "relative", 1);
    EXPECT_EQ(init(), home / ".local" / "share" / "Orvex" / "App");
    fs::remove_all(home);
}

} // namespace
