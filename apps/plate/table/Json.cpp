#include "apps/plate/table/Json.h"

#include "runtime/Text.h"

#include <cstdint>

namespace zorvane {

namespace {

/// Code units of UTF-16 in four digits.
String Escaped(std::uint32_t unit) {
    String text = "\\u";
    for (int shift = 12; shift >= 0; shift -= 4)
        text += "0123456789abcdef"[unit >> shift & 0xF];
    return text;
}

/// A byte that is no UTF-8 becomes half of a pair of code units, from which Python and others make
/// the byte again where the text is passed back to a program.
constexpr std::uint32_t kByte = 0xDC00;

String JsonString(std::string_view text) {
    String quoted = "\"";
    while (!text.empty()) {
        const CharacterAt character = FirstCharacter(text);
        const auto code = static_cast<std::uint32_t>(character.code);
        if (!character.valid) {
            quoted += Escaped(kByte + code);
        } else if (code == '\n') {
            quoted += "\\n";
        } else if (code < 0x20 || code == 0x7F) {
            quoted += Escaped(code);
        } else {
            if (code == '"' || code == '\\') quoted += '\\';
            quoted += text.substr(0, character.bytes);
        }
        text.remove_prefix(character.bytes);
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
