#include "core/SystemFolders.h"

#include <pwd.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <system_error>

namespace Velto::detail {

namespace fs = std::filesystem;

namespace {

fs::path homeFolder() {
    if (const char* home = std::getenv("HOME"); home && *home) {
        return home;
    }
    std::array<char, 4096> text{};
    passwd entry{};
    passwd* found = nullptr;
    if (getpwuid_r(getuid(), &entry, text.data(), text.size(), &found) == 0 && found) {
        return found->pw_dir;
    }
    return {};
}

fs::path userDataFolder() {
    // A relative folder in this variable counts as not set, by the convention that defines it.
    if (const char* folder = std::getenv("XDG_DATA_HOME"); folder && *folder == '/') {
        return folder;
    }
    const fs::path home = homeFolder();
    return home.empty() ? fs::path() : home / ".local" / "share";
}

} // namespace

fs::path systemFolder(ApplicationInfo::DataFolderType type) {
    return type == ApplicationInfo::DataFolderType::Machine ? fs::path("/var/lib") : userDataFolder();
}

fs::path runningExecutable() {
    std::error_code error;
    fs::path file = fs::read_symlink("/proc/self/exe", error);
    return error ? fs::path() : file;
}

} // namespace Velto::detail
