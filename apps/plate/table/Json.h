#pragma once

#include "apps/plate/table/Table.h"

namespace zorvane {

/// An array with one object a row, each on a line of its own. A byte that
/// is no UTF-8 is written as \udc80 to \udcff, as Python does with names of files, so that it can
/// be passed back.
String TableJson(const Table& table);

} // namespace zorvane
