#pragma once

#include "formats/WellPosition.h"
#include "runtime/Types.h"

#include <string_view>
#include <vector>

/// Patterns of wellmap that stand for several rows, columns or wells: names with commas between
/// them, or a first, a second and a last one as in "A,C,...,G". For wells, the steps go along rows
/// and columns alike: "A1,C3,...,E5" are nine. Error 13 for anything else.
namespace zorvane {

std::vector<Long> RowsOfPattern(std::string_view pattern);
std::vector<Long> ColsOfPattern(std::string_view pattern);
std::vector<WellPosition> WellsOfPattern(std::string_view pattern);

} // namespace zorvane
