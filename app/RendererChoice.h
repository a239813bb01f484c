#pragma once

namespace orvex {

/// Has Qt Quick draw in software where OpenGL 2 cannot be had (virtual machines, remote desktops), instead of
/// ending the program. A backend named in QT_QUICK_BACKEND or QMLSCENE_DEVICE stays. User interface's thread,
/// after the application object is made and before the first window.
void chooseRenderer();

} // namespace orvex
