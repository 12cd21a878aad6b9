#pragma once

#include "runtime/Types.h"

/// How the labels of row and column legends are numbered, from 1: the column legends stand between
/// the row legends of the last two rows.
namespace zorvane {

constexpr Integer RowLegendNumber(Integer row, Integer rows, Integer cols) {
    return static_cast<Integer>(row < rows - 1 ? row + 1 : rows + cols);
}

constexpr Integer ColumnLegendNumber(Integer col, Integer rows) {
    return static_cast<Integer>(rows + col);
}

} // namespace zorvane
