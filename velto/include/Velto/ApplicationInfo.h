#pragma once

#include <filesystem>
#include <string>

namespace Velto {

/// Who this process is, and where it may write. Set once by `Init` at the very start of the process, before
/// any other thread runs; the readers may then be called on any thread.
class ApplicationInfo {
public:
    /// Which folder `DataPath` stands for. The values are part of the interface.
    enum class DataFolderType {
        Executable = 0, ///< the folder of the running executable
        Machine = 1,    ///< shared by all users (Windows: %ProgramData%; elsewhere /var/lib)
        User = 2, ///< this user's own (Windows: %LOCALAPPDATA%; elsewhere $XDG_DATA_HOME or ~/.local/share)
        Temporary = 3, ///< the system's folder for temporary files
    };

    /// Registers the process. `name` is the application's name, `folder` the last part of its data folder,
    /// `company` the part before it, `version` its version as shown to people. `root` replaces the base
    /// folder that `type` stands for; empty keeps it. Creates the data folder. Returns false when the data
    /// folder cannot be created; the values are set all the same.
    static bool Init(const std::string& name, const std::string& folder, const std::string& company,
                     const std::string& version, const std::string& root, const DataFolderType& type,
                     int argc, char** argv);

    static std::string Name();
    static std::string Version();

    /// The name fit for a file name: every character outside A-Z, a-z, 0-9, '-' and '_' is left out.
    static std::string NormalizedName();

    /// The folder for everything this program writes: <base>/<company>/<folder>.
    static std::filesystem::path DataPath();

    /// The running executable's own file; empty when the system does not tell.
    static std::filesystem::path ExecutablePath();
};

} // namespace Velto
