#include "forms/sort_rows.h"

#include <cmath>
#include <random>

#include "forms_testing.h"

namespace kivu::forms {
namespace {

struct SortRowsTest : testing::Test {
    CountingCollation collation;

    auto Before() const {
        return [this](const std::string& a, const std::string& b) {
            return collation.Compare(a, b) < 0;
        };
    }
    std::vector<std::string> Sorted(std::vector<std::string> rows) const {
        SortRows(rows.begin(), rows.end(), Before());
        return rows;
    }
    std::vector<std::string> StablySorted(std::vector<std::string> rows) const {
        std::stable_sort(rows.begin(), rows.end(), Before());
        return rows;
    }
};

// Rows of few letters, so that many are equal but for their case.
std::vector<std::string> RandomRows(std::mt19937& random, std::size_t count) {
    std::vector<std::string> rows(count);
    for (std::string& row : rows) {
        for (auto letters = random() % 3; letters > 0; --letters)
            row += "aAbBc"[random() % 5];
    }
    return rows;
}

TEST_F(SortRowsTest, SortsAsAStableSortDoes) {
    std::mt19937 random(11);
    for (std::size_t count = 0; count < 70; ++count) {
        const std::vector<std::string> rows = RandomRows(random, count);
        EXPECT_EQ(Sorted(rows), StablySorted(rows)) << count;
    }
}

TEST_F(SortRowsTest, SortsListsThatAreInOrderAlreadyAsAStableSortDoes) {
    std::mt19937 random(12);
    for (int round = 0; round < 50; ++round) {
        std::vector<std::string> rows;
        for (auto lists = random() % 8; lists > 0; --lists) {
            for (std::string& row : StablySorted(RandomRows(random, random() % 20)))
                rows.push_back(std::move(row));
        }
        EXPECT_EQ(Sorted(rows), StablySorted(rows)) << round;
    }
}

TEST_F(SortRowsTest, EqualRowsOfListsThatTouchKeepTheirOrderOfArrival) {
    EXPECT_THAT(Sorted({"b", "B", "A", "b"}), ElementsAre("A", "b", "B", "b"));
    EXPECT_THAT(Sorted({"b", "c", "a", "B"}), ElementsAre("a", "b", "B", "c"));
    EXPECT_THAT(Sorted({"c", "d", "a", "C"}), ElementsAre("a", "c", "C", "d"));
}

TEST_F(SortRowsTest, RowsOutsideTheRangeStay) {
    std::vector<std::string> rows{"z", "c", "a", "b", "0"};
    SortRows(rows.begin() + 1, rows.end() - 1, Before());
    EXPECT_THAT(rows, ElementsAre("z", "a", "b", "c", "0"));
}

TEST_F(SortRowsTest, ListsThatDoNotOverlapCostLittleMoreThanAComparisonARow) {
    constexpr int lists = 300, length = 100;
    std::vector<std::string> rows;
    for (int list = lists; list > 0; --list) {
        for (int row = 0; row < length; ++row)
            rows.push_back(std::to_string(1000 + list) + std::to_string(100 + row));
    }
    const std::vector<std::string> sorted = Sorted(rows);
    EXPECT_LE(collation.comparisons, lists * length + 4 * lists);
    EXPECT_EQ(sorted, StablySorted(rows));
}

TEST_F(SortRowsTest, RowsInNoOrderCostAboutTheComparisonsOfAMergeSort) {
    std::mt19937 random(13);
    std::vector<std::string> rows;
    for (int i = 0; i < 20000; ++i)
        rows.push_back(std::to_string(random()));
    Sorted(rows);
    const auto count = static_cast<double>(rows.size());
    EXPECT_LE(static_cast<double>(collation.comparisons), 1.1 * count * std::log2(count));
}

}  // namespace
}  // namespace kivu::forms
