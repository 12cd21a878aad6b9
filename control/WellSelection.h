#pragma once

#include "control/ControlParts.h"
#include "runtime/Types.h"

/// Which well is the current one, which wells are selected, and which well lies under a point.
namespace zorvane {

// The current well. None of these checks a range, draws or raises an event; error 6 when a well
// number does not fit 16 bits.

void SetCurrentWell(PlateState& state, Integer wellNo);
void SetRow(PlateState& state, Integer row);
void SetCol(PlateState& state, Integer col);
/// Moves within the current sub-well.
void MakeCurrent(PlateState& state, Integer row, Integer col);
/// 0 stands for the last sub-well.
void SetWellIndex(PlateState& state, Integer wellIndex);
/// An unknown name leads one past the last sub-well, unless the present one is the default one.
void SetSubWell(PlateState& state, const String& name);
String SubWellName(const PlateState& state);

// The selection. Error 9 or 91 for a well that does not exist.

void ClearSelection(ControlParts parts);
void SelectOneWell(ControlParts parts, Integer wellNo, Boolean selected);
void SetWell(ControlParts parts, Integer row, Integer col, const String& subWell,
             WellSelectAction action);
/// Marks and counts the current well unless it is selected already; tells whether it was not.
Boolean AddCurrentWellToSelection(ControlParts parts);

/// The well under a point of the plate area, or -1.
Integer WellAt(const PlateState& state, const Surface& surface, Single x, Single y);

/// Marks the whole control as the selected one, or not.
void MarkControl(ControlParts parts, Boolean selected);

} // namespace zorvane
