#pragma once

#include "control/ControlParts.h"
#include "runtime/Types.h"

/// Rectangular blocks of wells: recording and selecting one, and walking it in one of eight orders.
namespace zorvane {

inline constexpr Long kNoColor = -1;

/// Error 2999 when the block leaves the plate; it is recorded all the same.
void SelectArray(ControlParts parts, Integer x, Integer y, Integer width, Integer height,
                 const String& subWell, Long direction, Long color);

/// Walks the recorded block and colours and annotates its wells from `startWell` to `stopWell`,
/// counted from 1 along the walk; a stop of -1 is the whole block. The first "#" of the annotation
/// becomes the number along the walk; kNoValue leaves the annotations alone.
void FillRecordedArray(ControlParts parts, Long color, const String& annotation, Integer startWell,
                       Integer stopWell);

} // namespace zorvane
