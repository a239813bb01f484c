#pragma once

#include <Velto/CrashHandler.h>

namespace Velto {

/// Tells the user that the program must end. The crash report is on disk by then.
class CrashHandlerImpl : public ICrashHandlerObserver {
public:
    /// Shows the notice and returns when the user closes it: in place when the user interface's thread
    /// crashed, else on that thread, if it still answers. Shows nothing without a user interface.
    void handleCrash() override;
};

} // namespace Velto
