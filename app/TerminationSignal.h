#pragma once

#include <memory>

namespace orvex {

/// While it lives, the system's polite request to end (SIGTERM, SIGINT; Windows: the console's, and the end
/// of the session) makes the Qt application leave its event loop instead of ending the process on the spot.
/// Where the system would end the process right after asking (the session or the console ends), it is held up
/// until this object goes. Made and released on the user interface's thread, with the application object
/// around it; one at a time.
class TerminationSignal {
public:
    TerminationSignal();
    ~TerminationSignal();
    TerminationSignal(const TerminationSignal&) = delete;
    TerminationSignal& operator=(const TerminationSignal&) = delete;

private:
    class Bridge;
    std::unique_ptr<Bridge> m_bridge;
};

} // namespace orvex
