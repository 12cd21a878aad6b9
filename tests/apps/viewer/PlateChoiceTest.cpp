#include "apps/viewer/logic/PlateChoice.h"

#include <gtest/gtest.h>

namespace zorvane::viewer {
namespace {

LibraryEntry Entry(const String& name, Long subWells, const String& tags = {}, bool found = true) {
    return {name, 1, 8, 12, subWells, tags, found};
}

TEST(PlateFilter, FindsEveryWordInNameOrTags) {
    const LibraryEntry plate = Entry("Sitting_96x2", 3, "sitting vapour 96");
    for (const char* typed : {"", "  ", "sit", "VAPOUR", " 96x2  vap ", "96 sitting"})
        EXPECT_TRUE(MatchesFilter(plate, typed)) << typed;
    for (const char* typed : {"hanging", "sitting hanging", "2 sitting vapour 96 384"})
        EXPECT_FALSE(MatchesFilter(plate, typed)) << typed;
}

TEST(PlateOrFirst, TakesThePlateOfTheNameIfItCanBeShown) {
    const LibraryListing library{
        {Entry("Drops", 2), Entry("Batch", 1), Entry("Lost", 1, {}, false)}};
    EXPECT_EQ(PlateOrFirst(library, "BATCH"), 1);
    EXPECT_EQ(PlateOrFirst(library, "Lost"), 0);
    EXPECT_EQ(PlateOrFirst(library, ""), 0);
}

TEST(FirstPlate, PrefersAPlateWithDropsToOneWithoutToThePlaceholder) {
    const LibraryEntry placeholder = Entry("NO_PLATE", 3);
    const LibraryEntry batch = Entry("Batch", 1);
    const LibraryEntry hidden = Entry("Drops", 2, {}, false);
    const LibraryEntry drops = Entry("Drops", 2);
    EXPECT_EQ(FirstPlate({{placeholder, batch, hidden, drops, drops}, 0, 0}), 3);
    EXPECT_EQ(FirstPlate({{placeholder, batch, hidden}, 0, 0}), 1);
    EXPECT_EQ(FirstPlate({{placeholder, hidden}, 0, 0}), 0);
    EXPECT_EQ(FirstPlate({{hidden}, 0, 0}), -1);
    EXPECT_EQ(FirstPlate({}), -1);
}

} // namespace
} // namespace zorvane::viewer
