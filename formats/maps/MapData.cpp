#include "formats/PlateSource.h"
#include "formats/Quoted.h"
#include "formats/maps/PlateMap.h"
#include "runtime/NumberText.h"
#include "runtime/Text.h"
#include "welldata/CsvReader.h"

#include <algorithm>
#include <array>
#include <string>

namespace zorvane {

namespace {

/// Those columns of well data that a map can give.
enum Column : std::size_t { Defined, Volume, Text, Error, Annotation, kColumns };

constexpr std::array<const char*, kColumns> kNames{"defined", "volume", "text", "error",
                                                   "annotation"};

using Values = std::array<String, kColumns>;

/// The column of a name; kColumns for any other.
std::size_t ColumnOf(const String& name) {
    const auto* const known = std::find_if(kNames.begin(), kNames.end(), [&](const char* column) {
        return EqualNoCase(column, name);
    });
    return static_cast<std::size_t>(known - kNames.begin());
}

class ValueReader {
  public:
    explicit ValueReader(const MapColumns& columns) : columns_(columns) {
        for (const auto& [column, parameter] : columns)
            if (ColumnOf(column) == kColumns) RefuseSource("there is no column " + Quoted(column));
    }

    Values Read(const MappedWell& well) const {
        Values values;
        String others;
        for (const auto& [name, value] : well.parameters) {
            const std::size_t column = columns_.empty() ? ColumnOf(name) : ChosenColumn(name);
            if (column < kColumns) {
                RequireNumber(well, column, value);
                values[column] = value;
            } else if (columns_.empty()) {
                others.append(", ").append(name).append(": ").append(value);
            }
        }
        if (values[Text].empty() && !others.empty()) others.erase(0, 2);
        values[Text] += others;
        return values;
    }

  private:
    std::size_t ChosenColumn(const String& parameter) const {
        const auto chosen = std::find_if(columns_.begin(), columns_.end(), [&](const auto& column) {
            return column.second == parameter;
        });
        return chosen == columns_.end() ? std::size_t{kColumns} : ColumnOf(chosen->first);
    }

    static void RequireNumber(const MappedWell& well, std::size_t column, const String& value) {
        if ((column != Volume && column != Error) || IsNumber(value)) return;
        RefuseSource(PositionName(well.position) + ": the " + kNames[column] + " " + Quoted(value) +
                     " is not a number");
    }

    const MapColumns& columns_;
};

String NameOf(const WellPosition& position) {
    const String row = RowLabel(position.row);
    if (row.empty()) RefuseSource("no plate has a row " + RowName(position.row));
    return row + std::to_string(position.col + 1);
}

} // namespace

String WellDataOf(const std::vector<MappedWell>& wells, const String& subWell,
                  const MapColumns& columns) {
    const ValueReader reader(columns);
    std::vector<Values> rows;
    std::array<bool, kColumns> used{};
    for (const MappedWell& well : wells) {
        rows.push_back(reader.Read(well));
        for (std::size_t i = 0; i < used.size(); ++i)
            used[i] = used[i] || !rows.back()[i].empty();
    }
    const auto line = [&](const String& well, const String& named, const auto& values) {
        String text = CsvText(well);
        if (!subWell.empty()) text += "," + CsvText(named);
        for (std::size_t i = 0; i < used.size(); ++i)
            if (used[i]) text += "," + CsvText(values[i]);
        return text + "\r\n";
    };
    String data = line("well", "sub-well", kNames);
    for (std::size_t i = 0; i < wells.size(); ++i)
        data += line(NameOf(wells[i].position), subWell, rows[i]);
    return data;
}

} // namespace zorvane
