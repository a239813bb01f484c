#pragma once

namespace orvex {

/// Has crashes of this process recorded in its data folder and told to the user. Main thread, once, when the
/// application is registered and logging runs. A failure leaves the program without it.
void setUpCrashHandling();

} // namespace orvex
