#pragma once

#include "apps/plate/table/Table.h"

namespace zorvane {

/// A head line and one line a row; a text is quoted where it holds a comma, a quote or a line end.
String TableCsv(const Table& table);

} // namespace zorvane
