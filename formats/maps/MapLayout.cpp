#include "formats/maps/MapLayout.h"

#include "formats/PlateSource.h"

#include <algorithm>
#include <set>
#include <tuple>

namespace zorvane {

namespace {

/// The neighbour that an interleaved line changes places with: the second of the first, the fourth
/// of the third, and back.
Long Partner(Long line) { return line % 2 == 0 ? line + 1 : line - 1; }

Long Interleaved(Long line, Long across) { return across % 2 == 0 ? line : Partner(line); }

/// The row or column by which a group of that kind has a well.
Long LineOf(GroupKind kind, const WellPosition& well) {
    switch (kind) {
    case GroupKind::Row:
        return well.row;
    case GroupKind::Col:
        return well.col;
    case GroupKind::Irow:
        return Interleaved(well.row, well.col);
    default:
        return Interleaved(well.col, well.row);
    }
}

bool IsLines(GroupKind kind) { return kind >= GroupKind::Icol && kind <= GroupKind::Row; }

class Layout {
  public:
    explicit Layout(std::vector<MapGroup> groups) : groups_(std::move(groups)) {
        std::stable_sort(groups_.begin(), groups_.end(), [](const MapGroup& a, const MapGroup& b) {
            const auto rank = [](const MapGroup& group) {
                return std::tuple(group.kind, group.ofPlate,
                                  -std::int64_t{group.width} * group.height, group.place);
            };
            return rank(a) < rank(b);
        });
    }

    std::vector<MappedWell> Wells() {
        AddCorners();
        AddCrossings();
        for (const MapGroup& group : groups_)
            Apply(group);
        std::vector<MappedWell> wells;
        for (const auto& [position, parameters] : wells_) {
            if (!parameters.empty())
                wells.push_back({position, {parameters.begin(), parameters.end()}});
        }
        return wells;
    }

  private:
    void Count(std::int64_t steps) {
        constexpr std::int64_t most = 10'000'000;
        steps_ += steps;
        if (steps_ > most) RefuseSource("the layout gives more values than a plate can have");
    }

    void AddWell(const WellPosition& well) {
        wells_.try_emplace(well);
        if (wells_.size() > static_cast<std::size_t>(kMostWells))
            RefuseSource("a plate cannot have more than 32767 wells");
    }

    template <class Action>
    void ForEachOfCorners(const MapGroup& group, Action action) {
        for (const WellPosition& corner : group.corners) {
            Count(std::int64_t{group.width} * group.height);
            for (Long row = 0; row < group.height; ++row) {
                for (Long col = 0; col < group.width; ++col)
                    action(WellPosition{corner.row + row, corner.col + col});
            }
        }
    }

    void AddCorners() {
        for (const MapGroup& group : groups_)
            ForEachOfCorners(group, [this](const WellPosition& well) { AddWell(well); });
    }

    std::set<Long> LinesOf(GroupKind kind) const {
        std::set<Long> lines;
        for (const MapGroup& group : groups_)
            if (group.kind == kind) lines.insert(group.lines.begin(), group.lines.end());
        return lines;
    }

    void AddCrossings() {
        const auto cross = [this](const std::set<Long>& rows, const std::set<Long>& cols,
                                  auto wellAt) {
            Count(static_cast<std::int64_t>(rows.size()) * static_cast<std::int64_t>(cols.size()));
            for (const Long row : rows) {
                for (const Long col : cols)
                    AddWell(wellAt(row, col));
            }
        };
        const auto rows = LinesOf(GroupKind::Row);
        const auto cols = LinesOf(GroupKind::Col);
        cross(rows, cols, [](Long row, Long col) { return WellPosition{row, col}; });
        cross(LinesOf(GroupKind::Irow), cols, [](Long row, Long col) {
            return WellPosition{Interleaved(row, col), col};
        });
        cross(rows, LinesOf(GroupKind::Icol), [](Long row, Long col) {
            return WellPosition{row, Interleaved(col, row)};
        });
    }

    void Apply(const MapGroup& group) {
        const auto set = [&](std::map<String, String>& parameters) {
            Count(static_cast<std::int64_t>(group.parameters.size()));
            for (const auto& [name, value] : group.parameters)
                parameters[name] = value;
        };
        if (group.parameters.empty()) return;
        if (group.kind == GroupKind::Well || group.kind == GroupKind::Block)
            return ForEachOfCorners(group, [&](const WellPosition& well) { set(wells_[well]); });
        const std::set<Long> lines(group.lines.begin(), group.lines.end());
        Count(static_cast<std::int64_t>(wells_.size()));
        for (auto& [position, parameters] : wells_) {
            if (!IsLines(group.kind) || lines.contains(LineOf(group.kind, position)))
                set(parameters);
        }
    }

    std::vector<MapGroup> groups_;
    std::map<WellPosition, std::map<String, String>> wells_;
    std::int64_t steps_ = 0;
};

} // namespace

std::vector<MappedWell> WellsOfLayout(std::vector<MapGroup> groups) {
    return Layout(std::move(groups)).Wells();
}

} // namespace zorvane
