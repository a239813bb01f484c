#include "core/AlternateStack.h"
#include "core/CrashReporting.h"

#include <windows.h>

#include <csignal>
#include <cstdlib>
#include <exception>
#include <string>

namespace Velto::detail {

namespace {

/// Set before the handlers are installed and never changed.
struct Prepared {
    std::wstring pathPrefix;
    std::string headline;
};

Prepared& prepared() {
    static Prepared texts;
    return texts;
}
const Prepared* preparedTexts = nullptr;

// Kept back of a thread's stack for what happens after an overflow.
constexpr ULONG stackGuarantee = 64 * 1024;

// What the process's exit code tells of a programmed abort; the value that the C library's own abort gives.
constexpr UINT abortExitCode = 3;

class ReportFile {
public:
    explicit ReportFile(const wchar_t* path) noexcept
        : m_file(CreateFileW(path, GENERIC_WRITE, FILE_SHARE_READ, nullptr, CREATE_ALWAYS,
                             FILE_ATTRIBUTE_NORMAL, nullptr)) {}
    ~ReportFile() {
        if (m_file != INVALID_HANDLE_VALUE) {
            CloseHandle(m_file);
        }
    }
    ReportFile(const ReportFile&) = delete;
    ReportFile& operator=(const ReportFile&) = delete;

    void write(const CrashText& text) noexcept {
        HANDLE target = m_file != INVALID_HANDLE_VALUE ? m_file : GetStdHandle(STD_ERROR_HANDLE);
        DWORD written = 0;
        WriteFile(target, text.c_str(), static_cast<DWORD>(text.size()), &written, nullptr);
    }

private:
    HANDLE m_file;
};

std::int64_t secondsSince1970() noexcept {
    // File times count tenths of a microsecond since 1601.
    constexpr std::uint64_t ticksPerSecond = 10'000'000;
    constexpr std::uint64_t secondsFrom1601To1970 = 11'644'473'600;
    FILETIME now{};
    GetSystemTimeAsFileTime(&now);
    const std::uint64_t ticks = (std::uint64_t{now.dwHighDateTime} << 32) | now.dwLowDateTime;
    return static_cast<std::int64_t>(ticks / ticksPerSecond - secondsFrom1601To1970);
}

/// The file of a module, UTF-8; empty when it cannot be told.
const char* fileOf(HMODULE module) noexcept {
    // Longer ones are cut, which the system does by itself.
    static std::array<wchar_t, 1024> path;
    static std::array<char, 3 * path.size() + 1> text;
    const DWORD length = GetModuleFileNameW(module, path.data(), static_cast<DWORD>(path.size()));
    const int size = WideCharToMultiByte(CP_UTF8, 0, path.data(), static_cast<int>(length), text.data(),
                                         static_cast<int>(text.size()) - 1, nullptr, nullptr);
    text[static_cast<std::size_t>(size)] = '\0';
    return text.data();
}

void writeFrame(ReportFile& file, void* address) noexcept {
    HMODULE module = nullptr;
    CrashText line;
    // Asked for the module at no address, the system names the program itself.
    if (address != nullptr && GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                                                     GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                                                 static_cast<LPCWSTR>(address), &module)) {
        line << fileOf(module) << "(+";
        line.hex(static_cast<std::uint64_t>(static_cast<char*>(address) - reinterpret_cast<char*>(module)))
            << ") ";
    }
    line.hex(reinterpret_cast<std::uintptr_t>(address)) << "\n";
    file.write(line);
}

void writeReport(const char* cause, void* faultAddress) noexcept {
    const std::int64_t now = secondsSince1970();
    static CrashText pathEnd;
    pathEnd.utcTime(now) << "-" << std::uint64_t{GetCurrentProcessId()} << ".txt";
    static std::array<wchar_t, 4096> path;
    std::size_t length = 0;
    for (const wchar_t* c = preparedTexts->pathPrefix.c_str(); *c != L'\0' && length + 64 < path.size();
         ++c) {
        path[length++] = *c;
    }
    for (const char* c = pathEnd.c_str(); *c != '\0' && length + 1 < path.size(); ++c) {
        path[length++] = static_cast<wchar_t>(*c);
    }

    ReportFile file(path.data());
    static CrashText head;
    head << preparedTexts->headline.c_str() << " crashed\nTime: ";
    head.utcTime(now) << "\nProcess: " << std::uint64_t{GetCurrentProcessId()}
                      << "\nThread: " << std::uint64_t{GetCurrentThreadId()} << "\nCause: " << cause
                      << "\nBacktrace:\n";
    file.write(head);
    if (faultAddress) {
        writeFrame(file, faultAddress);
    }
    // The system's call takes at most 62 frames in its oldest versions.
    std::array<void*, 62> frames{};
    const USHORT count = CaptureStackBackTrace(0, static_cast<DWORD>(frames.size()), frames.data(), nullptr);
    for (USHORT i = 0; i < count; ++i) {
        writeFrame(file, frames[i]);
    }
}

/// Ends the process or the thread's part in the crash; returns only for the thread whose turn it is.
void waitForTurn(UINT exitCode) noexcept {
    switch (takeCrashTurn(GetCurrentThreadId())) {
    case CrashTurn::Report:
        return;
    case CrashTurn::Wait:
        Sleep(INFINITE);
        return;
    case CrashTurn::End:
        TerminateProcess(GetCurrentProcess(), exitCode);
        return;
    }
}

void handleRecord(const EXCEPTION_RECORD& record) noexcept {
    waitForTurn(record.ExceptionCode);
    static CrashText cause;
    cause << "exception ";
    cause.hex(record.ExceptionCode) << " at address ";
    cause.hex(reinterpret_cast<std::uintptr_t>(record.ExceptionAddress));
    writeReport(cause.c_str(), record.ExceptionAddress);
    tellCrashObservers();
}

DWORD WINAPI handleOnFreshStack(void* record) {
    handleRecord(*static_cast<const EXCEPTION_RECORD*>(record));
    return 0;
}

LONG WINAPI handleException(EXCEPTION_POINTERS* exception) {
    EXCEPTION_RECORD& record = *exception->ExceptionRecord;
    if (record.ExceptionCode != EXCEPTION_STACK_OVERFLOW) {
        handleRecord(record);
        return EXCEPTION_CONTINUE_SEARCH;
    }
    // What is left of this stack is enough to start a thread and to wait for it.
    if (const HANDLE thread = CreateThread(nullptr, 0, &handleOnFreshStack, &record, 0, nullptr)) {
        WaitForSingleObject(thread, INFINITE);
        CloseHandle(thread);
    }
    return EXCEPTION_CONTINUE_SEARCH;
}

[[noreturn]] void reportAndEnd(const char* cause) noexcept {
    waitForTurn(abortExitCode);
    writeReport(cause, nullptr);
    tellCrashObservers();
    TerminateProcess(GetCurrentProcess(), abortExitCode);
    std::_Exit(static_cast<int>(abortExitCode));
}

void handleAbort(int /*signalNumber*/) {
    reportAndEnd("abort");
}

[[noreturn]] void handleTerminate() noexcept {
    reportAndEnd(terminationCause().c_str());
}

} // namespace

AlternateStack::AlternateStack() {
    ULONG size = stackGuarantee;
    SetThreadStackGuarantee(&size);
}

AlternateStack::~AlternateStack() = default;

bool installCrashHandlers(const CrashHandler::Configuration& configuration, const std::string& headline) {
    std::error_code ignored;
    const std::filesystem::path folder = std::filesystem::absolute(configuration.dataPath, ignored);
    prepared() = {(folder / configuration.name).native() + L"-crash-", headline};
    preparedTexts = &prepared();
    static const AlternateStack mainStack;
    SetUnhandledExceptionFilter(&handleException);
    std::signal(SIGABRT, &handleAbort);
    std::set_terminate(&handleTerminate);
    return true;
}

} // namespace Velto::detail
