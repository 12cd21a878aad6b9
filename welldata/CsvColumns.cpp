#include "welldata/CsvColumns.h"

#include "runtime/NumberText.h"
#include "runtime/Text.h"

#include <algorithm>

namespace zorvane {

namespace {

String Quoted(const String& text) { return "\"" + text + "\""; }

} // namespace

CsvColumns::CsvColumns(Names names, const CsvRecord& header) : names_(names), line_(header.line) {
    for (const String& name : header.fields)
        Add(String(Trim(name)));
}

void CsvColumns::Add(const String& name) {
    const auto known = std::find_if(names_.begin(), names_.end(), [&](const char* candidate) {
        return EqualNoCase(candidate, name);
    });
    if (known == names_.end()) {
        FailAt(line_, columns_.size() + 1,
               "there is no column " + Quoted(name) + "; the columns are " + AllNames());
    }
    const auto column = static_cast<std::size_t>(known - names_.begin());
    if (Has(column)) FailAt(line_, columns_.size() + 1, "the column is there twice", *known);
    columns_.push_back(column);
}

String CsvColumns::AllNames() const {
    String names;
    for (const char* name : names_)
        names += (names.empty() ? "" : ", ") + String(name);
    return names;
}

std::size_t CsvColumns::PlaceOf(std::size_t column) const {
    return static_cast<std::size_t>(std::find(columns_.begin(), columns_.end(), column) -
                                    columns_.begin());
}

void CsvColumns::Require(std::size_t column) const {
    if (!Has(column)) FailAt(line_, 1, "no column is named " + Quoted(names_[column]));
}

void CsvColumns::RequireAllFields(const CsvRecord& record) const {
    const std::size_t count = record.fields.size();
    if (count > columns_.size()) FailAt(record.line, columns_.size() + 1, "a field too many");
    if (count < columns_.size()) {
        FailAt(record.line, count + 1, "the line ends before this column", names_[columns_[count]]);
    }
}

const String& CsvColumns::Field(const CsvRecord& record, std::size_t column) const {
    return record.fields[PlaceOf(column)];
}

String CsvColumns::Trimmed(const CsvRecord& record, std::size_t column) const {
    return String(Trim(Field(record, column)));
}

Double CsvColumns::Number(const CsvRecord& record, std::size_t column) const {
    const String text = Trimmed(record, column);
    if (text.empty()) return 0;
    if (!IsNumber(text)) Fail(record, column, Quoted(text) + " is not a number");
    return LeadingNumber(text);
}

void CsvColumns::Fail(const CsvRecord& record, std::size_t column, const String& message) const {
    FailAt(record.line, PlaceOf(column) + 1, message, names_[column]);
}

} // namespace zorvane
