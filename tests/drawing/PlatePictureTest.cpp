#include "drawing/PlatePicture.h"
#include "Test.h"

#include <algorithm>

namespace zorvane {
namespace {

TEST(PlatePictureTest, DrawsALibrarysPlateAndADefinitionAlike) {
    const TempFile library(OneDrop());
    const String drawn = DrawPlate({.plate = "DEMO",
                                    .fileName = library.Path(),
                                    .width = 400,
                                    .height = 300,
                                    .selected = {"A1", "b3.drop1"},
                                    .wells = {{.name = "C3", .color = 0x332211, .caption = "7"}}});
    EXPECT_NE(drawn.find("width=\"400\" height=\"300\""), String::npos);
    EXPECT_NE(drawn.find("fill=\"#112233\""), String::npos);
    EXPECT_NE(drawn.find(">7</text>"), String::npos);
    const std::string_view selected = "fill=\"#808080\"";
    EXPECT_NE(drawn.find(selected), drawn.rfind(selected)); // two groups of wells

    String definition = OneDrop();
    const String same = DrawPlate({.definition = definition});
    std::erase(definition, '\r');
    EXPECT_EQ(DrawPlate({.definition = definition}), same);
    EXPECT_EQ(DrawPlate({.plate = "Demo", .fileName = library.Path()}), same);
}

TEST(PlatePictureTest, FailsWithoutAMessageBox) {
    const TestProcess process; // fails the test for a box
    const TempFile library(OneDrop());
    const auto failure = [](const PictureRequest& request) {
        const RaisedError error = RaisedBy([&] { DrawPlate(request); });
        return std::to_string(error.number) + ": " + error.description;
    };
    EXPECT_EQ(failure({.plate = "Nope", .fileName = library.Path()}),
              "5: Can't find Plate <Nope> in " + library.Path());
    EXPECT_EQ(failure({.fileName = library.Path()}), "5: No plate is named");
    EXPECT_EQ(failure({.definition = "ROWS 8"}), "5: The text defines no plate");
    EXPECT_EQ(failure({.definition = OneDrop(), .selected = {"Z1"}}),
              "9: The plate has no well Z1");
    EXPECT_EQ(failure({.definition = OneDrop(), .width = 3000, .height = 3000}), "6: Overflow");
}

} // namespace
} // namespace zorvane
