#pragma once

#include "control/ControlParts.h"
#include "runtime/Types.h"

/// Single elements of the plate area by well number, and changes to them that the host paints
/// again. Error 9 for a number outside of the element lists.
namespace zorvane {

Shape& RimOf(Surface& surface, Integer wellNo);
const Shape& RimOf(const Surface& surface, Integer wellNo);
Shape& BottomOf(Surface& surface, Integer wellNo);
Label& TextOf(Surface& surface, Integer wellNo);
String& TagOf(Surface& surface, Integer wellNo);
const Shape& BottomOf(const Surface& surface, Integer wellNo);
const Label& TextOf(const Surface& surface, Integer wellNo);

void SetRimFill(ControlParts parts, Integer wellNo, Long color);
void SetBottomFill(ControlParts parts, Integer wellNo, Long color);
void SetAnnotation(ControlParts parts, Integer wellNo, const String& caption);
void HideSelectBox(ControlParts parts);

/// Asks the host to paint an area of the plate area again.
void RepaintInPlate(ControlParts parts, const Rect& area);

} // namespace zorvane
