#include "platecheck/WellPlaces.h"

#include "platecheck/WellOutline.h"
#include "platetext/LineParts.h"
#include "runtime/NumberText.h"

#include <algorithm>
#include <cmath>

/// Wells that leave the plate or overlap. Every position has the same wells, so all of them follow
/// from the sub-wells of one position and of those next to it.
namespace zorvane {

namespace {

/// What rounded offsets and sizes may add up to, mm.
constexpr Double kTolerance = 0.02;
/// More sub-wells than any plate is made with; beyond them comparing each with each takes too long.
constexpr std::size_t kMostCompared = 64;

String Millimetres(Double value) { return FormatPicture(value, "0.00") + " mm"; }

/// Only a single row or column has no pitch.
Double StepsBetween(Double a, Double b, Single pitch) {
    return pitch > 0 ? std::round((a - b) / pitch) : 0;
}

struct Place {
    const WellDetails* subWell;
    WellOutline bottom;
    WellOutline rim;
};

bool HasSize(const Place& place) { return place.bottom.halfX > 0 && place.bottom.halfY > 0; }

class Check {
  public:
    Check(const cmPlate& plate, const PlateLines& lines, FindingList& findings)
        : plate_(plate), lines_(lines), findings_(findings) {
        for (const auto& each : *plate.CompoundWell())
            places_.push_back({each.get(), BottomOutline(*each), RimOutline(*each)});
    }

    void Run() {
        for (std::size_t i = 0; i < places_.size(); ++i)
            StaysOnPlate(i);
        for (std::size_t i = 0; i < std::min(places_.size(), kMostCompared); ++i) {
            FindCover(i);
            FindOverlap(i);
        }
    }

  private:
    void StaysOnPlate(std::size_t index) const {
        const WellOutline& rim = places_[index].rim;
        const Double right = rim.x + rim.halfX + (plate_.Cols() - 1) * Double{plate_.XPitch()};
        const Double bottom = rim.y + rim.halfY + (plate_.Rows() - 1) * Double{plate_.YPitch()};
        if (rim.x - rim.halfX < -kTolerance)
            Leaves(index, "first column", "begin at " + Millimetres(rim.x - rim.halfX));
        if (rim.y - rim.halfY < -kTolerance)
            Leaves(index, "first row", "begin at " + Millimetres(rim.y - rim.halfY));
        if (right > plate_.xOverall() + kTolerance)
            Leaves(index, "last column", "end at " + Millimetres(right));
        if (bottom > plate_.yOverall() + kTolerance)
            Leaves(index, "last row", "end at " + Millimetres(bottom));
    }

    void Leaves(std::size_t index, const String& where, const String& how) const {
        Warn(index, "the wells of " + NameOf(index) + " leave the plate: in the " + where +
                        " they " + how);
    }

    /// Sub-wells are drawn in their order, the first one on top.
    void FindCover(std::size_t index) const {
        for (std::size_t other = 0; other < index; ++other) {
            if (!HasSize(places_[index]) || !HasSize(places_[other])) continue;
            if (!Holds(places_[other].rim, places_[index].rim, 0)) continue;
            return Warn(index, "the wells of " + NameOf(index) + " cannot be seen: those of " +
                                   NameOf(other) +
                                   " cover them, as the sub-well that comes first is drawn on top");
        }
    }

    /// One finding for each sub-well, against those before it and itself in other positions.
    void FindOverlap(std::size_t index) const {
        for (std::size_t other = 0; other <= index; ++other) {
            if (!HasSize(places_[index]) || !HasSize(places_[other])) continue;
            const Double here = DepthInPosition(index, other);
            const Double nextTo = DepthNextTo(index, other);
            if (std::max(here, nextTo) <= kTolerance) continue;
            return Warn(index, "the wells of " + NameOf(index) + " overlap those of " +
                                   NameOf(other) + (nextTo > here ? " in the next position" : "") +
                                   " by " + Millimetres(std::max(here, nextTo)));
        }
    }

    /// A well inside of another, or of its rim, is a design; one across its edge is none.
    Double DepthInPosition(std::size_t index, std::size_t other) const {
        const Place& a = places_[index];
        const Place& b = places_[other];
        if (index == other || Holds(a.rim, b.bottom, kTolerance) ||
            Holds(b.rim, a.bottom, kTolerance))
            return 0;
        return OverlapDepth(a.bottom, b.bottom);
    }

    /// The deepest overlap with the other sub-well at the positions where that comes nearest.
    Double DepthNextTo(std::size_t index, std::size_t other) const {
        const WellOutline& a = places_[index].bottom;
        const WellOutline& b = places_[other].bottom;
        const Double nearestCol = StepsBetween(a.x, b.x, plate_.XPitch());
        const Double nearestRow = StepsBetween(a.y, b.y, plate_.YPitch());
        Double deepest = 0;
        for (const int down : {-1, 0, 1}) {
            for (const int across : {-1, 0, 1}) {
                const Double col = nearestCol + across;
                const Double row = nearestRow + down;
                if (!IsOtherPosition(col, row)) continue;
                const WellOutline moved = b.Moved(col * plate_.XPitch(), row * plate_.YPitch());
                deepest = std::max(deepest, OverlapDepth(a, moved));
            }
        }
        return deepest;
    }

    /// Whether a step of that many columns and rows can lead from one position to another.
    bool IsOtherPosition(Double col, Double row) const {
        const bool here = col == 0 && row == 0;
        return !here && std::abs(col) < plate_.Cols() && std::abs(row) < plate_.Rows();
    }

    String NameOf(std::size_t index) const { return Shown(places_[index].subWell->WellName()); }

    void Warn(std::size_t index, String message) const {
        const SourceLine& line = lines_.subWells[index];
        findings_.Warning(line, LineParts(line.text).first, std::move(message));
    }

    const cmPlate& plate_;
    const PlateLines& lines_;
    FindingList& findings_;
    std::vector<Place> places_;
};

} // namespace

void CheckWellPlaces(const cmPlate& plate, const PlateLines& lines, FindingList& findings) {
    Check(plate, lines, findings).Run();
}

} // namespace zorvane
