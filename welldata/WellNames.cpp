#include "welldata/WellNames.h"

#include "control/LegendLabels.h"
#include "runtime/Text.h"

#include <string>

namespace zorvane {

namespace {

std::vector<String> SubWellNames(Plate& plate) {
    const Integer chosen = plate.WellIndex() == 0 ? Integer{1} : plate.WellIndex();
    std::vector<String> names;
    for (Integer position = 1; position <= plate.SubWellCount; ++position) {
        plate.WellIndex(position);
        names.push_back(plate.SubWell());
    }
    plate.WellIndex(chosen);
    return names;
}

} // namespace

WellNames::WellNames(Plate& plate) {
    if (plate.TotalWells() < 1) return;
    for (Integer row = 0; row < plate.Rows; ++row)
        rows_.push_back(RowLegend(plate, row).caption);
    for (Integer col = 0; col < plate.Cols; ++col)
        cols_.push_back(ColumnLegend(plate, col).caption);
    subWells_ = SubWellNames(plate);

    if (IndexLegends()) return;
    caseMatters_ = true;
    if (IndexLegends()) return;
    caseMatters_ = false;
    numbered_ = true;
    IndexLegends();
}

bool WellNames::IndexLegends() {
    positions_.clear();
    Integer position = 0;
    for (Integer row = 0; row < Rows(); ++row) {
        for (Integer col = 0; col < Cols(); ++col)
            if (!positions_.emplace(Key(Legend(row, col)), position++).second) return false;
    }
    return true;
}

String WellNames::Legend(Integer row, Integer col) const {
    if (numbered_) return "R" + std::to_string(row + 1) + "C" + std::to_string(col + 1);
    return rows_[static_cast<std::size_t>(row)] + cols_[static_cast<std::size_t>(col)];
}

String WellNames::Key(std::string_view legend) const {
    return caseMatters_ ? String(legend) : LowerText(legend);
}

bool WellNames::IsWell(Integer wellNo) const {
    return wellNo >= 0 &&
           static_cast<std::size_t>(wellNo) < rows_.size() * cols_.size() * subWells_.size();
}

String WellNames::Position(Integer wellNo) const {
    if (!IsWell(wellNo)) return {};
    const int position = wellNo % (Rows() * Cols());
    return Legend(static_cast<Integer>(position / Cols()), static_cast<Integer>(position % Cols()));
}

String WellNames::SubWell(Integer wellNo) const {
    if (!IsWell(wellNo)) return {};
    return subWells_[static_cast<std::size_t>(wellNo / (Rows() * Cols()))];
}

String WellNames::Full(Integer wellNo) const {
    if (subWells_.size() < 2 || !IsWell(wellNo)) return Position(wellNo);
    return Position(wellNo) + ", " + SubWell(wellNo);
}

std::optional<Integer> WellNames::FindPosition(std::string_view legend) const {
    const auto found = positions_.find(Key(legend));
    if (found == positions_.end()) return std::nullopt;
    return found->second;
}

std::optional<Integer> WellNames::FindSubWell(std::string_view name) const {
    for (std::size_t i = 0; i < subWells_.size(); ++i)
        if (EqualNoCase(subWells_[i], name)) return static_cast<Integer>(i + 1);
    return std::nullopt;
}

} // namespace zorvane
