#include "apps/plate/calibration/CalibrationFile.h"

#include "model/DropCentre.h"
#include "runtime/Text.h"
#include "welldata/CsvColumns.h"

#include <array>
#include <optional>
#include <unordered_map>

namespace zorvane {

namespace {

enum Column : std::size_t { Well, X, Y, StageX, StageY };

constexpr std::array<const char*, 5> kNames{"well", "x", "y", "stage-x", "stage-y"};

/// The centres of the wells of a plate by name.
class WellCentres {
  public:
    explicit WellCentres(const cmPlate& plate) : plate_(plate) {}

    /// The well of a name, where exactly one has it.
    std::optional<PlanePoint> Find(const String& name) {
        if (places_.empty()) IndexPlaces();
        if (const auto place = FindPlace(name))
            return CentreOf(plate_.WellCentroid(place->row, place->col));
        // A legend may have full stops, as may the name of a sub-well.
        for (auto stop = name.find('.'); stop != name.npos; stop = name.find('.', stop + 1)) {
            const auto place = FindPlace(name.substr(0, stop));
            const auto subWell = FindSubWell(name.substr(stop + 1));
            if (place && subWell)
                return CentreOf(DropCentre(plate_, *subWell, place->row, place->col));
        }
        return std::nullopt;
    }

  private:
    struct Place {
        Integer row, col;
        bool unique = true;
    };

    void IndexPlaces() {
        for (Integer row = 0; row < plate_.Rows(); ++row) {
            for (Integer col = 0; col < plate_.Cols(); ++col) {
                const auto [at, isNew] =
                    places_.emplace(plate_.WellLegend(row, col), Place{row, col});
                at->second.unique = isNew;
            }
        }
    }

    /// Rows can have letters of both cases.
    std::optional<Place> FindPlace(const String& legend) const {
        for (const String& spelling : {legend, UpperText(legend), LowerText(legend)}) {
            const auto found = places_.find(spelling);
            if (found != places_.end() && found->second.unique) return found->second;
        }
        return std::nullopt;
    }

    std::shared_ptr<WellDetails> FindSubWell(const String& name) const {
        for (const auto& subWell : *plate_.CompoundWell())
            if (EqualNoCase(subWell->WellName(), name)) return subWell;
        return nullptr;
    }

    static PlanePoint CentreOf(const Coordinate& centre) { return {centre.X(), centre.Y()}; }
    const cmPlate& plate_;
    std::unordered_map<String, Place> places_;
};

void RequireColumns(const CsvColumns& columns) {
    if (columns.Has(Well) && (columns.Has(X) || columns.Has(Y)))
        FailAt(columns.Line(), 1, R"(a column "well" leaves no place for "x" and "y")");
    if (!columns.Has(Well) && !columns.Has(X) && !columns.Has(Y)) {
        FailAt(columns.Line(), 1,
               R"(the columns are "well", or "x" and "y"; "stage-x" and "stage-y")");
    }
    for (const Column column : {X, Y})
        if (!columns.Has(Well)) columns.Require(column);
    columns.Require(StageX);
    columns.Require(StageY);
}

Double NumberIn(const CsvColumns& columns, const CsvRecord& record, Column column) {
    if (columns.Trimmed(record, column).empty())
        columns.Fail(record, column, "a number is missing");
    return columns.Number(record, column);
}

} // namespace

MeasuredPoints ReadMeasuredPoints(std::string_view csv, const cmPlate& plate) {
    CsvReader reader(csv);
    CsvRecord record;
    if (!reader.Next(record)) FailAt(1, 1, "the file is empty");
    const CsvColumns columns(kNames, record);
    RequireColumns(columns);

    WellCentres centres(plate);
    const auto onPlate = [&] {
        if (!columns.Has(Well))
            return PlanePoint{NumberIn(columns, record, X), NumberIn(columns, record, Y)};
        const String name = columns.Trimmed(record, Well);
        const auto centre = centres.Find(name);
        if (!centre) {
            columns.Fail(record, Well,
                         "\"" + name + "\" names no well of the plate, or more than one");
        }
        return *centre;
    };
    MeasuredPoints measured;
    while (reader.Next(record)) {
        columns.RequireAllFields(record);
        measured.points.push_back(
            {onPlate(), {NumberIn(columns, record, StageX), NumberIn(columns, record, StageY)}});
        measured.lines.push_back(record.line);
    }
    return measured;
}

} // namespace zorvane
