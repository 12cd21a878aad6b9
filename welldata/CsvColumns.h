#pragma once

#include "runtime/Types.h"
#include "welldata/CsvReader.h"

#include <cstddef>
#include <span>
#include <vector>

namespace zorvane {

/// The columns of comma-separated values whose first line names them, in any order and letter case.
/// Columns are known by their place in a list of names. Failures are those of FailAt.
class CsvColumns {
  public:
    using Names = std::span<const char* const>;

    /// The names must outlive the object. Error 13 for a name that is not among them or is there
    /// twice.
    CsvColumns(Names names, const CsvRecord& header);

    Long Line() const { return line_; }
    bool Has(std::size_t column) const { return PlaceOf(column) < columns_.size(); }
    /// Error 13 when the file has no such column.
    void Require(std::size_t column) const;
    /// Error 13 when a record has more fields or fewer than there are columns.
    void RequireAllFields(const CsvRecord& record) const;

    /// A field of a record with all fields, without the blanks around it where it is trimmed.
    const String& Field(const CsvRecord& record, std::size_t column) const;
    String Trimmed(const CsvRecord& record, std::size_t column) const;
    /// A field as a number, 0 when it is empty; error 13 when it is something else.
    Double Number(const CsvRecord& record, std::size_t column) const;

    [[noreturn]] void Fail(const CsvRecord& record, std::size_t column,
                           const String& message) const;

  private:
    void Add(const String& name);
    String AllNames() const;
    std::size_t PlaceOf(std::size_t column) const;

    Names names_;
    Long line_;
    std::vector<std::size_t> columns_;
};

} // namespace zorvane
