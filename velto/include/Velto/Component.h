#pragma once

namespace Velto {

/// A part of the process with a life cycle that `ComponentConfigurator` drives, all on the main thread.
class Component {
public:
    enum class Result {
        Success = 0,
        ConfigurationFailure = 1, ///< it is set up wrongly, or the step came out of turn
        FatalFailure = 2,         ///< the system refused what it needs (a thread, memory)
    };

    virtual ~Component() = default;

    virtual Result Init() = 0;     ///< makes what the component needs; nothing runs yet
    virtual Result Resume() = 0;   ///< runs it; also after `Suspend`
    virtual Result Suspend() = 0;  ///< stops it; nothing of it runs when this returns
    virtual Result Shutdown() = 0; ///< ends it for good
};

} // namespace Velto
