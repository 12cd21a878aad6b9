#pragma once

#include "control/PlateTypes.h"
#include "runtime/Types.h"

namespace zorvane {

/// The fields of a Plate that the host reads and writes directly; none has a side effect.
struct PlateFields {
    String FileName; ///< plate library from which SetPlate loads
    Integer Status = 0;
    Boolean MultipleSelect = false; ///< more than one well may be selected at a time
    Boolean DragDrop = false;       ///< a press on a selected well begins a move, not a selection
    Integer Cols = 0;
    Integer Rows = 0;
    Integer SubWellCount = 0;
    Single XPitch = 0;        ///< column spacing, mm
    Single YPitch = 0;        ///< row spacing, mm
    Single xOverall = 0;      ///< plate width, mm
    Single yOverall = 0;      ///< plate depth, mm
    Single PHeight = 0;       ///< plate height, mm
    Single XLeft = 0;         ///< plate x of column 0, mm
    Single YTop = 0;          ///< plate y of row 0, mm
    Single ZClear = 0;        ///< height that clears the plate, mm
    Boolean FixedSize = true; ///< the drawing is fitted to the control instead of the reverse
    Boolean Dirty = false;
    Long DefaultSelectColor = kDefaultSelectColor; ///< rim of a selected well
    Boolean HorizontalCentred = false;             ///< with FixedSize
    Boolean VerticalCentred = false;               ///< with FixedSize
    Long DefinedWellColor = 0;                     ///< bottom of a defined well without error
    Long ErrorWellColor = 0;                       ///< bottom of a defined well with an error code
    Long SelectedColor = kButtonShadow; ///< plate area while the control is marked Selected
    Long DeselectedColor = kButtonFace; ///< plate area otherwise
};

} // namespace zorvane
