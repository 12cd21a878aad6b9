#include "platecheck/PlateCheck.h"

#include "platetext/LineParts.h"
#include "runtime/NumberText.h"
#include "runtime/RuntimeError.h"

#include <algorithm>
#include <iterator>
#include <limits>

namespace zorvane {

namespace {

/// What a plate keeps from the one read before it when it does not give them.
constexpr std::string_view kKept[] = {"ROWS",   "COLS",     "ROWLABEL", "COLLABEL", "XPITCH",
                                      "YPITCH", "XOVERALL", "YOVERALL", "HEIGHT"};

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
        Labels("ROWLABEL", plate_.RowLabel(), plate_.Rows(), &cmPlate::RowLegend);
        Labels("COLLABEL", plate_.ColumnLabel(), plate_.Cols(), &cmPlate::ColumnLegend);
        CheckWellPlaces(plate_, lines_, findings_);
    }

  private:
    void Omitted() {
        String names;
        for (const std::string_view name : kKept)
            if (!lines_.values.contains(name)) names.append(names.empty() ? "" : ", ").append(name);
        if (!names.empty()) {
            Report(Severity::Warning, {},
                   "not given and kept from the plate before, if any: " + names);
        }
    }

    /// Whether the plate can be shown at all.
    bool Grid() {
        const bool found[] = {Above0("ROWS", plate_.Rows()),
                              Above0("COLS", plate_.Cols()),
                              Above0("XOVERALL", plate_.xOverall()),
                              Above0("YOVERALL", plate_.yOverall()),
                              Pitch("XPITCH", plate_.XPitch(), plate_.Cols()),
                              Pitch("YPITCH", plate_.YPitch(), plate_.Rows())};
        return std::all_of(std::begin(found), std::end(found), [](bool good) { return good; });
    }

    bool Above0(std::string_view name, Double value) {
        if (value > 0) return true;
        Report(Severity::Error, name,
               "cannot be shown: " + String(name) + " is " + GeneralText(value));
        return false;
    }

    /// A single row or column needs a pitch too: rims are cut to it, and clicks divided by it.
    bool Pitch(std::string_view name, Double value, Integer count) {
        if (value > 0) return true;
        const bool single = count == 1 && value == 0;
        Report(single ? Severity::Warning : Severity::Error, name,
               String(name) + " is " + GeneralText(value) +
                   ": rims are drawn wrong and a click on the plate fails" +
                   (single ? ", even with one place only" : ""));
        return single;
    }

    void NumberOfWells() {
        const std::int64_t wells =
            std::int64_t{plate_.Rows()} * plate_.Cols() * plate_.CompoundWell()->Count();
        if (wells == 0) Report(Severity::Warning, {}, "the plate has no sub-well");
        if (wells > std::numeric_limits<Integer>::max()) {
            Report(Severity::Error, {},
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
    void Labels(std::string_view keyword, const String& first, Integer count,
                String (cmPlate::*legend)(Integer) const) {
        try {
            const String last = (plate_.*legend)(static_cast<Integer>(count - 1));
            if (!CountsPastStart(first, last)) return;
            Report(Severity::Warning, keyword,
                   String(keyword) + " " + Shown(first) + " counts down, to " + Shown(last) +
                       ": only 1, A and a count up");
        } catch (const RuntimeError&) {
            Report(Severity::Error, keyword,
                   "too large to be shown: the labels from \"" + Shown(first) + "\" cannot reach " +
                       std::to_string(count) + " places");
        }
    }

    static bool CountsPastStart(std::string_view first, std::string_view last) {
        if (IsNumber(first)) return LeadingNumber(last) < 1;
        const bool lower = first.front() >= 'a';
        return last.front() < (lower ? 'a' : 'A');
    }

    /// At the value of a keyword where the plate gives it, otherwise at the plate's name.
    void Report(Severity severity, std::string_view keyword, String message) {
        const auto given = lines_.values.find(keyword);
        const SourceLine& line = given == lines_.values.end() ? lines_.plate : given->second;
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
