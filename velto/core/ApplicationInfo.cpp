#include "core/SystemFolders.h"

#include <Velto/ApplicationInfo.h>

#include <algorithm>
#include <system_error>

namespace Velto {

namespace {

namespace fs = std::filesystem;

struct Identity {
    std::string name;
    std::string normalizedName;
    std::string version;
    fs::path dataPath;
};

Identity& identity() {
    static Identity values;
    return values;
}

bool isFileNameCharacter(char c) {
    // Not std::isalnum: that would follow the locale.
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '-' || c == '_';
}

std::string normalized(const std::string& name) {
    std::string result;
    std::copy_if(name.begin(), name.end(), std::back_inserter(result), isFileNameCharacter);
    return result;
}

fs::path baseFolder(ApplicationInfo::DataFolderType type) {
    if (type == ApplicationInfo::DataFolderType::Executable) {
        return detail::runningExecutable().parent_path();
    }
    if (type != ApplicationInfo::DataFolderType::Temporary) {
        if (fs::path folder = detail::systemFolder(type); !folder.empty()) {
            return folder;
        }
    }
    std::error_code ignored;
    return fs::temp_directory_path(ignored);
}

} // namespace

bool ApplicationInfo::Init(const std::string& name, const std::string& folder, const std::string& company,
                           const std::string& version, const std::string& root, const DataFolderType& type,
                           int /*argc*/, char** /*argv*/) {
    Identity& values = identity();
    values.name = name;
    values.normalizedName = normalized(name);
    values.version = version;
    const fs::path base = root.empty() ? baseFolder(type) : fs::u8path(root);
    values.dataPath = base / fs::u8path(company) / fs::u8path(folder);

    std::error_code error;
    fs::create_directories(values.dataPath, error);
    return !error && fs::is_directory(values.dataPath, error);
}

std::string ApplicationInfo::Name() {
    return identity().name;
}
std::string ApplicationInfo::Version() {
    return identity().version;
}
std::string ApplicationInfo::NormalizedName() {
    return identity().normalizedName;
}
fs::path ApplicationInfo::DataPath() {
    return identity().dataPath;
}
fs::path ApplicationInfo::ExecutablePath() {
    return detail::runningExecutable();
}

} // namespace Velto
