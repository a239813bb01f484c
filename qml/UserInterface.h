#pragma once

namespace orvex {

/// Makes the documents, images and fonts of the user interface available under "qrc:/qml/" and sets the
/// program's own font, so that it looks the same on every system. After the application object is made,
/// before the first document is loaded; GUI thread.
void prepareUserInterface();

} // namespace orvex
