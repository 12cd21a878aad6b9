#include "platecheck/PlateCheck.h"

#include "platecheck/WellPlaces.h"
#include "platetext/LineParts.h"
#include "runtime/NumberText.h"
#include "runtime/RuntimeError.h"
#include "runtime/Text.h"

#include <algorithm>
#include <iterator>
#include <limits>

namespace zorvane {

namespace {

/// What a plate keeps from the one read before it when it does not give them.
constexpr Keyword kKept[] = {
    Keyword::Rows,   Keyword::Cols,     Keyword::RowLabel, Keyword::ColLabel, Keyword::XPitch,
    Keyword::YPitch, Keyword::XOverall, Keyword::YOverall, Keyword::Height,
};

class Check {
  public:
    Check(const cmPlate& plate, const PlateLines& lines, FindingList& findings)
        : plate_(plate), lines_(lines), findings_(findings) {}

    void Run() {
        Omitted();
        const bool sound = Grid();
        SubWellSizes();
        if (!sound) return;
        NumberOfWells();
        Labels(Keyword::RowLabel, plate_.RowLabel(), plate_.Rows(), &cmPlate::RowLegend);
        Labels(Keyword::ColLabel, plate_.ColumnLabel(), plate_.Cols(), &cmPlate::ColumnLegend);
        CheckWellPlaces(plate_, lines_, findings_);
    }

  private:
    void Omitted() {
        String names;
        for (const Keyword keyword : kKept) {
            if (lines_.values.contains(keyword)) continue;
            names.append(names.empty() ? "" : ", ").append(TraitsOf(keyword).name);
        }
        if (!names.empty()) {
            Report(Severity::Warning, Keyword::Plate,
                   "not given and kept from the plate before, if any: " + names);
        }
    }

    /// Whether the plate can be shown at all.
    bool Grid() {
        const bool found[] = {Above0(Keyword::Rows, plate_.Rows()),
                              Above0(Keyword::Cols, plate_.Cols()),
                              Above0(Keyword::XOverall, plate_.xOverall()),
                              Above0(Keyword::YOverall, plate_.yOverall()),
                              Pitch(Keyword::XPitch, plate_.XPitch(), plate_.Cols()),
                              Pitch(Keyword::YPitch, plate_.YPitch(), plate_.Rows())};
        return std::all_of(std::begin(found), std::end(found), [](bool good) { return good; });
    }

    bool Above0(Keyword keyword, Double value) {
        if (value > 0) return true;
        Report(Severity::Error, keyword,
               "cannot be shown: " + NameOf(keyword) + " is " + GeneralText(value));
        return false;
    }

    /// A single row or column needs a pitch too: rims are cut to it, and clicks divided by it.
    bool Pitch(Keyword keyword, Double value, Integer count) {
        if (value > 0) return true;
        const bool single = count == 1 && value == 0;
        Report(single ? Severity::Warning : Severity::Error, keyword,
               NameOf(keyword) + " is " + GeneralText(value) +
                   ": rims are drawn wrong and a click on the plate fails" +
                   (single ? ", even with one place only" : ""));
        return single;
    }

    void NumberOfWells() {
        const std::int64_t wells =
            std::int64_t{plate_.Rows()} * plate_.Cols() * plate_.CompoundWell()->Count();
        if (wells == 0) Report(Severity::Warning, Keyword::Plate, "the plate has no sub-well");
        if (wells > std::numeric_limits<Integer>::max()) {
            Report(Severity::Error, Keyword::Plate,
                   "too large to be shown: " + std::to_string(wells) +
                       " wells, of which 32767 can be numbered");
        }
    }

    void SubWellSizes() {
        Long position = 0;
        for (const auto& subWell : *plate_.CompoundWell()) {
            ++position;
            if (subWell->WellSizeX() > 0 && subWell->WellSizeY() > 0) continue;
            const SourceLine& line = lines_.subWells[static_cast<std::size_t>(position - 1)];
            findings_.Warning(line, LineParts(line.text).first,
                              "the wells of " + Shown(subWell->WellName()) + " have no size");
        }
    }

    /// Labels that cannot be made, or that count down past the first letter or number.
    void Labels(Keyword keyword, const String& first, Integer count,
                String (cmPlate::*legend)(Integer) const) {
        try {
            const String last = (plate_.*legend)(static_cast<Integer>(count - 1));
            if (!CountsPastStart(first, last)) return;
            Report(Severity::Warning, keyword,
                   NameOf(keyword) + " " + Shown(first) + " counts down, to " + Shown(last) +
                       ": only 1, A and a count up");
        } catch (const RuntimeError&) {
            if (!CanBeLabel(first)) {
                return Report(Severity::Error, keyword,
                              "cannot be shown: no label can begin with \"" + Shown(first) + "\"");
            }
            Report(Severity::Error, keyword,
                   "too large to be shown: the labels from \"" + Shown(first) + "\" cannot reach " +
                       std::to_string(count) + " places");
        }
    }

    /// Legends are numbers, or count in the characters up to 255.
    static bool CanBeLabel(std::string_view first) {
        return IsNumber(first) || FirstCharacter(first).code <= 255;
    }

    static String NameOf(Keyword keyword) { return String(TraitsOf(keyword).name); }

    static bool CountsPastStart(std::string_view first, std::string_view last) {
        if (IsNumber(first)) return LeadingNumber(last) < 1;
        const bool lower = first.front() >= 'a';
        return last.front() < (lower ? 'a' : 'A');
    }

    void Report(Severity severity, Keyword keyword, String message) {
        const SourceLine& line = lines_.LineOf(keyword);
        findings_.Add(severity, line, LineParts(line.text).first, std::move(message));
    }

    const cmPlate& plate_;
    const PlateLines& lines_;
    FindingList& findings_;
};

} // namespace

void CheckPlate(const cmPlate& plate, const PlateLines& lines, FindingList& findings) {
    Check(plate, lines, findings).Run();
}

} // namespace zorvane
