#include "formats/wells/WellTable.h"

#include "formats/PlateWells.h"
#include "formats/Quoted.h"
#include "model/WellStyle.h"
#include "runtime/Text.h"
#include "welldata/CsvColumns.h"

#include <algorithm>
#include <array>
#include <unordered_map>

namespace zorvane {

namespace {

enum Column : std::size_t {
    Plate,
    Length,
    Width,
    Height,
    ShelfDepth,
    Tags,
    Well,
    SubWell,
    Style,
    X,
    Y,
    Z,
    Depth,
    SizeX,
    SizeY,
    RimWidth,
    RimHeight,
    Volume,
    kColumns
};

constexpr std::array<const char*, kColumns> kNames{
    "plate", "length",   "width",  "height",    "shelf-depth", "tags",
    "well",  "sub-well", "style",  "x",         "y",           "z",
    "depth", "size-x",   "size-y", "rim-width", "rim-height",  "volume"};

/// A column of numbers that belong to the plate or to the well.
template <class Owner>
struct NumberColumn {
    Column column;
    ExactNumber Owner::*value;
};

constexpr std::array<NumberColumn<SourcePlate>, 4> kPlateNumbers{
    {{Length, &SourcePlate::length},
     {Width, &SourcePlate::width},
     {Height, &SourcePlate::height},
     {ShelfDepth, &SourcePlate::shelfDepth}}};

constexpr std::array<NumberColumn<SourceWell>, 8> kWellNumbers{{{X, &SourceWell::x},
                                                                {Y, &SourceWell::y},
                                                                {Depth, &SourceWell::depth},
                                                                {SizeX, &SourceWell::sizeX},
                                                                {SizeY, &SourceWell::sizeY},
                                                                {RimWidth, &SourceWell::rimWidth},
                                                                {RimHeight, &SourceWell::rimHeight},
                                                                {Volume, &SourceWell::volume}}};

std::vector<String> WordsOf(const String& text) {
    std::vector<String> words;
    for (std::string_view rest = Trim(text); !rest.empty(); rest = TrimStart(rest)) {
        const auto end = static_cast<std::size_t>(std::find_if(rest.begin(), rest.end(), IsBlank) -
                                                  rest.begin());
        words.emplace_back(rest.substr(0, end));
        rest.remove_prefix(end);
    }
    return words;
}

/// Makes plates of the records of a file.
class TableReader {
  public:
    explicit TableReader(const CsvRecord& header) : columns_(kNames, header) {
        for (const Column column : {Plate, Length, Width, Height, Well, X, Y, SizeX})
            columns_.Require(column);
        if (!columns_.Has(Z)) columns_.Require(Depth);
    }

    void Add(const CsvRecord& record) {
        columns_.RequireAllFields(record);
        SourcePlate& plate = PlateOf(record);
        if (++wellsOf_[plate.name] > kMostWells)
            columns_.Fail(record, Plate, "a plate cannot have more than 32767 wells");
        SubWellOf(record, plate).wells.push_back(WellOf(record, plate));
    }

    std::vector<SourcePlate> Result() && { return std::move(plates_); }

  private:
    ExactNumber Number(const CsvRecord& record, Column column) const {
        const String text = columns_.Trimmed(record, column);
        const auto number = ExactNumber::Parse(text);
        if (!number) {
            columns_.Fail(record, column,
                          Quoted(text) + " is not a number up to " +
                              std::to_string(ExactNumber::kLargest));
        }
        return *number;
    }

    template <class Owner, std::size_t Count>
    void ReadNumbers(const CsvRecord& record, const std::array<NumberColumn<Owner>, Count>& numbers,
                     Owner& owner) const {
        for (const auto& number : numbers)
            if (columns_.Has(number.column)) owner.*number.value = Number(record, number.column);
    }

    /// The plate of a record, whose own values must be the same on every line.
    SourcePlate& PlateOf(const CsvRecord& record) {
        SourcePlate plate;
        plate.name = columns_.Trimmed(record, Plate);
        ReadNumbers(record, kPlateNumbers, plate);
        if (columns_.Has(Tags)) plate.tags = WordsOf(columns_.Field(record, Tags));
        const auto [place, isNew] = places_.emplace(plate.name, plates_.size());
        if (isNew) return plates_.emplace_back(std::move(plate));
        SourcePlate& known = plates_[place->second];
        for (const auto& number : kPlateNumbers) {
            if (!SameNumber(plate.*number.value, known.*number.value)) {
                columns_.Fail(record, number.column,
                              (plate.*number.value).Text() + " was " +
                                  (known.*number.value).Text() + " for this plate before");
            }
        }
        return known;
    }

    SourceSubWell& SubWellOf(const CsvRecord& record, SourcePlate& plate) const {
        String name = columns_.Has(SubWell) ? columns_.Trimmed(record, SubWell) : String();
        if (name.empty()) name = "Well";
        const auto known =
            std::find_if(plate.subWells.begin(), plate.subWells.end(),
                         [&name](const SourceSubWell& subWell) { return subWell.name == name; });
        if (known != plate.subWells.end()) return *known;
        if (plate.subWells.size() == kMostSubWells)
            columns_.Fail(record, SubWell, "there are more than 100 sub-wells");
        return plate.subWells.emplace_back(SourceSubWell{name, {}});
    }

    SourceWell WellOf(const CsvRecord& record, const SourcePlate& plate) const {
        SourceWell well;
        const String name = columns_.Trimmed(record, Well);
        const auto position = ParsePosition(name);
        if (!position) columns_.Fail(record, Well, Quoted(name) + " is no well, as A1 is");
        well.position = *position;
        ReadNumbers(record, kWellNumbers, well);
        if (!columns_.Has(SizeY)) well.sizeY = well.sizeX;
        if (columns_.Has(Style)) well.style = StyleOf(record);
        if (columns_.Has(Z)) TakeBottom(record, plate, well);
        return well;
    }

    String StyleOf(const CsvRecord& record) const {
        String style = UpperText(columns_.Trimmed(record, Style));
        for (Long code = 0; code < 4; ++code)
            if (style == cmPlate::StyleText(code)) return style;
        columns_.Fail(record, Style,
                      Quoted(style) + " is none of ROUND, CCSHELF, PILLAR and SQUARE");
    }

    void TakeBottom(const CsvRecord& record, const SourcePlate& plate, SourceWell& well) const {
        const ExactNumber z = Number(record, Z);
        const ExactNumber depth = plate.height - z;
        if (!columns_.Has(Depth)) well.depth = depth;
        if (SameNumber(well.depth, depth)) return;
        columns_.Fail(record, Z,
                      z.Text() + " is not the height less the depth, " +
                          (plate.height - well.depth).Text());
    }

    static constexpr std::size_t kMostSubWells = 100;

    CsvColumns columns_;
    std::vector<SourcePlate> plates_;
    std::unordered_map<String, std::size_t> places_;
    std::unordered_map<String, Long> wellsOf_;
};

String HeaderLine() {
    String line;
    for (const char* name : kNames)
        line += (line.empty() ? "" : ",") + String(name);
    return line + "\r\n";
}

String Line(const SourcePlate& plate, const String& tags, const SourceSubWell& subWell,
            const SourceWell& well) {
    std::array<String, kColumns> fields;
    for (const auto& number : kPlateNumbers)
        fields[number.column] = (plate.*number.value).Text();
    for (const auto& number : kWellNumbers)
        fields[number.column] = (well.*number.value).Text();
    fields[Plate] = CsvText(plate.name);
    fields[Tags] = tags;
    fields[Well] = PositionName(well.position);
    fields[SubWell] = CsvText(subWell.name);
    fields[Style] = well.style;
    fields[Z] = (plate.height - well.depth).Text();
    String line;
    for (const String& field : fields)
        line += (&field == fields.data() ? "" : ",") + field;
    return line + "\r\n";
}

} // namespace

std::vector<SourcePlate> ReadWellTable(std::string_view csv) {
    CsvReader reader(csv);
    CsvRecord record;
    if (!reader.Next(record)) FailAt(1, 1, "the file is empty");
    TableReader table(record);
    while (reader.Next(record))
        table.Add(record);
    std::vector<SourcePlate> plates = std::move(table).Result();
    if (plates.empty()) FailAt(1, 1, "there are no wells below the names of the columns");
    return plates;
}

String WellTableText(const cmPlate& plate) {
    const SourcePlate source = PlateWells(plate);
    String tags;
    for (const String& tag : source.tags)
        tags += (tags.empty() ? "" : " ") + tag;
    tags = CsvText(tags);
    String text = HeaderLine();
    for (const SourceSubWell& subWell : source.subWells) {
        for (const SourceWell& well : subWell.wells)
            text += Line(source, tags, subWell, well);
    }
    return text;
}

} // namespace zorvane
