#pragma once

#include <filesystem>
#include <string_view>
#include <system_error>

namespace Velto::Wire {

/// Makes a file that only its owner can read, and writes it through to the disk. Fails with
/// std::errc::file_exists when there is one already; leaves nothing behind when it fails otherwise.
std::error_code createPrivateFile(const std::filesystem::path& path, std::string_view content);

} // namespace Velto::Wire
