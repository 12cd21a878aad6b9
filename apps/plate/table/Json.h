#pragma once

#include "apps/plate/table/Table.h"

namespace zorvane {

/// An array with one object a row, each on a line of its own. Bytes that are no UTF-8 are replaced.
String TableJson(const Table& table);

} // namespace zorvane
