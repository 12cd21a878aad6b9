#pragma once

#include "runtime/Types.h"

namespace zorvane {

/// Identifiers of the control's events; they never change.
enum class PlateEvent : Long {
    DoubleClick = 1,
    Click = 2,
    SelectWell = 3,
    SelectMultipleWells = 4,
    MouseDown = 5,
    MouseUp = 6,
    DragMove = 7,
    ApplyChanges = 8,
};

/// Hears the events of a Plate; each call's default does nothing. X and Y are drawing units in the
/// plate area; buttons and shift keys add up as in PlateTypes.h.
class PlateObserver {
  public:
    virtual ~PlateObserver() = default;

    /// A double click on the plate area while MouseEnabled.
    virtual void DoubleClick() {}
    /// A click on the plate area while MouseEnabled.
    virtual void Click() {}
    /// An area selection ended on one well, the current one.
    virtual void SelectWell(Integer /*wellNo*/) {}
    /// An area selection ended covering more than one well.
    virtual void SelectMultipleWells() {}
    /// A button went down on the plate area and began no gesture.
    virtual void MouseDown(Integer /*button*/, Integer /*shift*/, Single /*x*/, Single /*y*/) {}
    /// A button came up on the plate area with no gesture in progress.
    virtual void MouseUp(Integer /*button*/, Integer /*shift*/, Single /*x*/, Single /*y*/) {}
    /// The selected wells were dragged by so many columns and rows. Moving their data is the
    /// host's.
    virtual void DragMove(Integer /*button*/, Integer /*shift*/, Integer /*columns*/,
                          Integer /*rows*/) {}
    /// The edited definition was applied.
    virtual void ApplyChanges() {}
};

} // namespace zorvane
