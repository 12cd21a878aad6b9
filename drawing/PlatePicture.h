#pragma once

#include "control/Plate.h"
#include "drawing/Canvas.h"
#include "drawing/SvgCanvas.h"
#include "platform/memory/MemorySite.h"
#include "runtime/Export.h"
#include "runtime/Types.h"

#include <vector>

namespace zorvane {

/// How a well looks in a picture.
struct DrawnWell {
    String name{};         ///< such as "A1" or "B3.Drop2"
    Long color = kNoColor; ///< of its bottom, 0x00BBGGRR; kNoColor leaves it as it is
    String caption{};      ///< left out where it does not fit
};

/// What a picture shows: a plate of a library, or one from its definition text, and its wells.
struct PictureRequest {
    String plate{};      ///< a name in the library, in any letter case
    String fileName{};   ///< the library; the default one where this is empty
    String definition{}; ///< its text, used instead of the library where this is not empty

    Single scale = kDefaultScale; ///< drawing units (1/1440 inch) a millimetre
    /// The size in pixels into which the plate is fitted, in place of the scale; 0 for none.
    Integer width = 0;
    Integer height = 0;

    std::vector<String> selected{}; ///< names of wells, read as WellNames::Find does
    std::vector<DrawnWell> wells{};
};

/// A picture of a plate in the making: a control that is shown nowhere, and without the details
/// panel and the button that opens it, as nobody can press that in a picture.
class ZORVANE_EXPORT PlatePicture {
  public:
    /// A picture at a scale, in drawing units a millimetre, of what will be loaded into Control().
    explicit PlatePicture(Single scale);
    /// Loads and marks what is asked for, and shows no message. Error 5 for a plate that cannot be
    /// loaded, 6 for one that is too large to be drawn, 9 for a well that is not there.
    explicit PlatePicture(const PictureRequest& request);

    /// What is drawn; anything about it can be changed.
    Plate& Control() { return plate_; }

    /// Fits the loaded plate into the middle of an area, in drawing units; error 6 for a side
    /// longer than 32,767 of them.
    void FitInto(Single width, Single height);

    /// What the picture covers, in drawing units: the plate at its scale, or the area it was fitted
    /// into.
    Rect Area() const;
    /// The page of an SVG picture of it, with the plate's name and size in words.
    SvgPage Page() const;
    void Paint(Canvas& canvas, const SystemPalette& palette = {}) const;

  private:
    void Load(const PictureRequest& request);
    void Mark(const PictureRequest& request);

    MemorySite site_;
    Plate plate_{site_};
};

/// The picture as SVG. Fails as the constructor of PlatePicture does.
ZORVANE_EXPORT String DrawPlate(const PictureRequest& request);

} // namespace zorvane
