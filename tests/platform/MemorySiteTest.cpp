#include "platform/memory/MemorySite.h"

#include "platform/memory/MemoryProcess.h"

#include <gtest/gtest.h>

namespace zorvane {
namespace {

TEST(MemorySite, AnswersFromItsScriptAndThenCancels) {
    MemorySite site;
    site.answers = {"Drop1"};
    EXPECT_EQ(site.Ask({"Name", "Rename", "Drop"}), "Drop1");
    EXPECT_EQ(site.Ask({"Again", "", ""}), "");
    EXPECT_EQ(site.questions.size(), 2U);

    const std::vector<MenuEntry> menu = {{"&Insert", true}, {"&Remove", false}};
    site.choices = {0, 1, 2};
    for (const Long chosen : {0, -1, -1, -1})
        EXPECT_EQ(site.Choose(menu), chosen);
}

TEST(MemorySite, KeepsItsOverlayAsLargeAsTheControl) {
    MemorySite site;
    EXPECT_EQ(site.overlay.Width(), 440);
    EXPECT_EQ(site.overlay.Height(), 320);
    site.Resize(3000, 1e30F);
    EXPECT_EQ(site.overlay.Width(), 200);
    EXPECT_EQ(site.overlay.Height(), 8192);
    EXPECT_EQ(site.Width(), 3000);

    MemoryProcess process;
    const InstalledProcess installed(process);
    process.screen.twipsPerPixelX = 0;
    site.Resize(0, 3000);
    EXPECT_EQ(site.overlay.Width(), 0) << "no pixels on a screen without a pixel size";
}

} // namespace
} // namespace zorvane
