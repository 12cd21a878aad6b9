#include "model/cmPlate.h"
#include "platetext/LibraryIndex.h"

#include <gtest/gtest.h>

namespace zorvane {
namespace {

// An edit turns a plate into text and reads that back. The text also holds what was recorded of the
// plates that a look-up passed, so the order of plates and of sub-wells in the library matters.
TEST(SampleLibrary, PlatesSurviveAnEditAfterALookUp) {
    const auto listing = ListLibrary(ZORVANE_SAMPLE_LIBRARY);
    ASSERT_EQ(listing.stoppedAtLine, 0);
    for (const auto& entry : listing.plates) {
        cmPlate found;
        ASSERT_TRUE(found.SetPlate(ZORVANE_SAMPLE_LIBRARY, entry.name)) << entry.name;
        cmPlate edited;
        edited.SetFromText(found.Text());
        EXPECT_EQ(edited.Text(), found.Text());
        EXPECT_EQ(edited.AsText(), found.AsText());
        cmPlate fromValues;
        fromValues.SetFromText(found.AsText());
        EXPECT_EQ(fromValues.AsText(), found.AsText()) << "no value has more than two decimals";
    }
}

// A control newly placed on a form looks for this name.
TEST(SampleLibrary, BeginsWithThePlateOfANewControl) {
    const auto listing = ListLibrary(ZORVANE_SAMPLE_LIBRARY);
    ASSERT_GE(listing.plates.size(), 12U);
    EXPECT_EQ(listing.plates.front().name, "No_Plate");
}

} // namespace
} // namespace zorvane
