#include "apps/viewer/FillDialog.h"

#include "apps/viewer/OpenedWindow.h"

namespace zorvane {
namespace {

TEST(FillDialog, SuggestsTheSelectedBlockAndFillsIt) {
    OpenedWindow host;
    Plate& plate = host.Control();
    plate.SetArray(1, 0, 2, 3, "Drop1");
    plate.SelectWell(static_cast<Integer>(plate.Rows * plate.Cols), true); // another sub-well
    FillDialog dialog(host.window.Session(), nullptr);
    dialog.accept();
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_EQ(plate.WellAnnotation(1), "1");
    EXPECT_EQ(plate.WellAnnotation(2), "2");
    EXPECT_EQ(plate.WellAnnotation(static_cast<Integer>(2 * plate.Cols + 2)), "6");
    EXPECT_EQ(plate.WellAnnotation(0), "");
}

TEST(FillDialog, TellsThatABlockLeavesThePlateAndStaysOpen) {
    OpenedWindow host;
    const auto before = host.AllWells();
    FillDialog dialog(host.window.Session(), nullptr);
    for (const Block& block : {Block{5, 0, 2, 1}, Block{0, 3, 1, 2}, Block{-1, 0, 1, 1}}) {
        dialog.show();
        dialog.SetBlock(block);
        EXPECT_EQ(dialog.Complaint(), "");
        dialog.accept();
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_EQ(dialog.Complaint(),
                  "Error 2999: Attempt to select wells outside <Hanging_24x1> plate.\n"
                  "The plate has columns 0 to 5 and rows 0 to 3. Nothing was filled.");
        EXPECT_EQ(host.AllWells(), before);
    }
}

} // namespace
} // namespace zorvane
