#pragma once

#include <QImage>
#include <QString>

namespace orvex::Screenshots {

/// Writes the picture as a small PNG: with the 256 colours that fill most of it, each other pixel with the
/// nearest of these. False when the file cannot be written.
bool savePicture(const QImage& picture, const QString& file);

} // namespace orvex::Screenshots
