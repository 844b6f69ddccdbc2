#include "forms_testing.h"

namespace kivu::forms {
namespace {

struct MultiSelect : testing::Test {
    MultiSelect() {
        list.SetMultiSelect(true);
        list.AddItems({"a", "b", "c", "d", "e", "f"});
        list.onClick = [this] { log.push_back("click " + std::to_string(list.ListIndex())); };
    }
    void Stroke(int code, int shift = 0) { user.Stroke({code, shift}); }

    Form form{"F"};
    UserInput user{form};
    ListBox list{&form, "L", ListControl::Order::asAdded};
    Log log;
};

TEST_F(MultiSelect, PlainClickChoosesOneRow) {
    user.Click(list, 1);
    user.Click(list, 3);
    EXPECT_THAT(list.SelectedRows(), ElementsAre(3));
    EXPECT_EQ(list.SelCount(), 1);
    EXPECT_TRUE(list.Selected(3));
    EXPECT_FALSE(list.Selected(1));
    EXPECT_THAT(log, ElementsAre("click 1", "click 3"));
}

TEST_F(MultiSelect, CtrlClickTurnsARowOverAndClicks) {
    user.Click(list, 1);
    user.Click(list, 4, shifts::ctrl);
    EXPECT_THAT(list.SelectedRows(), ElementsAre(1, 4));
    user.Click(list, 1, shifts::ctrl);
    EXPECT_THAT(list.SelectedRows(), ElementsAre(4));
    EXPECT_EQ(list.ListIndex(), 1);
    EXPECT_THAT(log, ElementsAre("click 1", "click 4", "click 1"));
}

TEST_F(MultiSelect, PlainClickOnTheCurrentRowTakesTheOthersMarks) {
    user.Click(list, 1);
    user.Click(list, 4, shifts::ctrl);
    log.clear();
    user.Click(list, 4);
    EXPECT_THAT(list.SelectedRows(), ElementsAre(4));
    EXPECT_THAT(log, ElementsAre("click 4"));
}

TEST_F(MultiSelect, ShiftClickTakesAllFromTheRowChosenLast) {
    user.Click(list, 4);
    user.Click(list, 2, shifts::shift);
    EXPECT_THAT(list.SelectedRows(), ElementsAre(2, 3, 4));
    EXPECT_EQ(list.ListIndex(), 2);
    user.Click(list, 5, shifts::shift);
    EXPECT_THAT(list.SelectedRows(), ElementsAre(4, 5));
    user.Click(list, 0, shifts::ctrl);
    user.Click(list, 1, shifts::ctrl | shifts::shift);
    EXPECT_THAT(list.SelectedRows(), ElementsAre(0, 1, 4, 5));
}

TEST_F(MultiSelect, ShiftWithKeysExtends) {
    user.Click(list, 1);
    Stroke(keys::down, shifts::shift);
    Stroke(keys::down, shifts::shift);
    EXPECT_THAT(list.SelectedRows(), ElementsAre(1, 2, 3));
    Stroke(keys::up, shifts::shift);
    EXPECT_THAT(list.SelectedRows(), ElementsAre(1, 2));
    Stroke(keys::end, shifts::shift);
    EXPECT_THAT(list.SelectedRows(), ElementsAre(1, 2, 3, 4, 5));
    EXPECT_EQ(list.ListIndex(), 5);
    Stroke(keys::down, shifts::shift);
    EXPECT_EQ(list.ListIndex(), 5);
    Stroke(keys::up);
    EXPECT_THAT(list.SelectedRows(), ElementsAre(4));
}

TEST_F(MultiSelect, SpaceTurnsTheCurrentRowOver) {
    user.Click(list, 0);
    Stroke(keys::down, shifts::ctrl);
    Stroke(keys::down, shifts::ctrl);
    EXPECT_THAT(list.SelectedRows(), ElementsAre(0));
    EXPECT_EQ(list.ListIndex(), 2);
    Stroke(keys::space);
    EXPECT_THAT(list.SelectedRows(), ElementsAre(0, 2));
    Stroke(keys::space, shifts::ctrl);
    EXPECT_THAT(list.SelectedRows(), ElementsAre(0));
    EXPECT_THAT(log, ElementsAre("click 0", "click 1", "click 2", "click 2", "click 2"));
}

TEST_F(MultiSelect, SpaceWithoutACurrentRowChoosesTheFirst) {
    list.SetFocus();
    Stroke(keys::space);
    EXPECT_THAT(list.SelectedRows(), ElementsAre(0));
    list.Clear();
    Stroke(keys::space);
    Stroke(keys::down, shifts::shift);
    EXPECT_EQ(list.ListIndex(), -1);
}

TEST_F(MultiSelect, KeysWithAltChooseNothing) {
    user.Click(list, 1);
    Stroke(keys::down, shifts::alt);
    Stroke(keys::down, shifts::alt | shifts::shift);
    EXPECT_THAT(list.SelectedRows(), ElementsAre(1));
}

TEST_F(MultiSelect, ProgramsSelectionTakesTheOthersMarks) {
    list.SetListIndex(0);
    list.SetSelected(2, true);
    list.SetListIndex(5);
    EXPECT_THAT(list.SelectedRows(), ElementsAre(5));
    list.SetListIndex(-1);
    EXPECT_EQ(list.SelCount(), 0);
}

TEST_F(MultiSelect, MarkingARowMovesNoSelectionAndRunsNoClick) {
    list.SetListIndex(1);
    log.clear();
    list.SetSelected(4, true);
    list.SetSelected(1, false);
    EXPECT_EQ(list.ListIndex(), 1);
    EXPECT_THAT(list.SelectedRows(), ElementsAre(4));
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(MultiSelect, MarkingARowOutOfRangeHasNoEffect) {
    list.SetSelected(-1, true);
    list.SetSelected(6, true);
    EXPECT_EQ(list.SelCount(), 0);
    EXPECT_FALSE(list.Selected(-1));
    EXPECT_FALSE(list.Selected(6));
}

TEST_F(MultiSelect, ChoiceFollowsItsRowsThroughRemovals) {
    list.SetListIndex(4);
    list.SetSelected(1, true);
    list.SetSelected(2, true);
    log.clear();
    list.RemoveItem(1);
    EXPECT_THAT(list.SelectedRows(), ElementsAre(1, 3));
    EXPECT_EQ(list.SelectedText(), "e");
    EXPECT_THAT(log, IsEmpty());
    list.Clear();
    EXPECT_EQ(list.SelCount(), 0);
}

TEST_F(MultiSelect, ChoiceFollowsItsRowsIntoASortedList) {
    ListBox sorted(&form, "S", ListControl::Order::sorted);
    sorted.SetMultiSelect(true);
    sorted.AddItems({"b", "d", "f"});
    sorted.SetListIndex(1);
    sorted.SetSelected(2, true);
    sorted.AddItems({"a", "e", "g"});
    EXPECT_THAT(sorted.SelectedRows(), ElementsAre(2, 4));
    EXPECT_EQ(sorted.SelectedText(), "d");
}

TEST_F(MultiSelect, SwitchedOffLeavesTheCurrentRowAlone) {
    list.SetListIndex(1);
    list.SetSelected(3, true);
    list.SetMultiSelect(false);
    EXPECT_THAT(list.SelectedRows(), ElementsAre(1));
    list.SetSelected(4, true);
    user.Click(list, 5, shifts::ctrl);
    user.Click(list, 2, shifts::shift);
    EXPECT_THAT(list.SelectedRows(), ElementsAre(2));
    Stroke(keys::down, shifts::shift);
    Stroke(keys::space);
    EXPECT_THAT(list.SelectedRows(), ElementsAre(2));
}

TEST_F(MultiSelect, ListOfOneChoiceHasItsSelectedRowChosen) {
    ListBox single(&form, "S", ListControl::Order::asAdded);
    single.AddItems({"a", "b"});
    EXPECT_EQ(single.SelCount(), 0);
    single.SetListIndex(1);
    EXPECT_TRUE(single.Selected(1));
    EXPECT_EQ(single.SelCount(), 1);
    single.MoveCurrentRow(0);
    EXPECT_THAT(single.SelectedRows(), ElementsAre(0));
}

TEST_F(MultiSelect, ViewIsToldOfEachChangeOnce) {
    Log seen;
    LoggingObserver observer(seen);
    form.SetObserver(&observer);
    list.SetSelected(2, true);
    list.SetSelected(2, true);
    list.ClickRow(3, Choice::toggle);
    list.MoveCurrentRow(4);
    list.RemoveItem(2);
    form.SetObserver(nullptr);
    EXPECT_THAT(seen,
                ElementsAre("L selection", "L selection", "L selection", "L rows", "L selection"));
}

}  // namespace
}  // namespace kivu::forms
