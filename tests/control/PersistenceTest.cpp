#include "Test.h"
#include "control/ControlFixture.h"
#include "platform/memory/MemoryPropertyStore.h"

#include <optional>

namespace zorvane {
namespace {

class PersistenceTest : public testing::Test {
  protected:
    PersistenceTest() {
        // The library's whole name is the registry's directory followed by the file's name.
        directory = testing::TempDir() +
                    testing::UnitTest::GetInstance()->current_test_info()->name() + ".";
        library = directory + "Plates(Tarvo).Dat";
        std::ofstream(library, std::ios::binary)
            << "PLATE no_plate\r\nROWS 1\r\nCOLS 2\r\nXOVERALL 90\r\nYOVERALL 90\r\n"
            << SubWellText("Only", 1, 1, 1) << OneDrop();
    }
    ~PersistenceTest() override {
        std::error_code ignored;
        std::filesystem::remove(library, ignored);
    }

    void RegisterDirectory() {
        process.registry.Put(kLocalMachine, "Software\\Brasquel\\Directories", "GlobalDataDir",
                             kRegistryString, directory + '\0');
    }

    String directory, library;
    TestProcess process;
    MemorySite site;
};

TEST_F(PersistenceTest, StartsWithTheDefaultLibraryAndNoPlate) {
    EXPECT_EQ(Plate(site).FileName, "Plates(Tarvo).Dat");
    RegisterDirectory();
    Plate plate(site);
    EXPECT_EQ(plate.FileName, library);
    EXPECT_EQ(plate.PlateName(), "");
    plate.DrawingScale(70); // lays nothing out yet
    EXPECT_TRUE(site.repaints.empty());
    EXPECT_EQ(NumberRaisedBy([&] { plate.TagList(); }), 91);
}

TEST_F(PersistenceTest, ANewControlAndAnEmptyStoreGiveTheSameControl) {
    RegisterDirectory();
    Plate placed(site);
    placed.DefaultSelectColor = 1;
    placed.SelectedColor = 1;
    placed.HorizontalCentred = true;
    placed.FileName = "elsewhere";
    placed.DefaultRimColor(1);
    placed.DefaultWellColor(1);
    placed.InitialProperties();
    Plate restored(site);
    restored.RestoreProperties(MemoryPropertyStore());
    for (Plate* plate : {&placed, &restored}) {
        MemoryPropertyStore store;
        plate->SaveProperties(store);
        const std::vector<std::pair<String, PropertyValue>> expected = {
            {"FileName", library},
            {"PlateName", String("no_plate")}, // as the library writes it
            {"FixedSize", true},
            {"DrawingScale", plate->DrawingScale()}, // fitted
            {"DefaultRimColor", Long{0xE0E0E0}},
            {"DefaultSelectColor", Long{0x808080}},
            {"DefaultWellColor", Long{0xE0E0E0}},
            {"DeselectedColor", SystemColor(0x0F)},
            {"SelectedColor", SystemColor(0x10)},
            {"HorizontalCentred", false},
            {"VerticalCentred", false},
            {"MultipleSelect", false},
        };
        EXPECT_EQ(store.values, expected);
        EXPECT_EQ(plate->DrawingScale(), (4800 - 240) / 90.0F);
        EXPECT_EQ(plate->Elements().panel.StyleWell.fill, 0xE0E0E0);
        EXPECT_EQ(plate->TotalWells(), 2);
    }
}

TEST_F(PersistenceTest, RestoresEverySettingBeforeThePlateIsLoaded) {
    MemoryPropertyStore store;
    store.values = {
        {"FileName", library},        {"PlateName", String("DEMO")}, {"FixedSize", false},
        {"DrawingScale", Single{40}}, {"DefaultRimColor", Long{1}},  {"DefaultWellColor", Long{2}},
        {"MultipleSelect", true},
    };
    Plate plate(site);
    plate.RestoreProperties(store);
    EXPECT_EQ(store.reads,
              (std::vector<String>{"FixedSize", "DrawingScale", "FileName", "DefaultRimColor",
                                   "DefaultSelectColor", "DefaultWellColor", "DeselectedColor",
                                   "SelectedColor", "HorizontalCentred", "VerticalCentred",
                                   "PlateName", "MultipleSelect"}));
    EXPECT_EQ(plate.PlateName(), "Demo");
    EXPECT_EQ(plate.Elements().fraPlate.box, (Rect{0, 0, 4800, 3200}));
    EXPECT_EQ(plate.Elements().WellRim[95].fill, 1);
    EXPECT_EQ(plate.Elements().WellBottom[95].fill, 2);
    EXPECT_EQ(plate.Elements().panel.StyleRim.fill, 1);
    EXPECT_TRUE(plate.MultipleSelect);
}

TEST_F(PersistenceTest, AFailedLoadKeepsTheDrawingButNotTheDefinition) {
    RegisterDirectory();
    Plate plate(site);
    ASSERT_TRUE(plate.SetPlate("demo"));
    plate.SetWell(1, 1);
    plate.Text(13, "kept");
    plate.Dirty = true;
    process.messages.onUnexpected = nullptr;
    EXPECT_FALSE(plate.SetPlate("Demo", "missing"));
    EXPECT_EQ(process.messages.shown.size(), 1U);
    EXPECT_EQ(plate.FileName, "missing");
    EXPECT_EQ(plate.PlateName(), "Demo");
    EXPECT_TRUE(plate.Dirty);
    EXPECT_EQ(plate.CurrentWell(), 13);
    EXPECT_EQ(plate.Text(13), "kept");
    EXPECT_TRUE(plate.IsSelected(13) && plate.Elements().WellRim[95].visible);
    EXPECT_EQ(NumberRaisedBy([&] { plate.WellX(0, 0, "Drop1"); }), 5);
}

} // namespace
} // namespace zorvane
