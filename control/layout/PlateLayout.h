#pragma once

#include "control/Definition.h"
#include "control/Notifier.h"
#include "control/PlateFields.h"
#include "control/Surface.h"
#include "control/layout/DrawnGrid.h"
#include "control/layout/LegendLayout.h"
#include "control/layout/SubWellDrawing.h"
#include "control/wells/WellElements.h"
#include "control/wells/WellRecords.h"
#include "runtime/Types.h"

#include <cstddef>

namespace zorvane {

/// Places the elements of the plate area for the loaded definition. A layout is Begin, then
/// PlaceWells, then End. Error 6 when sizes, positions or well counts do not fit 16 bits, 11 when a
/// control of fixed size shows a plate of no size; what was placed so far stays, and the plate area
/// stays hidden.
class PlateLayout {
  public:
    /// The notifier also gives the size of the control.
    PlateLayout(PlateFields& fields, const Definition& definition, WellRecords& wells,
                const WellElements& elements, Surface& surface, Notifier& notifier)
        : fields_(fields), definition_(definition), wells_(wells), elements_(elements),
          surface_(surface), notifier_(notifier), legends_(fields, surface) {}

    const DrawnGrid& Grid() const { return grid_; }
    /// Drawing units per millimetre.
    Single Scale() const { return scale_; }
    /// Takes effect with the next layout.
    void Scale(Single value) { scale_ = value; }
    Integer LegendCount() const { return legends_.Count(); }

    /// Takes over the plate's values and places the frames of plate area and details panel.
    void Begin();
    /// Hides the plate area and places all wells and legends. With `fullReset` every well also gets
    /// its default colours back, its caption emptied and its selection cleared.
    void PlaceWells(Boolean fullReset);
    /// Shows the plate area again.
    void End() { surface_.fraPlate.visible = true; }

  private:
    void CopyPlateValues();
    void PlaceFrames();
    void FitScaleToControl();
    void RetireElements();
    void PlaceSubWells();
    DrawingScales Scales() const;
    void PlaceGrid(const SubWellDrawing& drawing, Integer position);
    void PlaceRow(const SubWellDrawing& drawing, Single y, std::size_t first);
    void PlaceWell(const SubWellDrawing& drawing, std::size_t well, Single x, Single y);
    void CentreFrames();

    PlateFields& fields_;
    const Definition& definition_;
    WellRecords& wells_;
    const WellElements& elements_;
    Surface& surface_;
    Notifier& notifier_;
    LegendLayout legends_;
    DrawnGrid grid_;
    Single scale_ = kDefaultScale;
    Boolean fullReset_ = false; ///< of the layout in progress
};

} // namespace zorvane
