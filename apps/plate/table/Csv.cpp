#include "apps/plate/table/Csv.h"

#include "welldata/CsvReader.h"

namespace zorvane {

namespace {

String CsvCell(const Cell& cell) {
    if (const auto* const number = std::get_if<std::int64_t>(&cell)) return std::to_string(*number);
    if (const auto* const number = std::get_if<Single>(&cell)) return MillimetreText(*number);
    if (const auto* const number = std::get_if<NumberText>(&cell)) return number->digits;
    return CsvText(std::get<String>(cell));
}

template <class Values, class Write>
String CsvLine(const Values& values, Write write) {
    String line;
    for (const auto& value : values)
        line.append(line.empty() && &value == &values.front() ? "" : ",").append(write(value));
    return line + "\n";
}

} // namespace

String TableCsv(const Table& table) {
    String text = CsvLine(table.columns, [](const String& name) { return CsvText(name); });
    for (const auto& row : table.rows)
        text += CsvLine(row, CsvCell);
    return text;
}

} // namespace zorvane
