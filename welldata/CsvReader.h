#pragma once

#include "runtime/Types.h"

#include <string_view>
#include <vector>

namespace zorvane {

/// One record of comma-separated values.
struct CsvRecord {
    Long line = 0; ///< where it begins, from 1
    std::vector<String> fields;
};

/// Raises error 13 with a description that begins with the place: "line 3, column 2: ...", or, for
/// a column that has a name, "line 3, column 2 (volume): ...".
[[noreturn]] void FailAt(Long line, std::size_t column, const String& message,
                         const String& columnName = {});

/// Reads records one after the other. Fields are separated by commas; one in double quotes may hold
/// commas, line ends and doubled quotes. Lines end in CR LF, LF or CR; empty ones are skipped.
class CsvReader {
  public:
    /// The text must outlive the reader. A byte order mark at its start is skipped.
    explicit CsvReader(std::string_view text);

    /// Reads the next record; false at the end. Error 13 for a quote that is not closed, or for
    /// text after one that is.
    bool Next(CsvRecord& record);

  private:
    bool AtLineEnd() const {
        return at_ == text_.size() || text_[at_] == '\r' || text_[at_] == '\n';
    }
    void SkipLineEnd();
    String TakeField(const CsvRecord& record);
    String TakeQuoted(const CsvRecord& record);

    std::string_view text_;
    std::size_t at_ = 0;
    Long line_ = 1;
};

/// A text as one field, in quotes where it needs them.
String CsvText(std::string_view text);

} // namespace zorvane
