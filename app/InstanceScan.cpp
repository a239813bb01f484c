#include "app/InstanceScan.h"

namespace orvex {

bool endOtherInstances(ProcessTable& processes) {
    const ProcessId own = processes.ownId();
    const auto ids = processes.list();
    if (!ids) {
        return false;
    }
    const std::string program = executableName(programExecutable);
    const std::string background = executableName(backgroundExecutable);
    bool backgroundRuns = false;
    for (const ProcessId id : *ids) {
        if (id == 0 || id == own) {
            continue;
        }
        const std::string name = processes.name(id);
        if (name == program) {
            processes.end(id);
        } else if (name == background) {
            backgroundRuns = true;
        }
    }
    return !backgroundRuns;
}

} // namespace orvex
