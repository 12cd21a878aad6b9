#pragma once

#include "control/PlateFields.h"
#include "control/WellRecords.h"
#include "model/cmPlate.h"
#include "runtime/RuntimeError.h"
#include "runtime/Types.h"

#include <memory>

namespace zorvane {

/// The whole state of one control. The parts of the control (layout, selection, gestures, well
/// data, array fill) share it; hosts reach the fields below through the properties of Plate.
struct PlateState : PlateFields {
    Integer CurrentWell = 0; ///< well number, from 0
    Integer Row = 0;         ///< row of the current well, from 0
    Integer Col = 0;         ///< column of the current well, from 0
    Integer WellIndex = 0;   ///< sub-well position of the current well, from 1; 0 for none chosen
    Boolean Selected = false;
    String PlateName;
    Single DrawingScale = 50; ///< drawing units per millimetre
    Integer TotalWells = 0;
    Integer NSelected = 0;
    Boolean PlateLoaded = false;
    Long DefaultWellColor = 0xE0E0E0;
    Long DefaultRimColor = 0xE0E0E0;
    Boolean EditEnable = false; ///< the details panel takes edits
    Boolean LayoutBusy = false; ///< sub-well edits are pending: the hit test answers -1
    Integer ArrayX = 0;
    Integer ArrayY = 0;
    Integer ArrayWidth = 0;
    Integer ArrayHeight = 0;
    String ArraySubwell; ///< stays empty
    Long ArrayDirection = foTopLeftHorizontal;
    Boolean SelectBoxEnabled = false;
    std::unique_ptr<cmPlate> PlateDef;
    WellRecords Wells;
    Integer WellsAllocated = 0;
    Integer SavedHeight = 0; ///< control height before the details panel was opened
    Integer GridTop = 0;     ///< drawing units, as the next three
    Integer GridLeft = 0;
    Integer ColumnPitch = 0;
    Integer RowPitch = 0;
    Single PixelWidth = 0; ///< one screen pixel in drawing units
    Single PixelHeight = 0;
    Integer LabelCount = 0; ///< legends in use, the measuring stick included
    Single DragAnchorX = 0;
    Single DragAnchorY = 0;
    Single DragLastX = 0;
    Single DragLastY = 0;
    Boolean AreaSelect = false;
    Boolean Dragging = false;
    String DefaultFileName;

    /// The loaded definition; error 91 before the first load.
    cmPlate& Definition() const {
        if (!PlateDef) Raise(ErrorNumber::ObjectNotSet);
        return *PlateDef;
    }
};

} // namespace zorvane
