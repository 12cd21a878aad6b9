#include "apps/viewer/texts/ErrorText.h"

#include "hosts/qt/texts/ControlText.h"
#include "hosts/qt/texts/CoreTexts.h"

#include <QtGlobal>

namespace zorvane::viewer {

namespace {

/// The failures of libraries and of files with well data, as they are spelled there. Of two that
/// fit, the first counts.
// clang-format off
constexpr const char* kTexts[] = {
    // Editing
    QT_TRANSLATE_NOOP("Library", "\"%1\" cannot be edited here: the control would lose the line \"%2\", at or after a keyword that it does not know."),
    QT_TRANSLATE_NOOP("Library", "\"%1\" was not saved: the line \"%2\" could not be read back. Undo brings the plate back as it was."),
    QT_TRANSLATE_NOOP("Library", "the definition of \"%1\" could not be read back"),
    QT_TRANSLATE_NOOP("Library", "the library has a plate \"%1\" already"),
    QT_TRANSLATE_NOOP("Library", "the name of a plate is one word that does not begin with \";\""),
    QT_TRANSLATE_NOOP("Library", "the library has no plate \"%1\" that can be found, because it begins with a byte order mark"),
    QT_TRANSLATE_NOOP("Library", "the library has no plate \"%1\" that can be found, because an INCLUDE line ends every search of it"),
    QT_TRANSLATE_NOOP("Library", "the library has no plate \"%1\" that can be found, because a line that cannot be taken as written ends every search of it"),
    QT_TRANSLATE_NOOP("Library", "the library has no plate \"%1\" that can be found, because a line outside any plate ends every search of it"),
    QT_TRANSLATE_NOOP("Library", "the library has no plate \"%1\""),
    // Reading and saving
    QT_TRANSLATE_NOOP("Library", "%1 cannot be read: %2"),
    QT_TRANSLATE_NOOP("Library", "%1 was not saved: %2. Nothing was overwritten."),
    QT_TRANSLATE_NOOP("Library", "%1 was not saved: %2 failed: %3. The file is as it was."),
    QT_TRANSLATE_NOOP("Library", "%1 was not saved: %2 failed: %3. The new content is in the file."),
    QT_TRANSLATE_NOOP("Library", "%1 was not saved: %2 failed: %3. The new content is in the file, the former in %4."),
    QT_TRANSLATE_NOOP("Library", "%1 was not saved: %2 failed: %3."),
    QT_TRANSLATE_NOOP("Library", "looking for it"),
    QT_TRANSLATE_NOOP("Library", "looking for its folder"),
    QT_TRANSLATE_NOOP("Library", "writing to it"),
    QT_TRANSLATE_NOOP("Library", "writing a temporary file next to it"),
    QT_TRANSLATE_NOOP("Library", "putting the new content in its place"),
    QT_TRANSLATE_NOOP("Library", "flushing the folder"),
    QT_TRANSLATE_NOOP("Library", "writing a backup of it"),
    QT_TRANSLATE_NOOP("Library", "waiting for other programs"),
    QT_TRANSLATE_NOOP("Library", "reading it again"),
    QT_TRANSLATE_NOOP("Library", "keeping the backup"),
    QT_TRANSLATE_NOOP("Library", "it is not there"),
    QT_TRANSLATE_NOOP("Library", "there is no permission"),
    QT_TRANSLATE_NOOP("Library", "the disk is read-only"),
    QT_TRANSLATE_NOOP("Library", "it is a folder"),
    QT_TRANSLATE_NOOP("Library", "the disk is full"),
    QT_TRANSLATE_NOOP("Library", "the device failed"),
    QT_TRANSLATE_NOOP("Library", "it is not an ordinary file"),
    QT_TRANSLATE_NOOP("Library", "it is read-only"),
    QT_TRANSLATE_NOOP("Library", "another program does not finish saving in this folder"),
    QT_TRANSLATE_NOOP("Library", "another program has changed it since it was read"),
    // Well data
    QT_TRANSLATE_NOOP("Library", "line %1, column %2 (%3): %4"),
    QT_TRANSLATE_NOOP("Library", "line %1, column %2: %3"),
    QT_TRANSLATE_NOOP("Library", "the file is empty"),
    QT_TRANSLATE_NOOP("Library", "the quote is never closed"),
    QT_TRANSLATE_NOOP("Library", "a comma is missing after the closing quote"),
    QT_TRANSLATE_NOOP("Library", "a field too many"),
    QT_TRANSLATE_NOOP("Library", "the line ends before this column"),
    QT_TRANSLATE_NOOP("Library", "no column is named \"%1\""),
    QT_TRANSLATE_NOOP("Library", "there is no column \"%1\"; the columns are %2"),
    QT_TRANSLATE_NOOP("Library", "the column is there twice"),
    QT_TRANSLATE_NOOP("Library", "the plate has no well \"%1\""),
    QT_TRANSLATE_NOOP("Library", "the plate has no sub-well \"%1\""),
    QT_TRANSLATE_NOOP("Library", "\"%1\" is neither yes nor no"),
    QT_TRANSLATE_NOOP("Library", "\"%1\" is not a number"),
    QT_TRANSLATE_NOOP("Library", "%1 is too large"),
    QT_TRANSLATE_NOOP("Library", "%1 is not a whole number from -32768 to 32767"),
    QT_TRANSLATE_NOOP("Library", "%1 is on line %2 already"),
};
// clang-format on

} // namespace

QString ErrorText(const RuntimeError& error) {
    static const CoreTexts texts("Library", kTexts);
    const QString description = QString::fromStdString(error.Description());
    const QString shown = texts.Shown(description);
    return shown == description ? ControlText(error.Description()) : shown;
}

} // namespace zorvane::viewer
