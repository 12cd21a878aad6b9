#pragma once

#include "control/PlateTypes.h"
#include "runtime/Geometry.h"
#include "runtime/Types.h"

#include <cstdint>
#include <vector>

/// The kinds of elements that a control shows: plain data. A host paints them (shapes, labels,
/// frames) or mirrors them into widgets of its own (buttons, lists, text boxes).
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
    Long fill = kDefaultWellColor;
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
    Boolean bold = false;
    String caption; ///< "&" marks the access key
};

/// A list that shows the entry at one position, from 0; -1 shows none.
struct DropDown {
    Rect box;
    Boolean visible = true;
    Boolean enabled = true;
    Integer position = -1;
    std::vector<String> entries;
};

struct TextBox {
    Rect box;
    Long back = kButtonFace;
    Boolean visible = true;
    Boolean enabled = true;
    Boolean rightAligned = false;
    String text;
};

/// The caption of a text box.
struct RowCaption {
    Rect box;
    Boolean visible = true;
    String caption;
    String Tag; ///< the recorded property that the text box shows
};

/// A dotted outline that inverts what lies under it.
struct Outline {
    Rect box;
    Boolean visible = false;
};

} // namespace zorvane
