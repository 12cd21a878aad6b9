#pragma once

#include <QString>

namespace zorvane {

/// Writes the picture of a plate of a library to an image file, whose name's ending tells its
/// format. Returns what is wrong; empty text when it has been written.
QString WritePicture(const QString& library, const QString& plateName, const QString& file);

} // namespace zorvane
