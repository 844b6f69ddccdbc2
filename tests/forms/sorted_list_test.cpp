#include <algorithm>
#include <cmath>
#include <random>

#include "forms_testing.h"

namespace kivu::forms {
namespace {

constexpr int many = 30000;

double SortCost(int rows) {
    return 2.0 * rows * std::log2(rows);
}

std::vector<std::string> ShuffledNames(int count) {
    std::mt19937 random(7);
    std::vector<std::string> names;
    for (int i = 0; i < count; ++i)
        names.push_back("Game " + std::to_string(random() % 1000000));
    return names;
}

struct SortedList : testing::Test {
    CountingCollation collation;
    Form form{"Form1", Toolkit{nullptr, &collation, nullptr}};
    ListBox list{&form, "List1", ListControl::Order::sorted};
};

TEST_F(SortedList, AddedRowsStandInTheOrderOfTheCollation) {
    for (const char* row : {"beta", "Alpha", "gamma", "ALPHABET"})
        list.AddItem(row);
    EXPECT_THAT(RowsOf(list), ElementsAre("Alpha", "ALPHABET", "beta", "gamma"));
}

TEST_F(SortedList, EqualRowsKeepTheirOrderOfArrival) {
    list.AddItem("b");
    list.AddItem("A");
    EXPECT_EQ(list.List(0), "A");
    list.AddItem("a");
    EXPECT_EQ(list.List(1), "a");
    list.AddItems({"B", "A", "aa"});
    EXPECT_THAT(RowsOf(list), ElementsAre("A", "a", "A", "aa", "b", "B"));
}

TEST_F(SortedList, EqualRowsOfALongFillKeepTheirOrderOfArrival) {
    std::vector<std::string> all;
    for (int i = 0; i < 100; ++i) {
        all.push_back(i % 3 == 0 ? "B" : "b");
        all.push_back(i % 2 == 0 ? "A" : "a");
    }
    list.AddItems(all);
    std::vector<std::string> expected;
    for (std::size_t first : {1U, 0U}) {
        for (std::size_t i = first; i < all.size(); i += 2)
            expected.push_back(all[i]);
    }
    EXPECT_EQ(list.Rows(), expected);
}

TEST_F(SortedList, RowsAddedInOrderFindTheirPlacesAmongOthers) {
    std::mt19937 random(9);
    for (int round = 0; round < 200; ++round) {
        list.Clear();
        std::vector<std::string> expected;
        for (auto parts = random() % 9; parts > 0; --parts) {
            std::vector<std::string> part;
            for (auto count = random() % 40; count > 0; --count)
                part.push_back(std::string(1 + random() % 2, "aAbB"[random() % 4]));
            const auto before = [this](const std::string& a, const std::string& b) {
                return collation.Compare(a, b) < 0;
            };
            const auto way = random() % 3;
            if (way == 0) std::stable_sort(part.begin(), part.end(), before);
            expected.insert(expected.end(), part.begin(), part.end());
            std::stable_sort(expected.begin(), expected.end(), before);
            if (way == 0) {
                list.AddInOrder(part);
            } else {
                list.AddItems(part);
            }
            // A look in between settles what is there.
            if (random() % 4 == 0) {
                ASSERT_EQ(list.Rows(), expected);
            }
        }
        ASSERT_EQ(list.Rows(), expected);
    }
}

TEST_F(SortedList, RowsAddedInOrderCostFewComparisons) {
    std::vector<std::string> part;
    for (int i = 0; i < 1000; ++i)
        part.push_back(" " + std::to_string(10000 + i));
    for (char directory = 'z'; directory >= 'a'; --directory) {
        std::vector<std::string> rows = part;
        for (std::string& row : rows)
            row.insert(0, 1, directory);
        list.AddInOrder(std::move(rows));
    }
    EXPECT_EQ(list.List(0), "a 10000");
    EXPECT_LE(collation.comparisons, 26 * 8);
}

TEST_F(SortedList, AListInItsOwnOrderTakesThemAsTheyCome) {
    ListBox plain(&form, "List2", ListControl::Order::asAdded);
    plain.AddInOrder({"b", "c"});
    plain.AddInOrder({"a"});
    EXPECT_THAT(RowsOf(plain), ElementsAre("b", "c", "a"));
}

TEST_F(SortedList, WithoutACollationRowsCompareByTheirBytes) {
    Form plain("Form2");
    ListBox bytes(&plain, "List1", ListControl::Order::sorted);
    bytes.AddItems({"b", "B", "a", "A"});
    EXPECT_THAT(RowsOf(bytes), ElementsAre("A", "B", "a", "b"));
}

TEST_F(SortedList, SelectionFollowsItsRowThroughLaterInsertions) {
    list.AddItems({"d", "b"});
    list.SetListIndex(1);
    int clicks = 0;
    list.onClick = [&] { ++clicks; };
    list.AddItem("a");
    EXPECT_EQ(list.ListIndex(), 2);
    list.AddItems({"e", "c", "d", "D"});
    EXPECT_EQ(list.ListIndex(), 3);
    EXPECT_EQ(list.SelectedText(), "d");
    EXPECT_EQ(clicks, 0);
}

TEST_F(SortedList, SetListKeepsItsPlaceAndTheSelectionStillFollowsItsRow) {
    list.AddItems({"a", "b", "c"});
    list.SetListIndex(1);
    list.SetList(0, "z");
    EXPECT_THAT(RowsOf(list), ElementsAre("z", "b", "c"));
    list.AddItems({"0", "d"});
    EXPECT_EQ(list.SelectedText(), "b");
    EXPECT_EQ(list.ListCount(), 5);
}

TEST_F(SortedList, RemovingTakesTheRowOfTheSortedOrder) {
    list.AddItems({"c", "a", "b"});
    list.RemoveItem(0);
    EXPECT_THAT(RowsOf(list), ElementsAre("b", "c"));
}

TEST_F(SortedList, RowsThatArriveBetweenLooksEqualAStableSortOfThemAll) {
    std::vector<std::string> names = ShuffledNames(2000);
    for (std::string& name : names)
        name.resize(std::min<std::size_t>(name.size(), 7));
    std::mt19937 random(3);
    for (const std::string& name : names) {
        list.AddItem(name);
        if (random() % 5 == 0) list.ListIndex();
    }
    std::stable_sort(names.begin(), names.end(),
                     [this](const auto& a, const auto& b) { return collation.Compare(a, b) < 0; });
    EXPECT_EQ(list.Rows(), names);
}

TEST_F(SortedList, BulkFillCostsASort) {
    list.AddItems(ShuffledNames(many));
    EXPECT_EQ(list.Rows().size(), static_cast<std::size_t>(many));
    EXPECT_LE(static_cast<double>(collation.comparisons), SortCost(many));
}

TEST_F(SortedList, SingleRowsThatNobodyLooksAtBetweenCostASort) {
    for (std::string& name : ShuffledNames(many))
        list.AddItem(std::move(name));
    EXPECT_EQ(collation.comparisons, 0) << "the count alone needs no order";
    EXPECT_EQ(list.Rows().size(), static_cast<std::size_t>(many));
    EXPECT_LE(static_cast<double>(collation.comparisons), SortCost(many));
}

TEST_F(SortedList, LooksDuringAFillCostAHalvingEach) {
    int added = 0;
    for (std::string& name : ShuffledNames(many)) {
        list.AddItem(std::move(name));
        if (++added % 100 == 0) list.ListIndex();
    }
    list.ListIndex();
    EXPECT_LE(static_cast<double>(collation.comparisons), SortCost(many));
}

TEST_F(SortedList, FillInOrderCostsOneComparisonARow) {
    std::vector<std::string> names = ShuffledNames(many);
    std::sort(names.begin(), names.end());
    list.AddItems(names);
    EXPECT_EQ(list.Rows(), names);
    EXPECT_LE(collation.comparisons, many);
}

TEST_F(SortedList, RowsGivenInOrderCostNothing) {
    std::vector<std::string> names = ShuffledNames(many);
    std::sort(names.begin(), names.end());
    list.AddSorted(names);
    EXPECT_EQ(list.Rows(), names);
    EXPECT_EQ(collation.comparisons, 0);
    list.AddItem("");
    EXPECT_EQ(list.List(0), "");
    EXPECT_EQ(list.ListCount(), many + 1);
}

TEST_F(SortedList, RowsGivenInOrderFindTheirPlacesAmongThoseThatAreThere) {
    list.AddItems({"d", "b"});
    list.AddSorted({"a", "c", "e"});
    EXPECT_THAT(RowsOf(list), ElementsAre("a", "b", "c", "d", "e"));
    list.AddSorted({});
    EXPECT_EQ(list.ListCount(), 5);
}

TEST_F(SortedList, HandsItsRowsOnInOrder) {
    list.AddItems({"d", "b", "c"});
    list.SetListIndex(1);
    int clicks = 0;
    list.onClick = [&] { ++clicks; };
    const std::uint64_t before = list.Changes();
    EXPECT_THAT(list.TakeRows(), ElementsAre("b", "c", "d"));
    EXPECT_EQ(list.ListCount(), 0);
    EXPECT_EQ(list.ListIndex(), -1);
    EXPECT_EQ(clicks, 0);
    EXPECT_NE(list.Changes(), before);
    EXPECT_TRUE(list.TakeRows().empty());
    list.AddItems({"b", "a"});
    EXPECT_THAT(RowsOf(list), ElementsAre("a", "b"));
}

TEST_F(SortedList, PrecedesIsTheOrderOfTheRows) {
    EXPECT_TRUE(list.Precedes("a", "B"));
    EXPECT_FALSE(list.Precedes("B", "a"));
    EXPECT_FALSE(list.Precedes("a", "A"));
}

TEST_F(SortedList, ClearForgetsWhatWasInOrder) {
    list.AddItems({"a", "b", "c"});
    list.ListIndex();
    list.Clear();
    list.AddItems({"z", "y"});
    EXPECT_THAT(RowsOf(list), ElementsAre("y", "z"));
}

}  // namespace
}  // namespace kivu::forms
