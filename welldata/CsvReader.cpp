#include "welldata/CsvReader.h"

#include "runtime/RuntimeError.h"

#include <string>

namespace zorvane {

void FailAt(Long line, std::size_t column, const String& message, const String& columnName) {
    const String name = columnName.empty() ? String() : " (" + columnName + ")";
    Raise(ErrorNumber::TypeMismatch,
          "line " + std::to_string(line) + ", column " + std::to_string(column) + name + ": " +
              message,
          "Zorvane::WellData");
}

CsvReader::CsvReader(std::string_view text) : text_(text) {
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    if (text_.starts_with(mark)) text_.remove_prefix(mark.size());
}

void CsvReader::SkipLineEnd() {
    if (at_ == text_.size()) return;
    at_ += text_.substr(at_, 2) == "\r\n" ? 2 : 1;
    ++line_;
}

bool CsvReader::Next(CsvRecord& record) {
    while (at_ < text_.size() && AtLineEnd())
        SkipLineEnd();
    if (at_ == text_.size()) return false;
    record.line = line_;
    record.fields.clear();
    record.fields.push_back(TakeField(record));
    while (!AtLineEnd()) {
        ++at_; // a field ends at a comma or at the end of the line
        record.fields.push_back(TakeField(record));
    }
    SkipLineEnd();
    return true;
}

String CsvReader::TakeField(const CsvRecord& record) {
    if (at_ < text_.size() && text_[at_] == '"') return TakeQuoted(record);
    const std::size_t start = at_;
    while (!AtLineEnd() && text_[at_] != ',')
        ++at_;
    return String(text_.substr(start, at_ - start));
}

String CsvReader::TakeQuoted(const CsvRecord& record) {
    const Long line = line_;
    String field;
    for (++at_; at_ < text_.size(); ++at_) {
        if (text_[at_] == '"' && text_.substr(at_, 2) != "\"\"") break;
        if (text_[at_] == '"') ++at_;
        if (text_[at_] == '\n' || (text_[at_] == '\r' && text_.substr(at_, 2) != "\r\n")) ++line_;
        field += text_[at_];
    }
    if (at_ == text_.size()) FailAt(line, record.fields.size() + 1, "the quote is never closed");
    ++at_;
    if (!AtLineEnd() && text_[at_] != ',')
        FailAt(line_, record.fields.size() + 1, "a comma is missing after the closing quote");
    return field;
}

String CsvText(std::string_view text) {
    if (text.find_first_of(",\"\r\n") == std::string_view::npos) return String(text);
    String quoted = "\"";
    for (const char c : text) {
        if (c == '"') quoted += '"';
        quoted += c;
    }
    return quoted + '"';
}

} // namespace zorvane
