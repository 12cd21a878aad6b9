#include "control/PanelFixture.h"

namespace zorvane {
namespace {

class SubWellCommandsTest : public PanelControl {
  protected:
    SubWellCommandsTest() { Reload(); }

    /// A sub-well that records all that the commands change: what they record for the first time
    /// goes to the end of the list, and so belongs to the last sub-well when the text is read.
    static String WholeSubWell(const String& name, Single x) {
        return SubWellText(name, x, 10, 2) + "RIMCENTERX 0\r\nRIMCENTERY 0\r\n";
    }

    void Reload() {
        Load(GridText(2, 3, WholeSubWell("A", 10) + WholeSubWell("B", 12) + WholeSubWell("C", 14)));
        // The keyword of a sub-well is copied under the new name only when spelt as it is written.
        plate.PlateClassText(plate.PlateClassText());
        plate.EditEnable(true);
        plate.DataVisible(true);
        site.questions.clear();
        site.answers.clear();
    }

    /// Runs a command on a page with the operator's answer; the number of the error it raises.
    Long Run(SubWellCommand command, Integer page, const String& answer = {}) {
        plate.PageChosen(page);
        site.answers = {answer};
        return NumberRaisedBy([&] { plate.MenuChosen(command); });
    }

    /// Edits are pending: Apply waits for the operator and pointer selection is off.
    Boolean MarkedEdited() const {
        return Panel().cmdApply.enabled && plate.MouseToWell(500, 500) == -1;
    }
};

TEST_F(SubWellCommandsTest, CommandsTakeTheSubWellAfterTheOneShown) {
    struct Case {
        SubWellCommand command;
        Integer page;
        const char* answer;
        const char* subWells;
        const char* pages;
        Boolean marked;
    } const cases[] = {
        {mnuAddNewSubWell, 2, "N", "A N B C",
         "Comments, Tags, General Properties, [N], A Well, B Well, C Well", true},
        {mnuAddNewSubWell, 3, "N", "A B N C",
         "Comments, Tags, General Properties, A Well, [N], B Well, C Well", true},
        {mnuAddNewSubWell, 0, "N", "A B C N",
         "Comments, [N], Tags, General Properties, A Well, B Well, C Well", true},
        {mnuAddNewSubWell, 2, "", "A  B C",
         "Comments, Tags, General Properties, [], A Well, B Well, C Well", true},
        {mnuRemoveSubWell, 3, "", "A C", "Comments, Tags, [General Properties], B Well, C Well",
         true},
        {mnuRemoveSubWell, 1, "", "A B C",
         "Comments, [Tags], General Properties, A Well, B Well, C Well", false},
        {mnuRenameSubwell, 3, "N", "A N C",
         "Comments, Tags, General Properties, [N Well], B Well, C Well", true},
        {mnuRenameSubwell, 3, "", "A B C",
         "Comments, Tags, General Properties, [A Well], B Well, C Well", false},
        {mnuMoveDown, 3, "", "A C B",
         "[Comments], Tags, General Properties, A Well, C Well, B Well", true},
        {mnuMoveDown, 5, "", "A B C",
         "Comments, Tags, General Properties, A Well, B Well, [C Well]", false},
        {mnuMoveUp, 4, "", "A C B", "[Comments], Tags, General Properties, A Well, C Well, B Well",
         true},
        {mnuMoveUp, 3, "", "B A C", "[Comments], Tags, General Properties, B Well, A Well, C Well",
         true},
        {mnuMoveUp, 2, "", "A B C", "Comments, Tags, [General Properties], A Well, B Well, C Well",
         false},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(testing::Message() << "command " << each.command << " on " << each.page);
        Reload();
        EXPECT_EQ(Run(each.command, each.page, each.answer), 0);
        EXPECT_EQ(SubWells(), each.subWells);
        EXPECT_EQ(Pages(), each.pages);
        EXPECT_EQ(MarkedEdited(), each.marked);
        EXPECT_TRUE(plate.DataVisible());
    }
}

TEST_F(SubWellCommandsTest, ApplyWaitsOnEveryPageUntilTheNextLayout) {
    EXPECT_EQ(Run(mnuRemoveSubWell, 3), 0);
    for (Integer page = 0; page < 5; ++page) {
        plate.PageChosen(page);
        EXPECT_TRUE(MarkedEdited()) << page;
    }
    plate.DrawingScale(plate.DrawingScale());
    EXPECT_FALSE(Panel().cmdApply.enabled);
    EXPECT_NE(plate.MouseToWell(500, 500), -1);
}

TEST_F(SubWellCommandsTest, ShiftsMoveEverySubWellByTheNumberTyped) {
    struct Case {
        SubWellCommand command;
        const char* answer;
        Single x, y, depth;
    } const cases[] = {
        {mnuShiftHorizontal, "1.5mm", 13.5F, 10, 5}, {mnuShiftVertical, " -2 ", 12, 8, 5},
        {mnuShiftHeight, "0.5", 12, 10, 4.5F},       {mnuShiftHeight, "abc", 12, 10, 5},
        {mnuShiftHorizontal, "0", 12, 10, 5},        {mnuShiftVertical, "", 12, 10, 5},
    };
    for (const Case& each : cases) {
        Reload();
        EXPECT_EQ(Run(each.command, 0, each.answer), 0);
        const auto subWell = Definition().CompoundWell()->Item("B");
        EXPECT_EQ(subWell->xOffset(), each.x) << each.answer;
        EXPECT_EQ(subWell->yOffset(), each.y) << each.answer;
        EXPECT_EQ(subWell->Depth(), each.depth) << each.answer;
        const bool shifted = each.x != 12 || each.y != 10 || each.depth != 5;
        EXPECT_EQ(MarkedEdited(), shifted) << each.answer;
    }
    Reload();
    plate.WellAnnotation(0, "note");
    EXPECT_EQ(Run(mnuRotate90, 0), 0);
    EXPECT_EQ(plate.WellAnnotation(0), "");
    EXPECT_EQ(std::pair(plate.Rows, plate.Cols), std::pair(Integer{3}, Integer{2}));
    EXPECT_TRUE(MarkedEdited() && plate.DataVisible());
}

TEST_F(SubWellCommandsTest, FailuresReachTheHostAfterTheListHasChanged) {
    const auto fails = [&](SubWellCommand command, Integer page, const String& answer, Long number,
                           const String& pages) {
        EXPECT_EQ(Run(command, page, answer), number) << command;
        EXPECT_EQ(Pages(), "Comments, Tags, General Properties, " + pages);
        EXPECT_FALSE(MarkedEdited()) << command;
        Reload();
    };
    fails(mnuAddNewSubWell, 5, "N", 9, "A Well, B Well, [C Well]");
    fails(mnuAddNewSubWell, 3, "c", 457, "[A Well], B Well, C Well");
    fails(mnuRemoveSubWell, 5, "", 9, "A Well, [B Well]");
    fails(mnuRenameSubwell, 5, "N", 9, "A Well, B Well, [C Well]");
    fails(mnuRenameSubwell, 3, "C", 457, "[C Well], B Well, C Well");
    fails(mnuMoveDown, 4, "", 9, "A Well, [B Well], C Well");

    Load("PLATE Demo\r\nROWS 1\r\nCOLS 1\r\nXOFFSET 5\r\nWELL B\r\n");
    EXPECT_EQ(SubWells(), "DEFAULT B"); // the first made by the reader, without a block
    EXPECT_EQ(Run(mnuRemoveSubWell, 2), 91);
    EXPECT_EQ(SubWells(), "DEFAULT B");
}

TEST_F(SubWellCommandsTest, TheMenuOffersWhatThePageAllows) {
    for (Integer page = 0; page < 6; ++page) {
        plate.PageChosen(page);
        plate.MenuPressed();
        String enabled;
        for (const MenuEntry& entry : site.menus.back())
            enabled += entry.enabled ? '+' : '-';
        EXPECT_EQ(enabled, page < 2 ? "-----++++" : page == 2 ? "+----++++" : "+++++++++") << page;
    }
    EXPECT_EQ(site.menus.back()[mnuRenameSubwell].caption, "Rename SubWell");
    EXPECT_EQ(site.menus.back()[mnuShiftVertical].caption, "Shift All Wells in &Y");
    site.choices = {mnuRotate90};
    plate.MenuPressed();
    EXPECT_EQ(plate.Rows, 3);
    plate.MenuPressed(); // dismissed
    EXPECT_EQ(plate.Rows, 3);
}

} // namespace
} // namespace zorvane
