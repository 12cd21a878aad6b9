#pragma once

#include "formats/maps/PlateMap.h"

#include <cstdint>
#include <map>
#include <vector>

namespace zorvane {

/// The kinds of groups of wells in a layout; the parameters of later ones count more.
enum class GroupKind : std::uint8_t { Expt, Icol, Irow, Col, Row, Block, Well };

/// A group of wells and the parameters that it gives them.
struct MapGroup {
    GroupKind kind = GroupKind::Expt;
    bool ofPlate = false;    ///< inside of a plate: counts more than the same kind outside
    std::int64_t place = 0;  ///< in the file; of two blocks of one size, the later counts more
    std::vector<Long> lines; ///< of rows and columns, interleaved or not
    std::vector<WellPosition> corners; ///< of wells and blocks, at the top left
    Long width = 1;                    ///< of a block, in wells
    Long height = 1;
    std::vector<std::pair<String, String>> parameters;
};

/// The wells of all groups in the order of rows and columns, each with the parameters of the groups
/// that it is in. Rows have the wells that columns cross, and columns those of rows. Error 13 for
/// more than 32767 wells, and for more values than any plate has.
std::vector<MappedWell> WellsOfLayout(std::vector<MapGroup> groups);

} // namespace zorvane
