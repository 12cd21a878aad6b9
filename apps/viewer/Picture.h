#pragma once

#include <QString>

namespace zorvane::viewer {

/// Writes the picture of a plate of a library to an image file in the format of its extension.
/// Returns what is wrong; empty text on success.
QString WritePicture(const QString& library, const QString& plateName, const QString& file);

} // namespace zorvane::viewer
