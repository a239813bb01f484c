#include "app/ComponentSteps.h"

#include "app/Logging.h"

#include <spdlog/spdlog.h>

#include <array>

namespace orvex {

namespace {

// By step. The small f in the second is meant: whoever searches logs knows these texts.
constexpr std::array<const char*, 4> stepFailures = {
    "Failed to initialize Components", "failed to activate Components", "Failed to suspend Components",
    "Failed to shutdown Components"};

} // namespace

void reportComponentStep(ComponentStep step, Velto::Component::Result result) {
    const auto logger = spdlog::get(programLoggerName);
    if (result == Velto::Component::Result::Success || !logger) {
        return;
    }
    const bool fatal = result == Velto::Component::Result::FatalFailure;
    logger->error("{}: {}", fatal ? "Fatal Error" : "Configuration Error",
                  stepFailures[static_cast<std::size_t>(step)]);
}

} // namespace orvex
