#pragma once

namespace orvex {

/// Lets a program with windows write to the console that it was started from, where the system does not do so
/// by itself. Output that is redirected stays where it goes.
void attachToParentConsole();

} // namespace orvex
