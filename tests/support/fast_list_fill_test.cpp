#include "support/fast_list_fill.h"

#include <gmock/gmock.h>

#include "forms/form.h"
#include "text/collation.h"

namespace kivu::support {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using Order = forms::ListControl::Order;

class TextOrder : public forms::Collation {
 public:
    int Compare(std::string_view a, std::string_view b) const override {
        return text::CompareText(a, b);
    }
};

struct FastListFillTest : ::testing::Test {
    TextOrder order;
    forms::Form form{"Form1", forms::Toolkit{nullptr, &order, nullptr}};
    forms::ListBox list{&form, "List", Order::asAdded};
    forms::ListBox sorted{&form, "Sorted", Order::sorted};
};

TEST_F(FastListFillTest, RowsReachTheListAtTheEndInTheirOrder) {
    FastListFill fill(list);
    EXPECT_TRUE(fill.Add("b"));
    EXPECT_TRUE(fill.Add("a"));
    EXPECT_THAT(list.Rows(), IsEmpty());
    fill.End();
    EXPECT_THAT(list.Rows(), ElementsAre("b", "a"));
}

TEST_F(FastListFillTest, EmptyTextIsNotAdded) {
    FastListFill fill(list);
    EXPECT_FALSE(fill.Add(""));
    EXPECT_TRUE(fill.Add(" "));
    EXPECT_FALSE(fill.Add({}));
    fill.End();
    EXPECT_THAT(list.Rows(), ElementsAre(" "));
}

TEST_F(FastListFillTest, NothingIsAddedAfterTheEnd) {
    FastListFill fill(list);
    fill.Add("a");
    fill.End();
    EXPECT_FALSE(fill.Add("b"));
    fill.End();
    EXPECT_THAT(list.Rows(), ElementsAre("a"));
}

TEST_F(FastListFillTest, FillThatGoesOutOfSightHasEnded) {
    {
        FastListFill fill(list);
        fill.Add("a");
    }
    EXPECT_THAT(list.Rows(), ElementsAre("a"));
    {
        FastListFill fill(list);
        fill.Add("b");
        fill.End();
    }
    EXPECT_THAT(list.Rows(), ElementsAre("a", "b"));
}

TEST_F(FastListFillTest, SortedListPlacesTheRowsAmongItsOwn) {
    sorted.AddItems({"Bee", "dog"});
    FastListFill fill(sorted);
    for (const char* row : {"cat", "Ant", "\xC3\xA4rger", "bee"})
        fill.Add(row);
    EXPECT_THAT(sorted.Rows(), ElementsAre("Bee", "dog"));
    fill.End();
    EXPECT_THAT(sorted.Rows(), ElementsAre("Ant", "\xC3\xA4rger", "Bee", "bee", "cat", "dog"));
}

TEST_F(FastListFillTest, SelectionStaysAndNoClickRuns) {
    sorted.AddItems({"b", "d"});
    sorted.SetListIndex(0);
    int clicks = 0;
    sorted.onClick = [&] { ++clicks; };
    FastListFill fill(sorted);
    fill.Add("a");
    fill.Add("c");
    fill.End();
    EXPECT_EQ(sorted.SelectedText(), "b");
    EXPECT_EQ(sorted.ListIndex(), 1);
    EXPECT_EQ(clicks, 0);
}

TEST_F(FastListFillTest, EmptyFillChangesNothing) {
    list.AddItem("a");
    const auto before = list.Changes();
    FastListFill fill(list);
    fill.Reserve(1000);
    fill.End();
    EXPECT_THAT(list.Rows(), ElementsAre("a"));
    EXPECT_EQ(list.Changes(), before);
}

}  // namespace
}  // namespace kivu::support
