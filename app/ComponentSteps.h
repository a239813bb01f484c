#pragma once

#include <Velto/Component.h>

namespace orvex {

/// The four steps of the component framework that the program drives.
enum class ComponentStep { Initialize, Activate, Suspend, Shutdown };

/// Logs what a step's result says, at error level on the program's own logger; nothing after a success.
void reportComponentStep(ComponentStep step, Velto::Component::Result result);

} // namespace orvex
