#pragma once

#include "control/PlateTypes.h"
#include "platform/HostSite.h"
#include "runtime/Geometry.h"
#include "runtime/Types.h"

#include <cstdint>
#include <utility>
#include <vector>

/// The retained elements of the control: plain data, and the single truth about what is shown. A
/// host paints them (shapes, labels, frames) or mirrors them into widgets of its own (buttons, text
/// boxes). Lengths are drawing units; elements inside the plate area are relative to its top-left
/// corner.
namespace zorvane {

/// Kinds of filled shapes, with their platform numbers. A circle is the largest one centred in its
/// box; it is never stretched.
enum class ShapeKind : std::uint8_t {
    Rectangle = 0,
    Square = 1,
    Oval = 2,
    Circle = 3,
    Rounded = 4
};

/// A filled shape with an optional outline of one pixel.
struct Shape {
    Rect box;
    Long fill = 0xE0E0E0;
    ShapeKind kind = ShapeKind::Rectangle;
    Boolean border = true;
    Boolean visible = false;
};

/// A line of centred text on a transparent background.
struct Label {
    Rect box;
    Long color = kButtonText;
    Boolean visible = false;
    String caption;
};

/// A framed area with a caption on its top border.
struct Frame {
    Rect box;
    Long back = kButtonFace;
    Long text = kButtonText;
    Boolean visible = false;
    String caption;
};

struct Button {
    Rect box;
    Boolean visible = true;
    Boolean enabled = true;
    Boolean bold = true;
    String caption;
};

/// A dotted outline that inverts what lies under it.
struct Outline {
    Rect box;
    Boolean visible = false;
};

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
Single OnSurface(Double value);

struct Surface {
    Surface();

    Frame fraPlate;
    Frame fraData;
    Button cmdData;
    Outline SelectBox;
    Shape StyleRim;
    Shape StyleWell;

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

    /// Creates or destroys elements so that there is one for each of so many wells; element 0
    /// stays.
    void ResizeWells(std::size_t count);
    /// Makes sure that the legends 0 to `count` - 1 exist.
    void CreateLegends(std::size_t count);

    /// The box that holds a well's rim, bottom and text, in the plate area.
    Rect WellBox(std::size_t wellNo) const;
    /// The stretch of a run's elements, as positions in the run from (included) to (excluded), that
    /// may touch an area.
    std::pair<Integer, Integer> Touched(const PaintRun& run, const Rect& area) const;
};

} // namespace zorvane
