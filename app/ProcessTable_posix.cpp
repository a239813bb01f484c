#include "app/ProcessTable.h"

#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <charconv>
#include <chrono>
#include <filesystem>
#include <system_error>
#include <thread>

namespace orvex {

namespace {

namespace fs = std::filesystem;

constexpr std::chrono::milliseconds lookInterval{5};

fs::path folderOf(ProcessId id) {
    return fs::path("/proc") / std::to_string(id);
}

bool isOfThisUser(ProcessId id) {
    struct stat status {};
    return stat(folderOf(id).c_str(), &status) == 0 && status.st_uid == geteuid();
}

/// Processes of this user, from the system's process folder.
class ProcFolder : public ProcessTable {
public:
    ProcessId ownId() const override { return static_cast<ProcessId>(getpid()); }

    std::optional<std::vector<ProcessId>> list() const override {
        std::error_code error;
        fs::directory_iterator folder("/proc", error);
        if (error) {
            return std::nullopt;
        }
        std::vector<ProcessId> ids;
        for (; folder != fs::directory_iterator(); folder.increment(error)) {
            const std::string entry = folder->path().filename().native();
            ProcessId id = 0;
            const auto [stop, failure] = std::from_chars(entry.data(), entry.data() + entry.size(), id);
            if (failure == std::errc() && stop == entry.data() + entry.size() && isOfThisUser(id)) {
                ids.push_back(id);
            }
            if (error) {
                break;
            }
        }
        return ids;
    }

    std::string name(ProcessId id) const override {
        std::error_code error;
        std::string file = fs::read_symlink(folderOf(id) / "exe", error).filename().native();
        if (error) {
            return unknownName;
        }
        // The mark of a file that was replaced while it runs, as an update does.
        constexpr std::string_view deleted = " (deleted)";
        if (file.size() > deleted.size() &&
            file.compare(file.size() - deleted.size(), deleted.size(), deleted) == 0) {
            file.resize(file.size() - deleted.size());
        }
        return file;
    }

    void end(ProcessId id) override {
        const std::string known = name(id);
        kill(static_cast<pid_t>(id), SIGTERM);
        const auto limit = std::chrono::steady_clock::now() + std::chrono::milliseconds(processEndTimeoutMs);
        // An ended process has no executable any more, even while its parent has not asked for its result.
        while (name(id) == known) {
            if (std::chrono::steady_clock::now() >= limit) {
                kill(static_cast<pid_t>(id), SIGKILL);
                return;
            }
            std::this_thread::sleep_for(lookInterval);
        }
    }
};

} // namespace

std::unique_ptr<ProcessTable> makeSystemProcessTable() {
    return std::make_unique<ProcFolder>();
}

std::string executableName(std::string_view program) {
    return std::string(program);
}

} // namespace orvex
