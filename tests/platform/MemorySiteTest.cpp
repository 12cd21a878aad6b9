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

} // namespace
} // namespace zorvane
