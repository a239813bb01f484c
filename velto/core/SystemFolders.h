#pragma once

#include <Velto/ApplicationInfo.h>

#include <filesystem>

namespace Velto::detail {

/// The base folder that a data-folder type stands for on this system; `Executable` and `Temporary` are the
/// caller's. Empty when the system does not tell.
std::filesystem::path systemFolder(ApplicationInfo::DataFolderType type);

/// The running executable's file; empty when the system does not tell.
std::filesystem::path runningExecutable();

} // namespace Velto::detail
