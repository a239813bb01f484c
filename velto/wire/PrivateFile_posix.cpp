#include "PrivateFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <fstream>
#include <iterator>

namespace Velto::Wire {

namespace {

std::error_code lastError() {
    return {errno, std::generic_category()};
}

std::error_code writeAll(int file, std::string_view content) {
    while (!content.empty()) {
        const ssize_t written = ::write(file, content.data(), content.size());
        if (written < 0 && errno == EINTR)
            continue;
        if (written < 0)
            return lastError();
        content.remove_prefix(static_cast<std::size_t>(written));
    }
    return ::fsync(file) == 0 ? std::error_code{} : lastError();
}

} // namespace

std::error_code createPrivateFile(const std::filesystem::path& path, std::string_view content) {
    const int file = ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (file < 0)
        return lastError();
    std::error_code error = writeAll(file, content);
    if (::close(file) != 0 && !error)
        error = lastError();
    if (error)
        ::unlink(path.c_str());
    return error;
}

std::optional<std::string> readSharedFile(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file)
        return std::nullopt;
    return std::string{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

} // namespace Velto::Wire
