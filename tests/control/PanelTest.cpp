#include "control/PanelFixture.h"

namespace zorvane {
namespace {

class PanelTest : public PanelControl {
  protected:
    PanelTest() {
        Load("PLATE Demo\r\n; first\r\n; second\r\nTAGLIST red blue\r\nRows 2\r\nCols 3\r\n"
             "XPITCH 9\r\nYPITCH 9\r\nXOVERALL 40\r\nYOVERALL 30\r\nHEIGHT 14\r\n"
             "WELL A\r\nSTYLE PILLAR\r\nXOFFSET 10\r\nYOFFSET 10\r\nVOLUME 2.5\r\n"
             "WELL Ab\r\nXOFFSET 5\r\nDEPTH 1\r\n");
    }
};

TEST_F(PanelTest, EveryPageShowsItsPartOfTheDefinition) {
    plate.SetProperty("x", "1");
    EXPECT_EQ(Pages(), "[Comments], Tags, General Properties, A Well, Ab Well");
    EXPECT_EQ(Panel().txtComment.text, "first\r\nsecond\r\n");
    EXPECT_TRUE(Panel().txtComment.visible);

    struct Case {
        Integer page;
        const char* rows;
        Boolean style;
        Single left; ///< of the text boxes
    } const cases[] = {
        {1, "Tag 1=red; Tag 2=blue", false, 690},
        {2, "Rows=2; Columns=3; X Pitch=9; Y Pitch=9; X Overall=40; Y Overall=30; Height=14; X=1",
         false, 1740},
        {3, "Style=PILLAR; X offset=10; Y Offset=10; Volume=2.5", true, 1740},
        {4, "X offset=5; Depth=1", true, 1740},
    };
    for (const Case& each : cases) {
        plate.PageChosen(each.page);
        EXPECT_EQ(Rows(), each.rows);
        EXPECT_FALSE(Panel().txtComment.visible) << each.page;
        EXPECT_EQ(Panel().cmbStyle.visible, each.style) << each.page;
        EXPECT_EQ(Panel().StyleRim.visible && Panel().StyleWell.visible, each.style) << each.page;
        EXPECT_EQ(Panel().txtData[0].box, (Rect{each.left, 810, 2490 - each.left, 195}));
        EXPECT_EQ(Panel().txtData[0].rightAligned, each.page != 1) << each.page;
    }
    EXPECT_EQ(Panel().lblAnnotation[0].Tag, "Ab.XOFFSET");
    EXPECT_EQ(NumberRaisedBy([&] { plate.SetDataDisplay(5); }), 9);
    EXPECT_EQ(NumberRaisedBy([&] { plate.PageChosen(5); }), 5);
}

TEST_F(PanelTest, ThePanelIsAsHighAsItsPage) {
    const auto heights = [&](Integer page, Single applyTop) {
        plate.SetDataDisplay(page);
        EXPECT_EQ(Panel().cmdApply.box.top, applyTop) << page;
        EXPECT_EQ(Shown().fraData.box.height, applyTop + 787.5F) << page;
        EXPECT_EQ(Panel().ControlPic.height, applyTop + 472.5F) << page;
    };
    heights(0, 660 + 3015 + 240);
    heights(1, 810 + 240 + 390); // the second row is the last
    heights(4, 810 + 240 + 390);
    plate.EditEnable(true); // from here on, as on a page without a button
    EXPECT_EQ(Panel().ControlPic.height, 1440 + 315);
    EXPECT_EQ(Shown().fraData.box.height, 270 + 1755 + 315);
    plate.EditEnable(false);
    EXPECT_EQ(Panel().ControlPic.height, 1440 - 157.5F);
    EXPECT_EQ(Shown().fraData.box.height, 270 + 1282.5F + 315);

    Load(GridText(1, 1, ""));
    heights(1, 810 + 390); // no tags
    Load("PLATE Demo\r\nWELL A\r\n");
    heights(3, 810 + 390); // no rows
    EXPECT_EQ(Rows(), "");
}

TEST_F(PanelTest, RowsBeyondTheTwelfthLieOverTheFirst) {
    Load(GridText(1, 1, SubWellText("A", 5, 5, 2)));
    for (int i = 1; i <= 6; ++i)
        plate.SetProperty("EXTRA" + std::to_string(i), std::to_string(i));
    plate.PageChosen(2);
    ASSERT_EQ(Panel().txtData.size(), 15U);
    EXPECT_EQ(Panel().lblAnnotation[14].caption, "Extra6");
    EXPECT_EQ(Panel().txtData[14].text, "6");
    EXPECT_EQ(Panel().txtData[14].box, Panel().txtData[0].box);
    EXPECT_EQ(Panel().cmdApply.box.top, 810 + 390);
    plate.PageChosen(3);
    EXPECT_FALSE(Panel().txtData[14].visible || Panel().lblAnnotation[14].visible);
}

TEST_F(PanelTest, TheTagPageWaitsForNewTagsWhileItCanBeEdited) {
    plate.EditEnable(true);
    plate.PageChosen(1);
    EXPECT_EQ(Rows(), "Tag 1=red; Tag 2=blue; Tag 3=; Tag 4=; Tag 5=; Tag 6=; Tag 7=; Tag 8=; "
                      "Tag 9=; Tag 10=; Tag 11=; Tag 12=");
    Load(GridText(1, 1, ""));
    plate.PageChosen(1);
    EXPECT_EQ(Panel().lblAnnotation[11].caption, "Tag 12");
    plate.EditEnable(false);
    plate.PageChosen(1);
    EXPECT_EQ(Rows(), "No Tags Defined");
    Load(GridText(1, 1, "", "TAGLIST a b c d e f g h i j k l m n\r\n"));
    plate.PageChosen(1);
    EXPECT_TRUE(Rows().ends_with("; Tag 12=l")) << Rows();
}

TEST_F(PanelTest, EditEnableDecidesWhatTheOperatorCanUse) {
    for (const Boolean on : {false, true, false}) {
        plate.EditEnable(on);
        const Long back = on ? kWindowBackground : kButtonFace;
        EXPECT_EQ(Panel().txtComment.back, back);
        EXPECT_EQ(Panel().txtData[11].back, back);
        EXPECT_TRUE(Panel().txtData[11].enabled);
        EXPECT_EQ(Panel().txtComment.enabled, on);
        EXPECT_EQ(Panel().cmbStyle.enabled, on);
        EXPECT_EQ(Panel().cmdApply.visible, on);
        EXPECT_EQ(Panel().cmdPopup.visible, on);
        plate.DrawingScale(50);
        EXPECT_EQ(Panel().cmdApply.visible, on) << "after a layout";
    }
}

TEST_F(PanelTest, AStyleGoesToRowZeroAndToThePreview) {
    struct Case {
        const char* name;
        ShapeKind well;
        ShapeKind rim;
    } const cases[] = {{"Round", ShapeKind::Oval, ShapeKind::Oval},
                       {"Shelf", ShapeKind::Oval, ShapeKind::Rectangle},
                       {"Pillar", ShapeKind::Rectangle, ShapeKind::Oval},
                       {"Square", ShapeKind::Rectangle, ShapeKind::Rectangle}};
    plate.PageChosen(3);
    EXPECT_EQ(Panel().cmbStyle.position, 2);
    EXPECT_EQ(Panel().StyleRim.kind, ShapeKind::Oval);
    EXPECT_FALSE(Panel().cmdApply.enabled);
    plate.PageChosen(4); // row 0 is no style there, and takes one all the same
    for (Integer position = 0; position < 4; ++position) {
        const Case& each = cases[position];
        plate.StyleChosen(position);
        EXPECT_EQ(Rows(), String("X offset=") + each.name + "; Depth=1");
        EXPECT_EQ(Panel().StyleWell.kind, each.well) << each.name;
        EXPECT_EQ(Panel().StyleRim.kind, each.rim) << each.name;
        EXPECT_TRUE(Panel().cmdApply.enabled);
    }
    EXPECT_EQ(NumberRaisedBy([&] { plate.StyleChosen(4); }), 5);

    plate.WellIndex(1);
    plate.Style(7); // unknown to the list
    plate.PageChosen(3);
    EXPECT_EQ(Panel().cmbStyle.position, -1);
}

TEST_F(PanelTest, ApplyTakesThePageOver) {
    plate.EditEnable(true);
    const auto apply = [&](Integer page, const std::function<void()>& edit) {
        plate.DataVisible(true);
        plate.PageChosen(page);
        EXPECT_FALSE(Panel().cmdApply.enabled) << page;
        edit();
        EXPECT_TRUE(Panel().cmdApply.enabled) << page;
        plate.ApplyPressed();
        EXPECT_EQ(events.Take(), "ApplyChanges");
        EXPECT_EQ(Panel().comboSelect.position, 0);
        EXPECT_TRUE(plate.DataVisible());
        EXPECT_FALSE(Panel().cmdApply.enabled);
    };
    plate.WellAnnotation(0, "note");
    apply(0, [&] { plate.CommentTyped("new\r\nlost, as no line ends it"); });
    EXPECT_EQ(Panel().txtComment.text, "new\r\n");
    EXPECT_EQ(plate.WellAnnotation(0), "note") << "what the host shows on wells stays";

    apply(1, [&] {
        Type("Tag 1", "  x ");
        Type("Tag 2", "");
        Type("Tag 5", "y");
    });
    EXPECT_EQ(plate.TagList(), "x y");
    EXPECT_EQ(plate.GetProperty("TagList"), "x y");
    EXPECT_EQ(Definition().Properties.IndexOf("TAGLIST"), 1);

    apply(2, [&] {
        Type("Columns", "4");
        Type("X Pitch", "8 ; tight");
    });
    EXPECT_EQ(plate.TotalWells(), 2 * 4 * 2);
    EXPECT_EQ(plate.XPitch, 8);
    EXPECT_EQ(Panel().txtComment.text, "new\r\nXPITCH 8 : tight\r\n");

    apply(3, [&] {
        plate.StyleChosen(3);
        Type("Volume", "7");
    });
    const auto subWell = Definition().CompoundWell()->Item("A");
    EXPECT_EQ(subWell->Style(), 3);
    EXPECT_EQ(subWell->MaxVolume(), 7);
    EXPECT_EQ(Shown().WellRim[0].kind, ShapeKind::Rectangle);

    apply(1, [&] {
        Type("Tag 1", "");
        Type("Tag 2", " ");
    });
    EXPECT_EQ(plate.TagList(), "");
    EXPECT_EQ(Definition().Properties.IndexOf("TagList"), 0);
}

TEST_F(PanelTest, AHostThatReadsThePanelGetsWhatStandsInIt) {
    plate.PageChosen(3);
    plate.GetDataDisplay(1); // hidden rows count too, with what the last pages left in them
    EXPECT_EQ(plate.TagList(), "PILLAR 10 2.5");

    plate.PageChosen(2);
    plate.PlateClassText("PLATE Other\r\nROWS 1\r\nCOLS 1\r\n");
    plate.SetDataDisplay(2);
    EXPECT_EQ(Rows(), "Rows=1; Columns=1");
    plate.SetProperty("ROWS", "2");
    plate.GetDataDisplay(2);
    EXPECT_EQ(plate.GetProperty("ROWS"), "1");
}

TEST_F(PanelTest, TheHostHearsOfEveryChangeInThePanel) {
    const auto heard = [&](const char* what, const std::function<void()>& change, bool expected) {
        const Long before = site.panelChanges;
        NumberRaisedBy(change);
        EXPECT_EQ(site.panelChanges > before, expected) << what;
    };
    heard(
        "a page", [&] { plate.PageChosen(2); }, true);
    heard(
        "a page that is not there", [&] { plate.SetDataDisplay(9); }, true);
    heard(
        "a text", [&] { plate.RowTyped(0, "3"); }, true);
    heard(
        "the same text", [&] { plate.RowTyped(0, "3"); }, false);
    heard(
        "a colour", [&] { plate.DefaultRimColor(1); }, true);
    heard(
        "a layout", [&] { plate.DrawingScale(40); }, true);
    heard(
        "a command that fails", [&] { plate.MenuChosen(mnuAddNewSubWell); }, true);
    EXPECT_EQ(NumberRaisedBy([&] { plate.RowTyped(12, ""); }), 9);
    EXPECT_EQ(NumberRaisedBy([&] { plate.RowTyped(-1, ""); }), 9);
}

} // namespace
} // namespace zorvane
