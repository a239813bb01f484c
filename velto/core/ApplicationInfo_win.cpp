#include "core/SystemFolders.h"

// The system's own header first: the shell's does not include it.
// clang-format off
#include <windows.h>
#include <objbase.h>
#include <shlobj.h>
// clang-format on

#include <memory>
#include <vector>

namespace Velto::detail {

namespace fs = std::filesystem;

fs::path systemFolder(ApplicationInfo::DataFolderType type) {
    const auto& id =
        type == ApplicationInfo::DataFolderType::Machine ? FOLDERID_ProgramData : FOLDERID_LocalAppData;
    wchar_t* text = nullptr;
    const HRESULT result = SHGetKnownFolderPath(id, KF_FLAG_DEFAULT, nullptr, &text);
    const std::unique_ptr<wchar_t, decltype(&CoTaskMemFree)> owner(text, &CoTaskMemFree);
    return SUCCEEDED(result) ? fs::path(text) : fs::path();
}

fs::path runningExecutable() {
    // 32767 characters is the longest path the system knows.
    for (std::vector<wchar_t> text(MAX_PATH); text.size() <= 32768; text.resize(text.size() * 2)) {
        const DWORD length = GetModuleFileNameW(nullptr, text.data(), static_cast<DWORD>(text.size()));
        if (length == 0) {
            return {};
        }
        if (length < text.size()) {
            return fs::path(text.data(), text.data() + length);
        }
    }
    return {};
}

} // namespace Velto::detail
