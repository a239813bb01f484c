#include "app/Console.h"

#include <windows.h>

#include <cstdio>

namespace orvex {

namespace {

bool isRedirected(DWORD stream) {
    const HANDLE handle = GetStdHandle(stream);
    return handle != nullptr && handle != INVALID_HANDLE_VALUE;
}

} // namespace

void attachToParentConsole() {
    const bool outputGoesElsewhere = isRedirected(STD_OUTPUT_HANDLE);
    const bool errorsGoElsewhere = isRedirected(STD_ERROR_HANDLE);
    if ((outputGoesElsewhere && errorsGoElsewhere) || !AttachConsole(ATTACH_PARENT_PROCESS)) {
        return;
    }
    if (!outputGoesElsewhere) {
        std::freopen("CONOUT$", "w", stdout);
    }
    if (!errorsGoElsewhere) {
        std::freopen("CONOUT$", "w", stderr);
    }
}

} // namespace orvex
