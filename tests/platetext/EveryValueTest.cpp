#include "platetext/EveryValue.h"

#include "Definition.h"
#include "TestProcess.h"

#include <gtest/gtest.h>

namespace zorvane {
namespace {

/// Name, position and rim of every sub-well.
String LayoutOf(const cmPlate& plate) {
    String text;
    for (const auto& well : *plate.CompoundWell()) {
        text += well->WellName();
        for (const Single value :
             {well->xOffset(), well->yOffset(), well->Depth(), well->WellSizeX(), well->RimWidth(),
              well->RimHeight(), well->RimCenterX(), well->RimCenterY()})
            text += " " + std::to_string(value + 0.0F); // a zero has no sign
        text += "\n";
    }
    return text;
}

TEST(EveryValue, WhatTheOperationsChangeIsReadBackForItsOwnSubWell) {
    const TestProcess process;
    cmPlate plate;
    plate.SetFromText(Lines({"PLATE P", "ROWS 2", "COLS 3", "XPITCH 9", "YPITCH 9", "XOVERALL 40",
                             "YOVERALL 30", "WELL A", "DEPTH 1", "RIMWIDTH 0.5", "WELL B",
                             "XOFFSET 4", "YOFFSET 2", "RIMCENTERX 1"}));
    const String before = LayoutOf(plate);
    RecordEveryValue(plate);
    EXPECT_EQ(LayoutOf(plate), before);

    cmPlate read;
    const auto expectReadBack = [&](const char* what) {
        read.SetFromText(plate.Text());
        EXPECT_EQ(LayoutOf(read), LayoutOf(plate)) << what;
    };
    expectReadBack("as it was");
    plate.Rotate90();
    expectReadBack("turned");
    plate.ShiftWells(1, 2, 3);
    expectReadBack("shifted");

    const String complete = plate.Text();
    RecordEveryValue(plate);
    EXPECT_EQ(plate.Text(), complete) << "there is nothing to add any more";
}

TEST(EveryValue, ASubWellWithoutALineOfItsOwnIsLeftAlone) {
    const TestProcess process;
    cmPlate plate;
    plate.SetFromText(Lines({"PLATE P", "DEPTH 1", "WELL B"}));
    const String before = plate.Properties.TextTable();
    RecordEveryValue(plate);
    EXPECT_TRUE(plate.Properties.TextTable().starts_with(before)) << plate.Properties.TextTable();
    EXPECT_EQ(plate.Properties.Find("DEFAULT.DEPTH"), nullptr);
}

} // namespace
} // namespace zorvane
