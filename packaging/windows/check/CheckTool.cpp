// Stands in for what the check of the installed program cannot have: other programs of the maker, a fault of
// the program's own, Windows' firewall.
//
//   (no argument)   leaves "<itself>.started" behind, as a companion would show that it runs
//   crash PROGRAM   makes a thread of the running program of that name run at an address where nothing is
//   hold FILE       keeps a file open as a careless program would, sharing nothing, until its input ends
//
// Named netsh.exe it writes down what it is asked, in C:\netsh.txt.
// The system's own header first: the other does not include it.
// clang-format off
#include <windows.h>
#include <tlhelp32.h>
// clang-format on

#include <cstdio>
#include <cwchar>
#include <string>

namespace {

std::wstring ownPath() {
    std::wstring path(32768, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
    return path;
}

bool append(const std::wstring& file, const std::wstring& line) {
    const int size = WideCharToMultiByte(CP_UTF8, 0, line.data(), static_cast<int>(line.size()), nullptr, 0,
                                         nullptr, nullptr);
    std::string text(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(CP_UTF8, 0, line.data(), static_cast<int>(line.size()), text.data(), size, nullptr,
                        nullptr);
    text += '\n';
    const HANDLE handle =
        CreateFileW(file.c_str(), FILE_APPEND_DATA, FILE_SHARE_READ, nullptr, OPEN_ALWAYS, 0, nullptr);
    DWORD written = 0;
    const bool done = handle != INVALID_HANDLE_VALUE &&
                      WriteFile(handle, text.data(), static_cast<DWORD>(text.size()), &written, nullptr);
    CloseHandle(handle);
    return done;
}

DWORD processOf(const wchar_t* program) {
    const HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
    PROCESSENTRY32W entry{};
    entry.dwSize = sizeof entry;
    DWORD found = 0;
    for (BOOL more = Process32FirstW(snapshot, &entry); more && found == 0;
         more = Process32NextW(snapshot, &entry)) {
        if (_wcsicmp(entry.szExeFile, program) == 0) {
            found = entry.th32ProcessID;
        }
    }
    CloseHandle(snapshot);
    return found;
}

bool crash(const wchar_t* program) {
    const HANDLE process = OpenProcess(PROCESS_ALL_ACCESS, FALSE, processOf(program));
    // No page of a process is ever at its very first addresses.
    const auto nowhere = reinterpret_cast<LPTHREAD_START_ROUTINE>(0x40);
    return process != nullptr &&
           CreateRemoteThread(process, nullptr, 0, nowhere, nullptr, 0, nullptr) != nullptr;
}

bool hold(const wchar_t* file) {
    const HANDLE handle =
        CreateFileW(file, GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_ALWAYS, 0, nullptr);
    if (handle == INVALID_HANDLE_VALUE) {
        return false;
    }
    std::puts("held");
    std::fflush(stdout);
    while (std::getchar() != EOF) {
    }
    return CloseHandle(handle) != FALSE;
}

} // namespace

int wmain(int argc, wchar_t** argv) {
    const std::wstring self = ownPath();
    if (self.size() > 9 && _wcsicmp(self.c_str() + self.size() - 9, L"netsh.exe") == 0) {
        return append(L"C:\\netsh.txt", GetCommandLineW()) ? 0 : 1;
    }
    if (argc == 1) {
        return append(self + L".started", L"started") ? 0 : 1;
    }
    const std::wstring task = argv[1];
    if (argc == 3 && task == L"crash") {
        return crash(argv[2]) ? 0 : 1;
    }
    if (argc == 3 && task == L"hold") {
        return hold(argv[2]) ? 0 : 1;
    }
    return 2;
}
