#pragma once

#include "runtime/Export.h"
#include "runtime/Types.h"

namespace zorvane {

/// Hears the events of a Plate and what changes in it; each call's default does nothing. X and Y
/// are drawing units in the plate area; buttons and shift keys add up as in PlateTypes.h.
class ZORVANE_EXPORT PlateObserver {
  public:
    virtual ~PlateObserver() = default;

    // The events, numbered from 1 in this order in hosts that number them.

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
    /// The selected wells were dragged by this many columns and rows. Moving their data is the
    /// host's task.
    virtual void DragMove(Integer /*button*/, Integer /*shift*/, Integer /*columns*/,
                          Integer /*rows*/) {}
    /// The edited definition was applied.
    virtual void ApplyChanges() {}

    // What has changed, told at the end of each operation (a call of the host or an input of the
    // operator) and before it raises an event or asks the operator; each at most once.

    /// The definition has changed, or another one or another layout is shown; anything about any
    /// well may have changed.
    virtual void PlateChanged() {}
    /// Another well is the current one.
    virtual void CurrentWellChanged(Integer /*wellNo*/) {}
    /// Wells were selected or no longer are.
    virtual void SelectionChanged() {}
    /// Text, error code, volume, annotation, mark or colours of wells among these well numbers,
    /// both included, have changed.
    virtual void WellDataChanged(Integer /*first*/, Integer /*last*/) {}
};

} // namespace zorvane
