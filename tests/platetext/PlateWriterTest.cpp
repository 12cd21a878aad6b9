#include "model/cmPlate.h"

#include "Test.h"

namespace zorvane {
namespace {

TEST(PlateWriter, WritesToAFileAndEndsWithAnEmptyLine) {
    const TempFile library;
    cmPlate plate;
    plate.PlateName("P");
    plate.Comment = "kept\r\ndropped";
    plate.SetProperty("A.well", "B");
    plate.Text("PLATE ignored");
    TextFile file;
    file.OpenOutput(library.Path());
    EXPECT_EQ(plate.WritePlate(file), 0);
    file.Close();
    EXPECT_EQ(library.Bytes(), "Plate P\r\n; kept\r\n\r\n    Well B\r\n\r\n");
}

TEST(PlateWriter, NamesTheStyles) {
    String names;
    for (const Long style : {-1, 0, 1, 2, 3, 4})
        names += cmPlate::StyleText(style) + ",";
    EXPECT_EQ(names, ",ROUND,CCSHELF,PILLAR,SQUARE,,");
}

} // namespace
} // namespace zorvane
