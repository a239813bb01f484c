#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

namespace Velto::Wire {

/// Makes a file that only its owner can read, and writes it through to the disk. Fails with
/// std::errc::file_exists when there is one already; leaves nothing behind when it fails otherwise.
std::error_code createPrivateFile(const std::filesystem::path& path, std::string_view content);

/// The whole content, or nothing when it cannot be read. Reads also while another process removes one of the
/// file's other names: a plain open on Windows is refused then.
std::optional<std::string> readSharedFile(const std::filesystem::path& path);

} // namespace Velto::Wire
