#include "apps/plate/table/Table.h"

#include "apps/plate/table/Csv.h"
#include "apps/plate/table/DisplayWidth.h"
#include "apps/plate/table/Json.h"
#include "runtime/NumberText.h"
#include "runtime/Text.h"

#include <algorithm>

namespace zorvane {

namespace {

constexpr std::size_t kGap = 2;

/// Whatever would move what stands after it is a blank.
String OnALine(std::string_view text) {
    String line = PrintableUtf8(text);
    std::replace_if(line.begin(), line.end(), IsBlank, ' ');
    return line;
}

String AlignedCell(const Cell& cell) {
    if (const auto* const text = std::get_if<String>(&cell)) return OnALine(*text);
    if (const auto* const number = std::get_if<std::int64_t>(&cell)) return std::to_string(*number);
    if (const auto* const number = std::get_if<NumberText>(&cell)) return number->digits;
    return FormatPicture(std::get<Single>(cell), "0.000");
}

/// A cell on its way to the screen.
struct Entry {
    String text;
    bool right = false;
};
using Entries = std::vector<Entry>;

/// Heads stand like the cells below them.
std::vector<Entries> AlignedCells(const Table& table) {
    std::vector<Entries> lines(1);
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
        const bool text = table.rows.empty() || std::holds_alternative<String>(table.rows[0][i]);
        lines[0].push_back({table.columns[i], !text});
    }
    for (const auto& row : table.rows) {
        Entries& line = lines.emplace_back();
        for (const Cell& cell : row)
            line.push_back({AlignedCell(cell), !std::holds_alternative<String>(cell)});
    }
    return lines;
}

String AlignedLine(const Entries& entries, const std::vector<std::size_t>& widths) {
    String line;
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const String padding(widths[i] - DisplayWidth(entries[i].text), ' ');
        if (i > 0) line.append(kGap, ' ');
        line += entries[i].right ? padding + entries[i].text : entries[i].text + padding;
    }
    line.erase(line.find_last_not_of(' ') + 1);
    return line + "\n";
}

String AlignedText(const Table& table) {
    const std::vector<Entries> lines = AlignedCells(table);
    std::vector<std::size_t> widths(table.columns.size());
    for (const Entries& line : lines) {
        for (std::size_t i = 0; i < line.size(); ++i)
            widths[i] = std::max(widths[i], DisplayWidth(line[i].text));
    }
    String text;
    for (const Entries& line : lines)
        text += AlignedLine(line, widths);
    return text;
}

} // namespace

String MillimetreText(Single value) { return FormatPicture(value, "0.0##"); }

void AddFormOptions(CLI::App& options, TableForm& form) {
    auto* const csv = options.add_flag_callback(
        "--csv", [&form] { form = TableForm::Csv; }, "Write comma-separated values");
    auto* const json = options.add_flag_callback(
        "--json", [&form] { form = TableForm::Json; }, "Write a JSON array of objects");
    csv->excludes(json);
}

String TableText(const Table& table, TableForm form) {
    if (form == TableForm::Csv) return TableCsv(table);
    if (form == TableForm::Json) return TableJson(table);
    return AlignedText(table);
}

} // namespace zorvane
