#pragma once

#include "control/Plate.h"
#include "runtime/Types.h"

#include <optional>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace zorvane {

/// The names of the wells of the plate that a control shows: positions by their row and column
/// legends ("B3"), sub-wells by their own names. A plate on which two positions have the same
/// legend names them by row and column, counted from 1 ("R2C3"). To be made again for each plate.
class WellNames {
  public:
    /// Leaves the control's current well as it is, but chooses the first sub-well where none has
    /// been chosen yet.
    explicit WellNames(Plate& plate);

    const std::vector<String>& SubWells() const { return subWells_; }
    Integer Rows() const { return static_cast<Integer>(rows_.size()); }
    Integer Cols() const { return static_cast<Integer>(cols_.size()); }

    /// The legend of a well's position; empty for a number that is no well.
    String Position(Integer wellNo) const;
    String SubWell(Integer wellNo) const;
    /// Both, as "B3, Drop1"; only the position where there is one sub-well.
    String Full(Integer wellNo) const;

    /// The index of a position (row times columns plus column), in any letter case unless the
    /// legends differ by nothing else.
    std::optional<Integer> FindPosition(std::string_view legend) const;
    /// The position from 1 of a sub-well, in any letter case.
    std::optional<Integer> FindSubWell(std::string_view name) const;

    /// The number of the well that a sub-well has at a position.
    Integer WellNumber(Integer position, Integer subWell) const {
        return static_cast<Integer>((subWell - 1) * Rows() * Cols() + position);
    }

  private:
    bool IsWell(Integer wellNo) const;
    /// Returns whether every position has a key of its own.
    bool IndexLegends();
    String Legend(Integer row, Integer col) const;
    String Key(std::string_view legend) const;

    std::vector<String> rows_;
    std::vector<String> cols_;
    std::vector<String> subWells_;
    bool numbered_ = false;
    bool caseMatters_ = false;
    std::unordered_map<String, Integer> positions_;
};

} // namespace zorvane
