#pragma once

#include "hosts/qt/aids/PlateLegends.h"

#include <optional>
#include <vector>

namespace zorvane {

/// Selections beyond the control's own gestures, made with nothing but its public members, so that
/// the control counts them. They need MultipleSelect; the current well moves only where said.
class SelectionAids {
  public:
    explicit SelectionAids(Plate& plate) : plate_(plate) {}

    /// Selects the block from the anchor to a well, in that well's sub-well, and makes the well
    /// current. The anchor is the well that was current when the selection was first extended.
    void ExtendTo(Integer wellNo, bool keepOthers);
    /// The next extension starts from the then current well.
    void ForgetAnchor() { anchor_.reset(); }

    /// Selects a row or column in the current sub-well.
    void SelectLine(GridLine line, bool keepOthers);
    void SelectAll();
    /// Selects these wells and no others. Without MultipleSelect, each takes the place of the one
    /// before.
    void SelectWells(const std::vector<Integer>& wells);
    /// Whether a well is selected, counted by the control or not.
    bool Any() const;

  private:
    struct Block {
        Integer top, left, bottom, right; // both ends included
    };
    void SelectBlock(const Block& block, Integer subWell);

    Plate& plate_;
    std::optional<Integer> anchor_;
};

} // namespace zorvane
