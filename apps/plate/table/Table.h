#pragma once

#include "runtime/Types.h"

#include <CLI/App.hpp>

#include <cstdint>
#include <variant>
#include <vector>

namespace zorvane {

/// A number as it is to be written.
struct NumberText {
    String digits;
};

/// One value of a table: a text, a count, a length in mm or any other number.
using Cell = std::variant<String, std::int64_t, Single, NumberText>;

struct Table {
    std::vector<String> columns;
    std::vector<std::vector<Cell>> rows; ///< each with one cell a column
};

/// A length for programs to read: mm to the micrometre, beyond which Singles hold noise.
String MillimetreText(Single value);

enum class TableForm { Aligned, Csv, Json };

/// Adds the options that choose a form.
void AddFormOptions(CLI::App& options, TableForm& form);

String TableText(const Table& table, TableForm form);

} // namespace zorvane
