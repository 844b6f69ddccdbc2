#include <limits>

#include "forms_testing.h"

namespace kivu::forms {
namespace {

struct ListTest : testing::Test {
    ListTest() {
        list.AddItems({"one", "two", "three"});
        list.onClick = [this] { log.push_back("click " + std::to_string(list.ListIndex())); };
    }
    Form form{"Form1"};
    ListBox list{&form, "List1", ListControl::Order::asAdded};
    Log log;
};

TEST_F(ListTest, RowsOutOfRangeReadAsTheEmptyText) {
    EXPECT_EQ(list.List(0), "one");
    EXPECT_EQ(list.List(2), "three");
    for (const int row : {-1, 3, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()})
        EXPECT_EQ(list.List(row), "") << row;
}

TEST_F(ListTest, AssigningAndRemovingRowsOutOfRangeHasNoEffect) {
    for (const int row :
         {-1, 3, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
        list.SetList(row, "x");
        list.RemoveItem(row);
    }
    EXPECT_THAT(RowsOf(list), ElementsAre("one", "two", "three"));
}

TEST_F(ListTest, SelectingARowOutOfRangeHasNoEffect) {
    list.SetListIndex(1);
    log.clear();
    for (const int row : {-2, 3, std::numeric_limits<int>::max()})
        list.SetListIndex(row);
    EXPECT_EQ(list.ListIndex(), 1);
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(ListTest, DifferentRowRunsTheClickHandlerBeforeTheAssignmentReturns) {
    list.SetListIndex(1);
    EXPECT_THAT(log, ElementsAre("click 1"));
    EXPECT_EQ(list.SelectedText(), "two");
}

TEST_F(ListTest, SameRowRunsNothing) {
    list.SetListIndex(1);
    log.clear();
    list.SetListIndex(1);
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(ListTest, MinusOneClearsTheSelection) {
    list.SetListIndex(1);
    list.SetListIndex(-1);
    EXPECT_EQ(list.ListIndex(), -1);
    EXPECT_EQ(list.SelectedText(), "");
    EXPECT_THAT(log, ElementsAre("click 1", "click -1"));
}

TEST_F(ListTest, UsersClickRunsTheHandlerOnTheSelectedRowToo) {
    list.ClickRow(1);
    list.ClickRow(1);
    EXPECT_THAT(log, ElementsAre("click 1", "click 1"));
    list.ClickRow(3);
    list.ClickRow(-1);
    EXPECT_THAT(log, ElementsAre("click 1", "click 1"));
    EXPECT_EQ(list.ListIndex(), 1);
}

TEST_F(ListTest, ClearTakesRowsAndSelectionWithoutAClick) {
    list.SetListIndex(1);
    log.clear();
    list.Clear();
    EXPECT_EQ(list.ListCount(), 0);
    EXPECT_EQ(list.ListIndex(), -1);
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(ListTest, RemovingTheSelectedRowTakesTheSelectionWithoutAClick) {
    list.SetListIndex(1);
    log.clear();
    list.RemoveItem(1);
    EXPECT_EQ(list.ListIndex(), -1);
    EXPECT_THAT(RowsOf(list), ElementsAre("one", "three"));
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(ListTest, SelectionFollowsItsRowWhenAnotherIsRemoved) {
    list.SetListIndex(1);
    log.clear();
    list.RemoveItem(2);
    EXPECT_EQ(list.ListIndex(), 1);
    list.RemoveItem(0);
    EXPECT_EQ(list.ListIndex(), 0);
    EXPECT_EQ(list.SelectedText(), "two");
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(ListTest, NegativeReserveDoesNothing) {
    list.Reserve(-5);
    EXPECT_EQ(list.ListCount(), 3);
}

TEST_F(ListTest, HandlerMayClearTheListThatRunsIt) {
    list.onClick = [this] {
        list.Clear();
        log.push_back("cleared");
    };
    list.ClickRow(2);
    EXPECT_EQ(list.ListCount(), 0);
    EXPECT_EQ(list.ListIndex(), -1);
    EXPECT_THAT(log, ElementsAre("cleared"));
}

TEST_F(ListTest, HandlerMayRemoveTheClickedRow) {
    list.onClick = [this] { list.RemoveItem(list.ListIndex()); };
    list.ClickRow(2);
    list.ClickRow(1);
    EXPECT_THAT(RowsOf(list), ElementsAre("one"));
    EXPECT_EQ(list.ListIndex(), -1);
}

TEST_F(ListTest, HandlerThatSelectsAnotherRowIsEnteredAgain) {
    list.onClick = [this] {
        log.push_back("in " + std::to_string(list.ListIndex()));
        if (list.ListIndex() < 2) list.SetListIndex(list.ListIndex() + 1);
        log.push_back("out " + std::to_string(list.ListIndex()));
    };
    list.SetListIndex(0);
    EXPECT_THAT(log, ElementsAre("in 0", "in 1", "in 2", "out 2", "out 2", "out 2"));
}

struct ComboTest : testing::Test {
    ComboTest() {
        combo.AddItems({"Amiga", "Atari"});
        combo.onClick = [this] { log.push_back("click " + combo.Text()); };
        combo.onChange = [this] { log.push_back("change " + combo.Text()); };
    }
    Form form{"Form1"};
    ComboBox combo{&form, "Combo1"};
    Log log;
};

TEST_F(ComboTest, SelectingARowWritesItsTextWithoutTheChangeHandler) {
    combo.SetListIndex(1);
    EXPECT_THAT(log, ElementsAre("click Atari"));
    EXPECT_EQ(combo.Text(), "Atari");
}

TEST_F(ComboTest, WritingTheTextRunsTheChangeHandlerAndLeavesTheRow) {
    combo.SetListIndex(1);
    log.clear();
    combo.SetText("Amiga");
    EXPECT_EQ(combo.ListIndex(), 1);
    EXPECT_THAT(log, ElementsAre("change Amiga"));
    combo.SetText("Amiga");
    EXPECT_THAT(log, ElementsAre("change Amiga"));
}

TEST_F(ComboTest, ClickOnTheSelectedRowWritesItsTextAgain) {
    combo.SetListIndex(1);
    combo.SetText("Am");
    log.clear();
    combo.ClickRow(1);
    EXPECT_THAT(log, ElementsAre("click Atari"));
}

TEST_F(ComboTest, ClearingTheSelectionEmptiesTheText) {
    combo.SetListIndex(1);
    combo.SetListIndex(-1);
    EXPECT_EQ(combo.Text(), "");
}

TEST_F(ComboTest, ClearLeavesTheTextAndRunsNothing) {
    combo.SetListIndex(1);
    log.clear();
    combo.Clear();
    EXPECT_EQ(combo.Text(), "Atari");
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(ComboTest, CaretStaysWithinATextThatBecomesShorter) {
    combo.SetText("Commodore");
    combo.SetSelection(6, 3);
    combo.SetListIndex(1);
    EXPECT_EQ(combo.SelStart(), 5);
    EXPECT_EQ(combo.SelLength(), 0);
}

TEST(QuietSelection, RunsNoHandlerAndShowsTheRow) {
    Log log;
    Form form{"Form1"};
    ListBox list{&form, "List", ListControl::Order::asAdded};
    ComboBox combo{&form, "Combo"};
    list.AddItems({"a", "b"});
    combo.AddItems({"a", "b"});
    for (ListControl* rows : {static_cast<ListControl*>(&list), static_cast<ListControl*>(&combo)})
        rows->onClick = Writes(log, "click");
    combo.onChange = Writes(log, "change");
    LoggingObserver observer(log);
    form.SetObserver(&observer);
    list.SetListIndexQuietly(1);
    combo.SetListIndexQuietly(1);
    EXPECT_EQ(list.ListIndex(), 1);
    EXPECT_EQ(combo.Text(), "b");
    list.SetListIndexQuietly(2);
    list.SetListIndexQuietly(1);
    EXPECT_THAT(log, ElementsAre("List selection", "Combo text", "Combo selection"));
    form.SetObserver(nullptr);
}

}  // namespace
}  // namespace kivu::forms
