#pragma once

#include "control/PlateFields.h"
#include "control/wells/Selection.h"
#include "control/wells/WellCursor.h"
#include "control/wells/WellElements.h"
#include "runtime/Types.h"

namespace zorvane {

/// The rectangular block of wells recorded last: selecting it, and walking it in one of eight
/// orders.
class WellBlock {
  public:
    /// `plateName` is that of the loaded plate.
    WellBlock(const PlateFields& fields, const String& plateName, WellCursor& cursor,
              Selection& selection, WellElements& elements)
        : fields_(fields), plateName_(plateName), cursor_(cursor), selection_(selection),
          elements_(elements) {}

    Integer X() const { return x_; }
    Integer Y() const { return y_; }
    Integer Width() const { return width_; }
    Integer Height() const { return height_; }
    Boolean IsSingleWell() const { return width_ == 1 && height_ == 1; }

    void Record(Integer x, Integer y, Integer width, Integer height);
    /// The order of Fill, an ArrayFillOrder.
    void Direction(Long direction) { direction_ = direction; }

    /// Adds the wells of the block to the selection and gives those that are new in it a colour,
    /// unless that is kNoColor. Error 2999 when the block leaves the plate.
    void Select(Long color);

    /// Walks the block and colours and annotates its wells from `startWell` to `stopWell`, counted
    /// from 1 along the walk; a stop of -1 is the whole block. The first "#" of the annotation
    /// becomes the number along the walk; kNoValue leaves the annotations alone.
    void Fill(Long color, const String& annotation, Integer startWell, Integer stopWell);

  private:
    void Check() const;

    const PlateFields& fields_;
    const String& plateName_;
    WellCursor& cursor_;
    Selection& selection_;
    WellElements& elements_;
    Integer x_ = 0;
    Integer y_ = 0;
    Integer width_ = 0;
    Integer height_ = 0;
    Long direction_ = foTopLeftHorizontal;
};

} // namespace zorvane
