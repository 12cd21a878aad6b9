#pragma once

#include "control/Plate.h"
#include "runtime/Export.h"
#include "runtime/Types.h"

#include <optional>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace zorvane {

/// The names of the wells of the plate that a control shows: positions by their row and column
/// legends ("B3"), sub-wells by their own names. A plate on which two positions have the same
/// legend names them by row and column, counted from 1 ("R2C3"). To be made again for each layout
/// of a plate.
class ZORVANE_EXPORT WellNames {
  public:
    explicit WellNames(const Plate& plate);

    const std::vector<String>& SubWells() const { return subWells_; }
    Integer Rows() const { return static_cast<Integer>(rows_.size()); }
    Integer Cols() const { return static_cast<Integer>(cols_.size()); }

    /// The legend of a well's position; empty for a number that is no well.
    String Position(Integer wellNo) const;
    String SubWell(Integer wellNo) const;
    /// Both, as Find reads them: "B3.Drop1"; only the position where there is one sub-well.
    String Name(Integer wellNo) const { return Joined(wellNo, "."); }
    /// Both, for people to read: "B3, Drop1"; only the position where there is one sub-well.
    String Full(Integer wellNo) const { return Joined(wellNo, ", "); }

    /// The number of the well with a name, whose letter case counts as little as FindPosition says.
    /// A position stands for its first sub-well.
    std::optional<Integer> Find(std::string_view name) const;
    /// The index of a position (row times columns plus column), in any letter case unless the
    /// legends differ by nothing else.
    std::optional<Integer> FindPosition(std::string_view legend) const;
    /// The position from 1 of a sub-well, in any letter case.
    std::optional<Integer> FindSubWell(std::string_view name) const;

    /// The number of the well that a sub-well has at a position.
    Integer WellNumber(Integer position, Integer subWell) const;

  private:
    bool IsWell(Integer wellNo) const;
    String Joined(Integer wellNo, const char* separator) const;
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
