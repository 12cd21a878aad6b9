#include "formats/PlateWells.h"
#include "formats/labware/Labware.h"
#include "formats/wells/WellTable.h"

#include "Test.h"

#include "platetext/LibraryIndex.h"

namespace zorvane {
namespace {

/// What a plate that was read from a definition has, well by well.
SourcePlate ReadBack(const SourcePlate& source) {
    cmPlate plate;
    plate.SetFromText(DefinitionText(source));
    return PlateWells(plate);
}

using Numbers = std::vector<ExactNumber SourceWell::*>;

const Numbers kLabwareNumbers{&SourceWell::x,     &SourceWell::y,     &SourceWell::sizeX,
                              &SourceWell::sizeY, &SourceWell::depth, &SourceWell::volume};
const Numbers kRims{&SourceWell::rimWidth, &SourceWell::rimHeight};

void ExpectSameWells(const SourceSubWell& a, const SourceSubWell& b, const Numbers& numbers) {
    EXPECT_EQ(a.name, b.name);
    ASSERT_EQ(a.wells.size(), b.wells.size());
    for (std::size_t i = 0; i < a.wells.size(); ++i) {
        ASSERT_EQ(a.wells[i].position, b.wells[i].position);
        for (const auto number : numbers) {
            ASSERT_NEAR((a.wells[i].*number).Value(), (b.wells[i].*number).Value(), 0.0005)
                << PositionName(a.wells[i].position);
        }
    }
}

void ExpectSame(const SourcePlate& a, const SourcePlate& b, const Numbers& numbers) {
    EXPECT_EQ(a.name, b.name);
    EXPECT_EQ(a.tags, b.tags);
    for (const auto size : {&SourcePlate::length, &SourcePlate::width, &SourcePlate::height})
        EXPECT_NEAR((a.*size).Value(), (b.*size).Value(), 0.0005);
    ASSERT_EQ(a.subWells.size(), b.subWells.size());
    for (std::size_t i = 0; i < a.subWells.size(); ++i)
        ExpectSameWells(a.subWells[i], b.subWells[i], numbers);
}

class RoundTrip : public testing::Test {
  protected:
    /// Each plate of the sample library, read into an object of its own.
    template <class Action>
    void ForEachPlate(Action action) {
        const LibraryListing listing = ListLibrary(SAMPLE_LIBRARY);
        ASSERT_EQ(listing.plates.size(), 13U);
        TextFile file;
        file.OpenInput(SAMPLE_LIBRARY);
        for (const LibraryEntry& entry : listing.plates) {
            SCOPED_TRACE(entry.name);
            cmPlate plate;
            ASSERT_EQ(plate.ReadNextPlate(file), 0);
            action(plate);
        }
    }

    TestProcess process_;
};

TEST_F(RoundTrip, ATableHoldsEveryPlate) {
    ForEachPlate([](const cmPlate& plate) {
        const auto tables = ReadWellTable(WellTableText(plate));
        ASSERT_EQ(tables.size(), 1U);
        const SourcePlate before = PlateWells(plate);
        const SourcePlate after = ReadBack(tables[0]);
        ExpectSame(after, before, kLabwareNumbers);
        ExpectSame(after, before, kRims);
        EXPECT_NEAR(after.shelfDepth.Value(), before.shelfDepth.Value(), 0.0005);
        for (std::size_t i = 0; i < before.subWells.size(); ++i)
            EXPECT_EQ(after.subWells[i].wells[0].style, before.subWells[i].wells[0].style);
    });
}

TEST_F(RoundTrip, LabwareHoldEveryPlateButForRims) {
    if (!HasLabware()) GTEST_SKIP() << "this build has no JSON";
    ForEachPlate([](const cmPlate& plate) {
        SourcePlate merged;
        for (Long subWell = 1; subWell <= plate.CompoundWell()->Count(); ++subWell) {
            SourcePlate labware = ReadLabware(LabwareText(plate, subWell)).plate;
            labware.subWells.insert(labware.subWells.begin(), merged.subWells.begin(),
                                    merged.subWells.end());
            merged = labware;
        }
        merged.name = plate.PlateName();
        ExpectSame(ReadBack(merged), PlateWells(plate), kLabwareNumbers);
    });
}

} // namespace
} // namespace zorvane
