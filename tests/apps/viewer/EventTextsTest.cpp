#include "apps/viewer/logic/EventTexts.h"

#include "apps/LoadedPlate.h"

#include <gtest/gtest.h>

#include <vector>

namespace zorvane::viewer {
namespace {

TEST(EventTexts, WriteEachEventWithItsArguments) {
    std::vector<String> lines;
    LoadedPlate host;
    EventTexts texts(
        host.plate, [&](const String& line) { lines.push_back(line); },
        [](Integer well) { return well == 6 ? String("B1, Drop1") : String(); });
    texts.DoubleClick();
    texts.Click();
    texts.SelectWell(6);
    texts.SelectWell(99);
    texts.SelectMultipleWells();
    texts.MouseDown(kRightButton, kShiftKey + kAltKey, 1230, 4.5F);
    texts.MouseUp(kMiddleButton, 0, -15, 0);
    texts.DragMove(kLeftButton, kCtrlKey, -2, 1);
    texts.ApplyChanges();
    EXPECT_EQ(lines,
              (std::vector<String>{"DoubleClick", "Click", "SelectWell: WellNo 6 (B1, Drop1)",
                                   "SelectWell: WellNo 99", "SelectMultipleWells",
                                   "MouseDown: Button 2, Shift 5, X 1230, Y 4.5",
                                   "MouseUp: Button 4, Shift 0, X -15, Y 0",
                                   "DragMove: Button 1, Shift 2, dC -2, dR 1", "ApplyChanges"}));
}

} // namespace
} // namespace zorvane::viewer
