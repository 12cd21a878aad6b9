#include "hosts/qt/texts/ControlText.h"

#include "hosts/qt/panel/PanelText.h"
#include "hosts/qt/texts/CoreTexts.h"

#include <QtGlobal>

namespace zorvane {

namespace {

/// All of them, as they are spelled below the hosts.
// clang-format off
constexpr const char* kTexts[] = {
    // The frame, its pages and its button
    QT_TRANSLATE_NOOP("Plate", "%1 - Details"),
    QT_TRANSLATE_NOOP("Plate", "Comments"),
    QT_TRANSLATE_NOOP("Plate", "Tags"),
    QT_TRANSLATE_NOOP("Plate", "General Properties"),
    QT_TRANSLATE_NOOP("Plate", "%1 Well"),
    QT_TRANSLATE_NOOP("Plate", "Apply Changes"),
    // Captions of fields
    QT_TRANSLATE_NOOP("Plate", "Tag %1"),
    QT_TRANSLATE_NOOP("Plate", "No Tags Defined"),
    QT_TRANSLATE_NOOP("Plate", "Rows"),
    QT_TRANSLATE_NOOP("Plate", "Columns"),
    QT_TRANSLATE_NOOP("Plate", "Row Label"),
    QT_TRANSLATE_NOOP("Plate", "Column Label"),
    QT_TRANSLATE_NOOP("Plate", "X Overall"),
    QT_TRANSLATE_NOOP("Plate", "Y Overall"),
    QT_TRANSLATE_NOOP("Plate", "X Pitch"),
    QT_TRANSLATE_NOOP("Plate", "Y Pitch"),
    QT_TRANSLATE_NOOP("Plate", "Plate Height"),
    QT_TRANSLATE_NOOP("Plate", "Height"),
    QT_TRANSLATE_NOOP("Plate", "Shelf Depth"),
    QT_TRANSLATE_NOOP("Plate", "Style"),
    QT_TRANSLATE_NOOP("Plate", "X offset"),
    QT_TRANSLATE_NOOP("Plate", "Y Offset"),
    QT_TRANSLATE_NOOP("Plate", "Depth"),
    QT_TRANSLATE_NOOP("Plate", "Shelf Height"),
    QT_TRANSLATE_NOOP("Plate", "Well Size X"),
    QT_TRANSLATE_NOOP("Plate", "Well Size Y"),
    QT_TRANSLATE_NOOP("Plate", "Volume"),
    QT_TRANSLATE_NOOP("Plate", "Rim Width"),
    QT_TRANSLATE_NOOP("Plate", "Rim Height"),
    QT_TRANSLATE_NOOP("Plate", "Rim Center X"),
    QT_TRANSLATE_NOOP("Plate", "Rim Center Y"),
    QT_TRANSLATE_NOOP("Plate", "Area"),
    QT_TRANSLATE_NOOP("Plate", "Taper"),
    QT_TRANSLATE_NOOP("Plate", "Round"),
    QT_TRANSLATE_NOOP("Plate", "Shelf"),
    QT_TRANSLATE_NOOP("Plate", "Pillar"),
    QT_TRANSLATE_NOOP("Plate", "Square"),
    // Entries of the menu
    QT_TRANSLATE_NOOP("Plate", "Insert New SubWell"),
    QT_TRANSLATE_NOOP("Plate", "Remove SubWell"),
    QT_TRANSLATE_NOOP("Plate", "Rename SubWell"),
    QT_TRANSLATE_NOOP("Plate", "Move SubWell Up"),
    QT_TRANSLATE_NOOP("Plate", "Move SubWell Down"),
    QT_TRANSLATE_NOOP("Plate", "&Rotate Plate 90"),
    QT_TRANSLATE_NOOP("Plate", "Shift All Wells in &X"),
    QT_TRANSLATE_NOOP("Plate", "Shift All Wells in &Y"),
    QT_TRANSLATE_NOOP("Plate", "Raise Bottoms of All Wells"),
    // Questions
    QT_TRANSLATE_NOOP("Plate", "SubWell Name"),
    QT_TRANSLATE_NOOP("Plate", "Enter  a unique name for the subwell"),
    QT_TRANSLATE_NOOP("Plate", "New SubWell Name"),
    QT_TRANSLATE_NOOP("Plate", "X Shift"),
    QT_TRANSLATE_NOOP("Plate", "Y Shift"),
    QT_TRANSLATE_NOOP("Plate", "Z Shift"),
    QT_TRANSLATE_NOOP("Plate", "Enter distance in mm to shift all subwell centers\n+ve value shifts right"),
    QT_TRANSLATE_NOOP("Plate", "Enter distance in mm to shift all subwell centers\n+ve value shifts down"),
    QT_TRANSLATE_NOOP("Plate", "Enter distance in mm to shift bottoms of all subwells\n+ve value shifts up"),
    // Messages
    QT_TRANSLATE_NOOP("Plate", "Can't find Plate <%1> in %2"),
    QT_TRANSLATE_NOOP("Plate", "Error trying to read \"%1\" from <%2>"),
    QT_TRANSLATE_NOOP("Plate", "Attempt to select wells outside <%1> plate"),
    QT_TRANSLATE_NOOP("Plate", "Error in %1"),
    QT_TRANSLATE_NOOP("Plate", "Error number %1\n%2"),
    QT_TRANSLATE_NOOP("Plate", "Could not open registry key <%1> for writing.\nAPI Error=%2"),
    QT_TRANSLATE_NOOP("Plate", "Could not write data to value <%1> in registry key <%2> for writing.\nAPI Error=%3"),
    QT_TRANSLATE_NOOP("Plate", "File not saved"),
    QT_TRANSLATE_NOOP("Plate", "Problem saving \n<%1>"),
    // Failures
    QT_TRANSLATE_NOOP("Plate", "The text defines no plate"),
    QT_TRANSLATE_NOOP("Plate", "The plate has no well %1"),
    QT_TRANSLATE_NOOP("Plate", "Invalid procedure call or argument"),
    QT_TRANSLATE_NOOP("Plate", "Overflow"),
    QT_TRANSLATE_NOOP("Plate", "Subscript out of range"),
    QT_TRANSLATE_NOOP("Plate", "Division by zero"),
    QT_TRANSLATE_NOOP("Plate", "Type mismatch"),
    QT_TRANSLATE_NOOP("Plate", "Bad file name or number"),
    QT_TRANSLATE_NOOP("Plate", "File not found"),
    QT_TRANSLATE_NOOP("Plate", "Device I/O error"),
    QT_TRANSLATE_NOOP("Plate", "Input past end of file"),
    QT_TRANSLATE_NOOP("Plate", "Path/File access error"),
    QT_TRANSLATE_NOOP("Plate", "Path not found"),
    QT_TRANSLATE_NOOP("Plate", "Object variable not set"),
    QT_TRANSLATE_NOOP("Plate", "This key is already associated with an element of this collection"),
    QT_TRANSLATE_NOOP("Plate", "Unknown error"),
};
// clang-format on

} // namespace

QString ControlText(const String& text) {
    static const CoreTexts texts("Plate", kTexts);
    return texts.Shown(ShownText(text).remove(QLatin1Char('\r')));
}

} // namespace zorvane
