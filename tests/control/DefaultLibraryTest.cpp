#include "TempFolder.h"
#include "control/ControlFixture.h"
#include "platform/sqlite/SqliteRegistry.h"
#include "support/RegistryFunctions.h"

#include <fstream>

namespace zorvane {
namespace {

/// A desktop whose registry outlives the process.
struct KeepingProcess : TestProcess {
    explicit KeepingProcess(const std::filesystem::path& file)
        : kept({.own = file, .shared = {}}) {}
    Registry& TheRegistry() override { return kept; }

    SqliteRegistry kept;
};

TEST(DefaultLibrary, IsFoundByANewControlOnceTheRegistryNamesItsFolder) {
    const TempFolder folder;
    std::ofstream(folder.Path() / "Plates(Tarvo).Dat")
        << "PLATE No_Plate\r\nROWS 1\r\nCOLS 2\r\nXOVERALL 20\r\nYOVERALL 20\r\nWELL A\r\n";
    {
        KeepingProcess process(folder.Path() / "registry.sqlite");
        EXPECT_TRUE(SaveSettingEx(kLocalMachine, "Software\\Brasquel\\Directories", "GlobalDataDir",
                                  (folder.Path() / "").string()));
    }
    KeepingProcess later(folder.Path() / "registry.sqlite");
    MemorySite site;
    Plate plate(site);
    plate.InitialProperties();
    EXPECT_EQ(plate.PlateName(), "No_Plate");
    EXPECT_EQ(plate.TotalWells(), 2);
}

} // namespace
} // namespace zorvane
