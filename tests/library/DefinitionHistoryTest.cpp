#include "library/DefinitionHistory.h"

#include <gtest/gtest.h>

namespace zorvane {
namespace {

TEST(DefinitionHistory, KnowsWhichOfItsTextsIsSaved) {
    DefinitionHistory history;
    history.Begin("a");
    history.Add("a");
    EXPECT_FALSE(history.CanUndo()) << "the same text is no edit";
    history.Add("b");
    history.Add("c");
    EXPECT_FALSE(history.IsSaved());
    history.SetSaved();
    history.Undo();
    EXPECT_EQ(history.Present(), "b");
    EXPECT_FALSE(history.IsSaved());
    history.Redo();
    EXPECT_TRUE(history.IsSaved());
    EXPECT_FALSE(history.CanRedo());
    history.Undo();
    history.Add("d"); // the saved text cannot be reached any more
    EXPECT_FALSE(history.CanRedo());
    EXPECT_FALSE(history.IsSaved());
    for (int i = 0; i < 3; ++i)
        history.Undo();
    EXPECT_EQ(history.Present(), "a");
    EXPECT_FALSE(history.IsSaved());
}

} // namespace
} // namespace zorvane
