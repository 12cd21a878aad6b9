#include "formats/Quoted.h"
#include "formats/maps/PlateMap.h"
#include "runtime/Text.h"
#include "welldata/CsvReader.h"

#include <set>
#include <string>

namespace zorvane {

namespace {

/// The columns that the first line names.
std::vector<Long> ReadHeader(const CsvRecord& header) {
    std::vector<Long> cols;
    std::set<Long> known;
    for (std::size_t i = 1; i < header.fields.size(); ++i) {
        const auto col = ParseCol(Trim(header.fields[i]));
        if (!col) {
            FailAt(header.line, i + 1,
                   Quoted(header.fields[i]) + " is not the number of a column: the first line of a "
                                              "matrix is ,1,2,3 and so on");
        }
        if (!known.insert(*col).second) FailAt(header.line, i + 1, "the column is there twice");
        cols.push_back(*col);
    }
    if (cols.empty()) FailAt(header.line, 1, "the first line of a matrix is ,1,2,3 and so on");
    return cols;
}

Long ReadRow(const CsvRecord& record, std::set<Long>& known) {
    const auto row = ParseRow(Trim(record.fields[0]));
    if (!row) FailAt(record.line, 1, Quoted(record.fields[0]) + " is not the letter of a row");
    if (!known.insert(*row).second) FailAt(record.line, 1, "the row is there twice");
    return *row;
}

} // namespace

std::vector<MappedWell> ReadMatrix(std::string_view csv, const String& parameter) {
    CsvReader reader(csv);
    CsvRecord record;
    if (!reader.Next(record)) FailAt(1, 1, "the file is empty");
    const std::vector<Long> cols = ReadHeader(record);
    std::vector<MappedWell> wells;
    std::set<Long> rows;
    while (reader.Next(record)) {
        const Long row = ReadRow(record, rows);
        if (record.fields.size() > cols.size() + 1)
            FailAt(record.line, cols.size() + 2, "a field too many");
        for (std::size_t i = 1; i < record.fields.size(); ++i) {
            const String value(Trim(record.fields[i]));
            if (value.empty()) continue;
            if (wells.size() == static_cast<std::size_t>(kMostWells))
                FailAt(record.line, i + 1, "a plate cannot have more than 32767 wells");
            wells.push_back({{row, cols[i - 1]}, {{parameter, value}}});
        }
    }
    return wells;
}

} // namespace zorvane
