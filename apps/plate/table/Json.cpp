#include "apps/plate/table/Json.h"

#include "runtime/Text.h"

namespace zorvane {

namespace {

String JsonString(std::string_view text) {
    String quoted = "\"";
    for (const char c : PrintableUtf8(text)) {
        // Of the control characters these three are left.
        switch (c) {
        case '\t':
            quoted += "\\t";
            break;
        case '\n':
            quoted += "\\n";
            break;
        case '\r':
            quoted += "\\r";
            break;
        default:
            if (c == '"' || c == '\\') quoted += '\\';
            quoted += c;
        }
    }
    return quoted + "\"";
}

String JsonCell(const Cell& cell) {
    if (const auto* const number = std::get_if<std::int64_t>(&cell)) return std::to_string(*number);
    if (const auto* const number = std::get_if<Single>(&cell)) return MillimetreText(*number);
    if (const auto* const number = std::get_if<NumberText>(&cell)) return number->digits;
    return JsonString(std::get<String>(cell));
}

String JsonRow(const Table& table, const std::vector<Cell>& row) {
    String object;
    for (std::size_t i = 0; i < row.size(); ++i)
        object += (i > 0 ? ", " : "") + JsonString(table.columns[i]) + ": " + JsonCell(row[i]);
    return "{" + object + "}";
}

} // namespace

String TableJson(const Table& table) {
    String text = "[";
    for (const auto& row : table.rows)
        text += (&row == &table.rows.front() ? "\n  " : ",\n  ") + JsonRow(table, row);
    return text + "\n]\n";
}

} // namespace zorvane
