#include "control/WellNames.h"

#include "control/LegendLabels.h"
#include "control/WellGrid.h"
#include "runtime/Text.h"

#include <algorithm>
#include <string>

namespace zorvane {

namespace {

// After a failed load, the plate that is still shown has no definition to name its sub-wells.
std::vector<String> SubWellNames(const Plate& plate) {
    std::vector<String> names;
    for (const auto& subWell : *plate.LoadedDefinition().CompoundWell())
        names.push_back(subWell->WellName());
    names.resize(static_cast<std::size_t>(std::max<Integer>(plate.SubWellCount, 0)));
    return names;
}

} // namespace

WellNames::WellNames(const Plate& plate) {
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
    const WellPlace place = WellGrid{Rows(), Cols()}.PlaceOf(wellNo);
    return Legend(place.row, place.col);
}

String WellNames::SubWell(Integer wellNo) const {
    if (!IsWell(wellNo)) return {};
    const WellPlace place = WellGrid{Rows(), Cols()}.PlaceOf(wellNo);
    return subWells_[static_cast<std::size_t>(place.subWell - 1)];
}

String WellNames::Joined(Integer wellNo, const char* separator) const {
    const String subWell = SubWell(wellNo);
    if (subWells_.size() < 2 || subWell.empty()) return Position(wellNo);
    return Position(wellNo) + separator + subWell;
}

Integer WellNames::WellNumber(Integer position, Integer subWell) const {
    return WellGrid{Rows(), Cols()}.NumberOf({subWell, 0, position});
}

// A legend may have full stops, as may the name of a sub-well.
std::optional<Integer> WellNames::Find(std::string_view name) const {
    if (const auto position = FindPosition(name)) return position;
    for (auto stop = name.find('.'); stop != name.npos; stop = name.find('.', stop + 1)) {
        const auto position = FindPosition(name.substr(0, stop));
        const auto subWell = FindSubWell(name.substr(stop + 1));
        if (position && subWell) return WellNumber(*position, *subWell);
    }
    return std::nullopt;
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
