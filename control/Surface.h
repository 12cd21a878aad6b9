#pragma once

#include "control/Elements.h"
#include "control/panel/PanelElements.h"
#include "platform/HostSite.h"
#include "runtime/Export.h"
#include "runtime/Geometry.h"
#include "runtime/Types.h"

#include <cstdint>
#include <utility>
#include <vector>

/// The retained elements of the control: plain data, and the single truth about what is shown.
/// Lengths are drawing units; elements inside the plate area are relative to its top-left corner.
namespace zorvane {

/// A stretch of elements that lie one over the other in index order: for wells the rim, bottom and
/// text of each, for legends the labels.
struct PaintRun {
    enum class Kind : std::uint8_t { Wells, Legends };
    Kind kind;
    Integer first;
    Integer count;
    Integer pitch; ///< from one well of the run to the next; 0 for legends
    Rect bounds;   ///< holds every element of the run
};

/// A size or position on the surface, computed in double and stored once; error 6 when it does not
/// fit 16 bits.
ZORVANE_EXPORT Single OnSurface(Double value);

struct ZORVANE_EXPORT Surface {
    Surface();

    Frame fraPlate;
    Frame fraData;
    Button cmdData;
    Outline SelectBox;
    PanelElements panel; ///< the contents of fraData

    // One element per well number; element 0 always exists.
    std::vector<Shape> WellRim;
    std::vector<Shape> WellBottom;
    std::vector<Label> WellText;
    /// The initial volume as text, kept with the bottom.
    std::vector<String> WellTag;
    /// Row and column legends from 1; element 0 is the measuring stick and is never shown.
    std::vector<Label> lblWell;

    /// The contents of the plate area from back to front; the selection box lies over them all.
    std::vector<PaintRun> paintOrder;

    String plateToolTip;
    PointerShape platePointer = PointerShape::Standard;

    /// Creates or destroys elements so that there is one for each of this many wells; element 0
    /// stays.
    void ResizeWells(std::size_t count);
    /// Makes sure that the legends 0 to `count` - 1 exist, new ones as copies of the first.
    void CreateLegends(std::size_t count);

    /// The box that holds a well's rim, bottom and text, in the plate area.
    Rect WellBox(std::size_t wellNo) const;
    /// The stretch of a run's elements, as positions in the run from (included) to (excluded), that
    /// may touch an area.
    std::pair<Integer, Integer> Touched(const PaintRun& run, const Rect& area) const;
};

} // namespace zorvane
