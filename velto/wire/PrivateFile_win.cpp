#include "PrivateFile.h"

#include <windows.h>

#include <array>

namespace Velto::Wire {

namespace {

std::error_code lastError() {
    return {static_cast<int>(GetLastError()), std::system_category()};
}

std::error_code writeAll(HANDLE file, std::string_view content) {
    DWORD written = 0;
    const BOOL done = WriteFile(file, content.data(), static_cast<DWORD>(content.size()), &written, nullptr);
    if (!done || written != content.size() || !FlushFileBuffers(file))
        return lastError();
    return {};
}

} // namespace

// Access follows the folder's own list, which in a user's profile admits that user and the administrators.
std::error_code createPrivateFile(const std::filesystem::path& path, std::string_view content) {
    const HANDLE file =
        CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        const DWORD reason = GetLastError();
        return reason == ERROR_FILE_EXISTS ? std::make_error_code(std::errc::file_exists) : lastError();
    }
    const std::error_code error = writeAll(file, content);
    CloseHandle(file);
    if (error)
        DeleteFileW(path.c_str());
    return error;
}

std::optional<std::string> readSharedFile(const std::filesystem::path& path) {
    const HANDLE file =
        CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                    nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return std::nullopt;
    std::string content;
    std::array<char, 4096> chunk{};
    DWORD size = 0;
    BOOL done = TRUE;
    while ((done = ReadFile(file, chunk.data(), static_cast<DWORD>(chunk.size()), &size, nullptr)) &&
           size > 0)
        content.append(chunk.data(), size);
    CloseHandle(file);
    if (!done)
        return std::nullopt;
    return content;
}

} // namespace Velto::Wire
