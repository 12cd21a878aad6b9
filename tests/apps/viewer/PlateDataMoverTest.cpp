#include "apps/viewer/logic/PlateDataMover.h"

#include "apps/LoadedPlate.h"
#include "apps/viewer/logic/WellSnapshot.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace zorvane {
namespace {

std::vector<WellSnapshot> AllWells(const Plate& plate) {
    std::vector<WellSnapshot> wells;
    for (Integer well = 0; well < plate.TotalWells(); ++well)
        wells.push_back(Capture(plate, well));
    return wells;
}

/// Fills and selects a block of the first sub-well, each well with data of its own.
void FillBlock(Plate& plate, Integer x, Integer y, Integer width, Integer height) {
    plate.SetArray(x, y, width, height, "Drop1");
    plate.FillArray(0x123456, "Tip #");
    for (Integer well = 0; well < plate.TotalWells(); ++well) {
        if (!plate.IsSelected(well)) continue;
        plate.Text(well, "text " + std::to_string(well));
        plate.SetVolume(well, well);
        plate.ErrorCode(well, static_cast<Integer>(well % 2));
        plate.IsDefined(well, true);
    }
}

/// The wells with the selected ones so many well numbers away.
std::vector<WellSnapshot> Moved(const std::vector<WellSnapshot>& before, int step,
                                const WellSnapshot& empty) {
    std::vector<WellSnapshot> after = before;
    for (WellSnapshot& well : after)
        if (well.selected) well = empty;
    for (std::size_t i = 0; i < before.size(); ++i)
        if (before[i].selected) after.at(i + static_cast<std::size_t>(step)) = before[i];
    return after;
}

// On a plate of 4 rows and 6 columns.
TEST(PlateDataMover, MovesAllThatWellsHoldAlsoWhereOldAndNewPlacesOverlap) {
    for (const auto& [columns, rows] : {std::pair<Integer, Integer>{1, 1}, {-1, 0}, {0, -1}}) {
        LoadedPlate host;
        Plate& plate = host.plate;
        FillBlock(plate, 1, 1, 3, 2);
        plate.Text(30, "in another sub-well");
        const auto before = AllWells(plate);
        const Integer current = plate.CurrentWell();
        const int step = rows * 6 + columns;

        EXPECT_TRUE(MoveSelectedWells(plate, columns, rows));
        EXPECT_EQ(AllWells(plate), Moved(before, step, EmptyWell(plate)));
        EXPECT_EQ(plate.CurrentWell(), current + step);
    }
}

TEST(PlateDataMover, ChangesNothingWhenAWellWouldLeaveThePlate) {
    LoadedPlate host;
    Plate& plate = host.plate;
    FillBlock(plate, 1, 1, 3, 2);
    const auto before = AllWells(plate);
    for (const auto& [columns, rows] :
         {std::pair<Integer, Integer>{3, 0}, {-2, 0}, {0, 2}, {0, -2}, {32767, 32767}})
        EXPECT_FALSE(MoveSelectedWells(plate, columns, rows)) << columns << ", " << rows;
    EXPECT_EQ(AllWells(plate), before);
}

} // namespace
} // namespace zorvane
