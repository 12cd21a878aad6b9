#pragma once

#include "control/Plate.h"
#include "drawing/Canvas.h"
#include "welldata/VolumeScale.h"

#include <unordered_set>
#include <vector>

namespace zorvane {

/// The data of wells as a picture shows them: volumes as colours, annotations or else texts as
/// captions, and errors as a colour and a sign.
class ShownWellData {
  public:
    /// Reads comma-separated data into the wells of a plate that has been laid out, and shows them.
    /// Error 13 for data that do not belong to the plate, which then stays as it was.
    ShownWellData(Plate& plate, const String& csv);

    /// The height that PaintKey needs for a plate.
    static Single KeyHeight(const Plate& plate);

    /// Paints a sign on each well in error that is too small for a caption, then, in `area`, what
    /// the colours mean.
    void PaintSigns(const Surface& surface, Canvas& canvas) const;
    void PaintKey(const Rect& area, Canvas& canvas) const;

  private:
    /// What a sub-well's volumes look like; drops hold far less than reservoirs.
    struct SubWellScale {
        String subWell;
        VolumeScale scale;
    };

    void Show(Plate& plate, Integer well);
    bool ShowsVolumes() const;

    std::vector<SubWellScale> scales_;     ///< of all sub-wells, in their order
    std::unordered_set<Integer> measured_; ///< wells whose volume the file gives, be it 0
    Long defaultColor_;
    std::vector<std::size_t> inError_;
};

} // namespace zorvane
