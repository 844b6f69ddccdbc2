#include "forms/row_selection.h"

#include "forms_testing.h"

namespace kivu::forms {
namespace {

TEST(RowSelection, BeginsWithNothingChosen) {
    const RowSelection selection;
    EXPECT_EQ(selection.Current(), -1);
    EXPECT_THAT(selection.Rows(), IsEmpty());
    EXPECT_FALSE(selection.Contains(-1));
    EXPECT_FALSE(selection.Contains(0));
}

TEST(RowSelection, OneRowAloneTakesTheMarksOfTheOthers) {
    RowSelection selection;
    EXPECT_TRUE(selection.Choose(3));
    EXPECT_TRUE(selection.Choose(1, Choice::toggle));
    EXPECT_TRUE(selection.Choose(3));
    EXPECT_FALSE(selection.Choose(3));
    EXPECT_THAT(selection.Rows(), ElementsAre(3));
    EXPECT_EQ(selection.Current(), 3);
}

TEST(RowSelection, ToggleTurnsOneRowOverAndMakesItCurrent) {
    RowSelection selection;
    selection.Choose(4);
    selection.Choose(2, Choice::toggle);
    EXPECT_THAT(selection.Rows(), ElementsAre(2, 4));
    selection.Choose(4, Choice::toggle);
    EXPECT_THAT(selection.Rows(), ElementsAre(2));
    EXPECT_EQ(selection.Current(), 4);
    EXPECT_FALSE(selection.Contains(4));
}

TEST(RowSelection, RangesReachFromTheAnchorBothWays) {
    RowSelection selection;
    selection.Choose(5);
    selection.Choose(7, Choice::extend);
    EXPECT_THAT(selection.Rows(), ElementsAre(5, 6, 7));
    selection.Choose(4, Choice::extend);
    EXPECT_THAT(selection.Rows(), ElementsAre(4, 5));
    EXPECT_EQ(selection.Current(), 4);
}

TEST(RowSelection, AddedRangeKeepsWhatWasChosen) {
    RowSelection selection;
    selection.Choose(0);
    selection.Choose(5, Choice::toggle);
    selection.Choose(7, Choice::addRange);
    EXPECT_THAT(selection.Rows(), ElementsAre(0, 5, 6, 7));
}

TEST(RowSelection, RangeWithoutAnAnchorBeginsAtTheCurrentRowOrAtTheFirst) {
    RowSelection selection;
    selection.Choose(2, Choice::extend);
    EXPECT_THAT(selection.Rows(), ElementsAre(0, 1, 2));
    RowSelection moved;
    moved.MoveCurrent(3);
    moved.Choose(4, Choice::extend);
    EXPECT_THAT(moved.Rows(), ElementsAre(3, 4));
}

TEST(RowSelection, MarksLeaveTheCurrentRow) {
    RowSelection selection;
    selection.Choose(1);
    EXPECT_TRUE(selection.Mark(6, true));
    EXPECT_FALSE(selection.Mark(6, true));
    EXPECT_TRUE(selection.Mark(1, false));
    EXPECT_EQ(selection.Current(), 1);
    EXPECT_THAT(selection.Rows(), ElementsAre(6));
}

TEST(RowSelection, MovingTheCurrentRowLeavesTheMarks) {
    RowSelection selection;
    selection.Choose(1);
    EXPECT_TRUE(selection.MoveCurrent(4));
    EXPECT_FALSE(selection.MoveCurrent(4));
    EXPECT_EQ(selection.Current(), 4);
    EXPECT_THAT(selection.Rows(), ElementsAre(1));
}

TEST(RowSelection, ClearTakesAll) {
    RowSelection selection;
    selection.Choose(1);
    selection.Mark(3, true);
    EXPECT_TRUE(selection.Clear());
    EXPECT_FALSE(selection.Clear());
    EXPECT_EQ(selection.Current(), -1);
    EXPECT_THAT(selection.Rows(), IsEmpty());
}

TEST(RowSelection, FollowsRowsThatAreRemoved) {
    RowSelection selection;
    selection.Choose(4);
    selection.Mark(1, true);
    selection.Mark(6, true);
    EXPECT_FALSE(selection.RowRemoved(0));
    EXPECT_THAT(selection.Rows(), ElementsAre(0, 3, 5));
    EXPECT_EQ(selection.Current(), 3);
    EXPECT_TRUE(selection.RowRemoved(3));
    EXPECT_THAT(selection.Rows(), ElementsAre(0, 4));
    EXPECT_EQ(selection.Current(), -1);
    EXPECT_TRUE(selection.RowRemoved(4));
    EXPECT_FALSE(selection.RowRemoved(7));
    EXPECT_THAT(selection.Rows(), ElementsAre(0));
}

TEST(RowSelection, FollowsRowsThatComeInFront) {
    RowSelection selection;
    selection.Choose(2);
    selection.Mark(0, true);
    selection.Mark(5, true);
    selection.RowsInserted({0, 2, 2, 6});
    EXPECT_EQ(selection.Current(), 5);
    EXPECT_THAT(selection.Rows(), ElementsAre(1, 5, 8));
    selection.Choose(7, Choice::extend);
    EXPECT_THAT(selection.Rows(), ElementsAre(5, 6, 7));
}

}  // namespace
}  // namespace kivu::forms
