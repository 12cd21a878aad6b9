#include "welldata/WellDataCsv.h"

#include "runtime/NumberText.h"
#include "runtime/Text.h"
#include "welldata/CsvColumns.h"
#include "welldata/VolumeScale.h"

#include <array>
#include <cmath>
#include <limits>
#include <string>
#include <unordered_map>

namespace zorvane {

namespace {

enum Column : std::size_t { Well, SubWell, Defined, Volume, Text, Error, Annotation, kColumns };

constexpr std::array<const char*, kColumns> kNames{"well", "sub-well", "defined",   "volume",
                                                   "text", "error",    "annotation"};

String Quoted(const String& text) { return "\"" + text + "\""; }

/// Turns the fields of one record into values.
class RowParser {
  public:
    RowParser(const CsvColumns& columns, const WellNames& names, const CsvRecord& record)
        : columns_(columns), names_(names), record_(record) {
        columns.RequireAllFields(record);
    }

    WellDataRow Parse() const {
        WellDataRow row;
        row.wellNo = ParseWell();
        if (columns_.Has(Defined)) row.defined = ParseDefined();
        if (columns_.Has(Volume)) row.volume = ParseVolume();
        row.hasVolume = row.volume && !Trimmed(Volume).empty();
        if (columns_.Has(Text)) row.text = Field(Text);
        if (columns_.Has(Error)) row.errorCode = ParseErrorCode();
        if (columns_.Has(Annotation)) row.annotation = Field(Annotation);
        return row;
    }

    [[noreturn]] void Fail(Column column, const String& message) const {
        columns_.Fail(record_, column, message);
    }

  private:
    const String& Field(Column column) const { return columns_.Field(record_, column); }
    String Trimmed(Column column) const { return columns_.Trimmed(record_, column); }

    Integer ParseWell() const {
        const String legend = Trimmed(Well);
        const auto position = names_.FindPosition(legend);
        if (!position) Fail(Well, "the plate has no well " + Quoted(legend));
        return names_.WellNumber(*position, ParseSubWell());
    }

    Integer ParseSubWell() const {
        if (!columns_.Has(SubWell) || Trimmed(SubWell).empty()) return 1;
        const auto position = names_.FindSubWell(Trimmed(SubWell));
        if (!position) Fail(SubWell, "the plate has no sub-well " + Quoted(Trimmed(SubWell)));
        return *position;
    }

    Boolean ParseDefined() const {
        const String text = LowerText(Trimmed(Defined));
        if (text == "yes" || text == "true" || text == "1") return true;
        if (text.empty() || text == "no" || text == "false" || text == "0") return false;
        Fail(Defined, Quoted(Trimmed(Defined)) + " is neither yes nor no");
    }

    Single ParseVolume() const {
        const Double volume = columns_.Number(record_, Volume);
        if (std::abs(volume) > Double{std::numeric_limits<Single>::max()})
            Fail(Volume, Trimmed(Volume) + " is too large");
        return static_cast<Single>(volume);
    }

    Integer ParseErrorCode() const {
        using Limits = std::numeric_limits<Integer>;
        const Double code = columns_.Number(record_, Error);
        if (code != std::trunc(code) || code < Limits::min() || code > Limits::max())
            Fail(Error, Trimmed(Error) + " is not a whole number from -32768 to 32767");
        return static_cast<Integer>(code);
    }

    const CsvColumns& columns_;
    const WellNames& names_;
    const CsvRecord& record_;
};

void ApplyMark(Plate& plate, const WellDataRow& row) {
    const Boolean defined = row.defined.value_or(plate.IsDefined(row.wellNo));
    const Integer code = row.errorCode.value_or(plate.ErrorCode(row.wellNo));
    // Marking colours by the error code, and unmarking clears it.
    plate.ErrorCode(row.wellNo, code);
    plate.IsDefined(row.wellNo, defined);
    plate.ErrorCode(row.wellNo, code);
}

String WellLine(const Plate& plate, const WellNames& names, Integer well) {
    const auto volume = KnownVolume(plate, well);
    return CsvText(names.Position(well)) + "," + CsvText(names.SubWell(well)) + "," +
           (plate.IsDefined(well) ? "yes" : "no") + "," + (volume ? SingleText(*volume) : "") +
           "," + CsvText(plate.Text(well)) + "," + std::to_string(plate.ErrorCode(well)) + "," +
           CsvText(plate.WellAnnotation(well)) + "\r\n";
}

String HeaderLine() {
    String line;
    for (const char* name : kNames)
        line += (line.empty() ? "" : ",") + String(name);
    return line + "\r\n";
}

} // namespace

std::vector<WellDataRow> ParseWellData(std::string_view csv, const WellNames& names) {
    CsvReader reader(csv);
    CsvRecord record;
    if (!reader.Next(record)) FailAt(1, 1, "the file is empty");
    const CsvColumns columns(kNames, record);
    columns.Require(Well);

    std::vector<WellDataRow> rows;
    std::unordered_map<Integer, Long> lines;
    while (reader.Next(record)) {
        const RowParser parser(columns, names, record);
        rows.push_back(parser.Parse());
        const auto [first, isNew] = lines.emplace(rows.back().wellNo, record.line);
        if (!isNew) {
            parser.Fail(Well, names.Full(rows.back().wellNo) + " is on line " +
                                  std::to_string(first->second) + " already");
        }
    }
    return rows;
}

void ApplyWellData(Plate& plate, const std::vector<WellDataRow>& rows) {
    for (const WellDataRow& row : rows) {
        if (row.defined || row.errorCode) ApplyMark(plate, row);
        if (row.volume) plate.SetVolume(row.wellNo, *row.volume);
        if (row.text) plate.Text(row.wellNo, *row.text);
        if (row.annotation) plate.WellAnnotation(row.wellNo, *row.annotation);
    }
}

String WellDataText(const Plate& plate, const WellNames& names) {
    String text = HeaderLine();
    for (Integer well = 0; well < plate.TotalWells(); ++well)
        text += WellLine(plate, names, well);
    return text;
}

} // namespace zorvane
