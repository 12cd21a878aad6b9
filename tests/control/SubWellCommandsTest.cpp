#include "control/PanelFixture.h"

#include <random>

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

TEST_F(SubWellCommandsTest, ANewSubWellIsACopyOfTheOneBeforeIt) {
    plate.DataVisible(false);
    EXPECT_EQ(Run(mnuAddNewSubWell, 3, "N"), 0);
    EXPECT_FALSE(plate.DataVisible()) << "only inserting leaves a closed panel closed";
    EXPECT_EQ(Definition().CompoundWell()->Item("N")->xOffset(), 12);
    EXPECT_EQ(plate.GetProperty("N.XOFFSET"), "12");
    EXPECT_EQ(plate.GetProperty("N.Well"), "N");
    EXPECT_EQ(plate.TotalWells(), 18) << "not laid out before Apply";
    plate.ApplyPressed();
    EXPECT_EQ(plate.TotalWells(), 24);
    EXPECT_NE(plate.MouseToWell(500, 500), -1);
    EXPECT_EQ(Pages(), "[Comments], Tags, General Properties, A Well, B Well, C Well, N Well");
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

TEST_F(SubWellCommandsTest, EveryCommandAsksInItsOwnWords) {
    const auto asks = [&](SubWellCommand command, const String& prompt, const String& title,
                          const String& preset) {
        Reload();
        Run(command, 3);
        ASSERT_EQ(site.questions.size(), 1U) << title;
        EXPECT_EQ(site.questions[0].prompt, prompt);
        EXPECT_EQ(site.questions[0].title, title);
        EXPECT_EQ(site.questions[0].preset, preset);
    };
    asks(mnuAddNewSubWell, "Enter  a unique name for the subwell", "SubWell Name", "");
    asks(mnuRenameSubwell, "New SubWell Name", "Rename SubWell", "B");
    asks(mnuShiftHorizontal,
         "Enter distance in mm to shift all subwell centers\r\n+ve value shifts right", "X Shift",
         "0.00");
    asks(mnuShiftVertical,
         "Enter distance in mm to shift all subwell centers\r\n+ve value shifts down", "Y Shift",
         "0.00");
    asks(mnuShiftHeight,
         "Enter distance in mm to shift bottoms of all subwells\r\n+ve value shifts up", "Z Shift",
         "0.00");
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

/// An operator who does anything that the panel allows, and undoes what fails.
class RandomEditsTest : public SubWellCommandsTest {
  protected:
    Integer Below(std::size_t count) {
        return static_cast<Integer>(
            std::uniform_int_distribution<std::size_t>(0, count - 1)(random));
    }
    String Pick(const std::vector<String>& texts) {
        return texts[static_cast<std::size_t>(Below(texts.size()))];
    }

    void RunAnyCommand() {
        const auto command = static_cast<SubWellCommand>(Below(9));
        const bool named = command <= mnuRenameSubwell;
        site.answers = {named ? Pick({"A", "B", "c", "D", "Drop1", "x2", ""})
                              : Pick({"0.5", "-0.5", "0.25", "1mm", "", "x"})};
        plate.MenuChosen(command);
    }

    void TypeAnywhere() {
        if (Panel().comboSelect.position == kCommentPage)
            return plate.CommentTyped(Pick({"", "one\r\n", "one\r\ntwo\r\n", "lost"}));
        const Integer row = Below(Panel().txtData.size());
        const String& key = Panel().lblAnnotation[static_cast<std::size_t>(row)].Tag;
        const bool name = key.ends_with("LABEL");
        plate.RowTyped(row, name ? Pick({"A", "1", "8"}) : Pick({"1", "2", "3", "2.5", "9 mm"}));
    }

    void EditSomething() {
        plate.PageChosen(Below(Panel().comboSelect.entries.size()));
        switch (Below(3)) {
        case 0:
            return RunAnyCommand();
        case 1:
            return plate.StyleChosen(Below(4));
        default:
            return TypeAnywhere();
        }
    }

    /// What a definition shows: where every well lies, and the rows of every page.
    static String Picture(Plate& shown) {
        std::ostringstream picture;
        const Surface& surface = shown.Elements();
        for (std::size_t well = 0; well < surface.WellRim.size(); ++well) {
            PrintTo(surface.WellRim[well].box, &picture);
            PrintTo(surface.WellBottom[well].box, &picture);
            picture << static_cast<int>(surface.WellRim[well].kind);
        }
        picture << "\n" << surface.panel.txtComment.text;
        for (std::size_t page = 1; page < surface.panel.comboSelect.entries.size(); ++page) {
            shown.SetDataDisplay(static_cast<Integer>(page));
            picture << "\n" << surface.panel.comboSelect.entries[page] << ":";
            for (std::size_t row = 0; row < surface.panel.txtData.size(); ++row)
                if (surface.panel.lblAnnotation[row].visible)
                    picture << " " << surface.panel.lblAnnotation[row].caption << "="
                            << surface.panel.txtData[row].text;
        }
        return picture.str();
    }

    std::mt19937 random{20261125};
};

TEST_F(RandomEditsTest, DefinitionPanelDrawingAndTextAgree) {
    MemorySite otherSite;
    Plate other(otherSite);
    other.FixedSize = false;
    other.EditEnable(true);
    int applied = 0;
    for (int edit = 0; edit < 10'000; ++edit) {
        const String before = plate.PlateClassText();
        const Long error = NumberRaisedBy([&] {
            EditSomething();
            plate.ApplyPressed();
        });
        if (error != 0) {
            plate.PlateClassText(before);
            continue;
        }
        ++applied;
        const String text = plate.PlateClassText();
        other.PlateClassText(text);
        ASSERT_EQ(other.PlateClassText(), text) << "after edit " << edit << " of\n" << before;
        ASSERT_EQ(Picture(plate), Picture(other)) << "after edit " << edit << " of\n" << before;
    }
    EXPECT_GT(applied, 5000);
}

} // namespace
} // namespace zorvane
