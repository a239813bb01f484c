#include "app/ProcessTable.h"

// The system's own header first: the one of its process functions does not include it.
// clang-format off
#include <windows.h>
#include <psapi.h>
// clang-format on

#include <array>
#include <filesystem>
#include <string>
#include <type_traits>

namespace orvex {

namespace {

struct HandleCloser {
    void operator()(HANDLE handle) const { CloseHandle(handle); }
};
using ProcessHandle = std::unique_ptr<std::remove_pointer_t<HANDLE>, HandleCloser>;

ProcessHandle openProcess(ProcessId id, DWORD access) {
    return ProcessHandle(OpenProcess(access, FALSE, static_cast<DWORD>(id)));
}

// The longest path that the system knows.
constexpr std::size_t longestPath = 32768;

/// The file name as its folder has it. The system tells a process's name in the letters that it was started
/// with, and "quivera.exe" in a shell starts the same program.
std::wstring storedName(const std::wstring& path, const std::wstring& startedAs) {
    WIN32_FIND_DATAW found{};
    const HANDLE search = FindFirstFileW(path.c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) {
        return startedAs;
    }
    FindClose(search);
    // Another name for it, such as a short one, is another name.
    const bool differsInCaseOnly =
        CompareStringOrdinal(found.cFileName, -1, startedAs.c_str(), -1, TRUE) == CSTR_EQUAL;
    return differsInCaseOnly ? found.cFileName : startedAs;
}

class SystemProcesses : public ProcessTable {
public:
    ProcessId ownId() const override { return GetCurrentProcessId(); }

    std::optional<std::vector<ProcessId>> list() const override {
        std::array<DWORD, 1024> ids{};
        DWORD bytes = 0;
        if (!EnumProcesses(ids.data(), sizeof ids, &bytes)) {
            return std::nullopt;
        }
        return std::vector<ProcessId>(ids.begin(), ids.begin() + bytes / sizeof(DWORD));
    }

    std::string name(ProcessId id) const override {
        const ProcessHandle process = openProcess(id, PROCESS_QUERY_INFORMATION | PROCESS_VM_READ);
        HMODULE module = nullptr;
        DWORD needed = 0;
        if (!process || !EnumProcessModules(process.get(), &module, sizeof module, &needed)) {
            return unknownName;
        }
        std::array<wchar_t, MAX_PATH> text{};
        const DWORD length =
            GetModuleBaseNameW(process.get(), module, text.data(), static_cast<DWORD>(text.size()));
        if (length == 0) {
            return unknownName;
        }
        std::wstring path(longestPath, L'\0');
        path.resize(
            GetModuleFileNameExW(process.get(), module, path.data(), static_cast<DWORD>(path.size())));
        return std::filesystem::path(storedName(path, {text.data(), length})).u8string();
    }

    void end(ProcessId id) override {
        const ProcessHandle process = openProcess(id, PROCESS_ALL_ACCESS);
        if (!process) {
            return;
        }
        TerminateProcess(process.get(), 0);
        WaitForSingleObject(process.get(), processEndTimeoutMs);
    }
};

} // namespace

std::unique_ptr<ProcessTable> makeSystemProcessTable() {
    return std::make_unique<SystemProcesses>();
}

std::string executableName(std::string_view program) {
    return std::string(program) + ".exe";
}

} // namespace orvex
