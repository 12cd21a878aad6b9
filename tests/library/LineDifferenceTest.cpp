#include "library/LineDifference.h"

#include <gtest/gtest.h>

#include <numeric>

namespace zorvane {
namespace {

String Shown(const std::vector<ChangedLine>& lines) {
    String text;
    for (const ChangedLine& line : lines)
        text += String(1, " -+"[static_cast<std::size_t>(line.change)]) + line.text + "\n";
    return text;
}

TEST(DefinitionDifference, ListsWhatTheReaderWouldSeeChange) {
    EXPECT_EQ(Shown(DefinitionDifference("PLATE A\n;one\n  Rows 8\n\n  WELL a\nDEPTH 1\n",
                                         "Plate A\r\n; one\r\n    ROWS 9\r\n    Well a\r\n"
                                         "      DEPTH 1\r\n      VOLUME 2\r\n")),
              " Plate A\n ; one\n-  Rows 8\n+    ROWS 9\n     Well a\n       DEPTH 1\n"
              "+      VOLUME 2\n");
    EXPECT_EQ(Shown(DefinitionDifference("ROWLABEL a\n", "ROWLABEL A\n")),
              "-ROWLABEL a\n+ROWLABEL A\n");
}

TEST(UnifiedDifference, IsWhatPatchingToolsRead) {
    const struct {
        String before;
        String after;
        String hunks;
    } cases[] = {
        {"", "a\n", "@@ -0,0 +1,1 @@\n+a\n"},
        {"a\n", "", "@@ -1,1 +0,0 @@\n-a\n"},
        {"1\n2\n3\n4\n5\n6\n7\n8\n", "1\n2\n3\n4\nx\n6\n7\n8\n",
         "@@ -2,7 +2,7 @@\n 2\n 3\n 4\n-5\n+x\n 6\n 7\n 8\n"},
        // Six lines between two changes are shown, seven are not.
        {"a\n1\n2\n3\n4\n5\n6\nb\n", "1\n2\n3\n4\n5\n6\n",
         "@@ -1,8 +1,6 @@\n-a\n 1\n 2\n 3\n 4\n 5\n 6\n-b\n"},
        {"a\n1\n2\n3\n4\n5\n6\n7\nb\n", "1\n2\n3\n4\n5\n6\n7\n",
         "@@ -1,4 +1,3 @@\n-a\n 1\n 2\n 3\n@@ -6,4 +5,3 @@\n 5\n 6\n 7\n-b\n"},
    };
    for (const auto& each : cases) {
        EXPECT_EQ(UnifiedDifference(each.before, each.after, "a b.dat"),
                  "--- a b.dat\t\n+++ a b.dat\t\n" + each.hunks)
            << each.before << "/" << each.after;
    }
}

/// Puts the second list together from the first and its changes; how many lines stay.
std::size_t Follow(const LineNumbers& lines) {
    std::vector<std::size_t> before;
    std::vector<std::size_t> after;
    std::size_t same = 0;
    for (const LineChange change : Compare(lines)) {
        if (change != LineChange::Added) before.push_back(lines.before.at(before.size()));
        if (change == LineChange::Removed) continue;
        const std::size_t line = lines.after.at(after.size());
        if (change == LineChange::Same) {
            EXPECT_EQ(before.back(), line);
            ++same;
        }
        after.push_back(line);
    }
    EXPECT_EQ(before, lines.before);
    EXPECT_EQ(after, lines.after);
    return same;
}

TEST(LineDifference, IsShortestForTextsOfAFewLines) {
    EXPECT_EQ(Follow({{1, 2, 3, 1, 2, 2, 1}, {3, 2, 1, 2, 1, 3}}), 4U);
    EXPECT_EQ(Follow({{1, 1, 1}, {1, 1}}), 2U);
    EXPECT_EQ(Follow({{}, {1}}), 0U);
}

// Ways in which a plain comparison of 30,000 lines takes minutes or gigabytes.
TEST(LineDifference, TakesVeryLongTexts) {
    std::vector<std::size_t> rising(30000);
    std::iota(rising.begin(), rising.end(), 0U);
    const std::vector<std::size_t> falling(rising.rbegin(), rising.rend());
    const std::vector<std::size_t> ones(rising.size(), 1);

    EXPECT_EQ(Follow({rising, falling}), 1U);
    EXPECT_EQ(Follow({ones, ones}), 30000U);
}

} // namespace
} // namespace zorvane
