#pragma once

#include "formats/ExactNumber.h"
#include "formats/WellPosition.h"
#include "runtime/Types.h"

#include <vector>

namespace zorvane {

/// One sub-well at one position, as a file gives it: lengths in millimetres, X to the right and Y
/// downwards from the top left corner of the plate to the centre.
struct SourceWell {
    WellPosition position;
    ExactNumber x;
    ExactNumber y;
    ExactNumber sizeX;
    ExactNumber sizeY;
    ExactNumber depth;
    ExactNumber volume;
    ExactNumber rimWidth;
    ExactNumber rimHeight;
    String style = "ROUND"; ///< a word of the library format
};

struct SourceSubWell {
    String name;
    std::vector<SourceWell> wells;
};

/// A plate as a file gives it, well by well.
struct SourcePlate {
    String name;
    ExactNumber length; ///< along X
    ExactNumber width;  ///< along Y
    ExactNumber height;
    ExactNumber shelfDepth = *ExactNumber::Parse("-0.5");
    std::vector<String> tags;
    std::vector<SourceSubWell> subWells;
};

/// The definition of a plate for a library, with CR LF line ends. Numbers have the digits of the
/// source; pitches are differences of those.
///
/// Error 13, with a description that names the well, for wells that a definition cannot hold: a
/// grid with gaps, wells off the grid by 0.0005 mm or more, wells of a sub-well that differ, labels
/// that cannot be counted, and names that are not one word.
String DefinitionText(const SourcePlate& plate);

/// Raises error 13 with a description.
[[noreturn]] void RefuseSource(const String& description);

} // namespace zorvane
