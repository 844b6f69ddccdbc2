#include "forms_testing.h"

namespace kivu::forms {
namespace {

struct RowsOnDemand : testing::Test {
    CountingCollation collation;
    Form form{"Form1", Toolkit{nullptr, &collation, nullptr}};
    ListBox list{&form, "List1", ListControl::Order::sorted};
    std::vector<int> made;

    void Fill(int count) {
        list.AddOnDemand(count, [this](int row) {
            made.push_back(row);
            return "row " + std::to_string(row);
        });
    }
};

TEST_F(RowsOnDemand, AreMadeOnceWhenTheyAreLookedAt) {
    Fill(9);
    EXPECT_EQ(list.ListCount(), 9);
    list.SetListIndex(3);
    EXPECT_THAT(made, IsEmpty());
    EXPECT_EQ(list.SelectedText(), "row 3");
    EXPECT_EQ(list.List(3), "row 3");
    EXPECT_EQ(list.List(9), "");
    EXPECT_THAT(made, ElementsAre(3));
    EXPECT_EQ(collation.comparisons, 0);
}

TEST_F(RowsOnDemand, AreAllMadeForWhoLooksAtThemAll) {
    Fill(3);
    EXPECT_EQ(list.List(1), "row 1");
    EXPECT_THAT(list.Rows(), ElementsAre("row 0", "row 1", "row 2"));
    EXPECT_THAT(list.Rows(), testing::SizeIs(3));
    EXPECT_THAT(made, ElementsAre(1, 0, 2));
}

TEST_F(RowsOnDemand, KeepTheTextsThatWereHandedOut) {
    Fill(300);
    const std::string& early = list.List(7);
    const std::string& late = list.List(299);
    EXPECT_EQ(list.Rows()[299], "row 299");
    EXPECT_THAT(list.Rows(), testing::SizeIs(300));
    EXPECT_EQ(early, "row 7");
    EXPECT_EQ(late, "row 299");
    EXPECT_EQ(list.List(128), "row 128");
    EXPECT_EQ(made.size(), 300U);
}

TEST_F(RowsOnDemand, ComeAnewAfterTheListIsCleared) {
    Fill(65);
    EXPECT_EQ(list.List(64), "row 64");
    list.Clear();
    EXPECT_EQ(list.List(0), "");
    list.AddOnDemand(70, [](int row) { return "other " + std::to_string(row); });
    EXPECT_EQ(list.ListCount(), 70);
    EXPECT_EQ(list.List(64), "other 64");
    EXPECT_EQ(list.List(69), "other 69");
}

TEST_F(RowsOnDemand, TakeRowsThatAreInOrder) {
    Fill(3);
    list.AddInOrder({"row 0a", "row 1a"});
    EXPECT_THAT(RowsOf(list), ElementsAre("row 0", "row 0a", "row 1", "row 1a", "row 2"));
    list.Clear();
    Fill(2);
    list.AddSorted({"row 0b"});
    EXPECT_THAT(RowsOf(list), ElementsAre("row 0", "row 0b", "row 1"));
}

TEST_F(RowsOnDemand, TakeFurtherRowsInTheirOrder) {
    Fill(3);
    list.SetListIndex(2);
    list.AddItem("Row 1a");
    EXPECT_THAT(RowsOf(list), ElementsAre("row 0", "row 1", "Row 1a", "row 2"));
    EXPECT_EQ(list.ListIndex(), 3);
}

TEST_F(RowsOnDemand, ChangeAndGoAsOthersDo) {
    Fill(4);
    list.SetList(1, "");
    list.RemoveItem(0);
    EXPECT_THAT(RowsOf(list), ElementsAre("", "row 2", "row 3"));
    EXPECT_THAT(list.TakeRows(), ElementsAre("", "row 2", "row 3"));
    Fill(2);
    list.Clear();
    EXPECT_EQ(list.ListCount(), 0);
    list.AddItem("other");
    EXPECT_THAT(RowsOf(list), ElementsAre("other"));
}

TEST_F(RowsOnDemand, GoBehindRowsThatAreThere) {
    list.AddItem("row 1");
    Fill(3);
    EXPECT_THAT(RowsOf(list), ElementsAre("row 0", "row 1", "row 1", "row 2"));
}

TEST_F(RowsOnDemand, CountAsAChangeAndAreToldOf) {
    const auto before = list.Changes();
    Fill(0);
    EXPECT_EQ(list.Changes(), before);
    Fill(1);
    EXPECT_NE(list.Changes(), before);
}

}  // namespace
}  // namespace kivu::forms
