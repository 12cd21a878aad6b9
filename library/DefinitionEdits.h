#pragma once

#include "model/cmPlate.h"
#include "platetext/Keywords.h"

namespace zorvane {

// Changes of a plate definition that its text gives back: what they record stands among the values
// of its own sub-well. Sub-wells are named in any letter case.
//
// Each raises ErrorNumber::EditNotPossible, with a description for the user, where the plate does
// not allow it. A plate that could not be turned or moved is of no further use.

/// Turns the plate counter-clockwise by a quarter.
void TurnPlate(cmPlate& plate);
/// Moves all sub-wells by millimetres; a positive dZ raises their bottoms.
void MoveSubWells(cmPlate& plate, Single dX, Single dY, Single dZ);
void RenameSubWell(cmPlate& plate, const String& name, const String& newName);
void ExchangeSubWells(cmPlate& plate, const String& name, const String& otherName);
void RemoveSubWell(cmPlate& plate, const String& name);
/// Adds a sub-well after the others, with the values of one that is there.
void AddSubWellLike(cmPlate& plate, const String& name, const String& like);

/// Gives a sub-well another number, which is recorded with all its digits; error 6 for one that is
/// not finite.
void SetSubWellNumber(cmPlate& plate, const String& name, Keyword keyword, Single value);
/// Gives a sub-well the style of a name, as definitions have it.
void SetSubWellStyle(cmPlate& plate, const String& name, const String& style);

} // namespace zorvane
