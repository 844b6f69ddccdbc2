#include "forms/ranked_sort.h"

#include <algorithm>
#include <random>

#include "forms/sort_rows.h"
#include "forms_testing.h"

namespace kivu::forms {
namespace {

// Ranks by the first two characters.
class RankingCollation : public CountingCollation {
 public:
    std::uint64_t Rank(std::string_view text) const override {
        std::uint64_t rank = 0;
        for (std::size_t i = 0; i < 2; ++i) {
            const char c = i < text.size() ? text[i] : '\x80';
            rank = rank << 8 | static_cast<unsigned>((c >= 'A' && c <= 'Z' ? c + 32 : c) + 128);
        }
        return rank;
    }
};

struct RankedSortTest : testing::Test {
    RankingCollation collation;

    std::vector<std::string> StablySorted(std::vector<std::string> rows) const {
        std::stable_sort(rows.begin(), rows.end(),
                         [this](const std::string& a, const std::string& b) {
                             return collation.Compare(a, b) < 0;
                         });
        return rows;
    }
    std::vector<std::string> Sorted(const std::vector<std::string>& rows) const {
        const std::vector<std::string_view> views(rows.begin(), rows.end());
        std::vector<std::string> sorted;
        for (const std::uint32_t place : RankedSort(views, collation).FindOrder())
            sorted.push_back(rows[place]);
        return sorted;
    }
};

std::vector<std::string> RandomRows(std::mt19937& random, std::size_t count,
                                    const std::string& start, std::string_view letters,
                                    std::size_t length) {
    std::vector<std::string> rows(count, start);
    for (std::string& row : rows) {
        for (auto left = random() % length; left > 0; --left)
            row += letters[random() % letters.size()];
    }
    return rows;
}

TEST_F(RankedSortTest, SortsAsAStableSortDoes) {
    std::mt19937 random(21);
    for (const char* start : {"", "/home/games/", "/h\xC3\xA4/", "x\xC3"}) {
        for (const std::size_t count : {0U, 1U, 2U, 13U, 70U, 900U}) {
            const auto rows = RandomRows(random, count, start, "aAbB/\xC3\xA4", 7);
            EXPECT_EQ(Sorted(rows), StablySorted(rows)) << start << ' ' << count;
        }
    }
}

TEST_F(RankedSortTest, SortsRowsThatDifferOnlyInTheirCase) {
    std::mt19937 random(22);
    const auto rows = RandomRows(random, 300, "", "aA", 4);
    EXPECT_EQ(Sorted(rows), StablySorted(rows));
}

TEST_F(RankedSortTest, ComparesNumbersInPlaceOfTexts) {
    std::mt19937 random(23);
    std::vector<std::string> rows;
    for (int i = 0; i < 5000; ++i)
        rows.push_back("/a common start/" + std::to_string(random()));
    Sorted(rows);
    EXPECT_LE(collation.comparisons, 8 * 5000);
}

TEST_F(RankedSortTest, AListInNoOrderIsSortedByRanks) {
    Form form{"Form1", Toolkit{nullptr, &collation, nullptr}};
    ListBox list{&form, "List1", ListControl::Order::sorted};
    std::mt19937 random(24);
    const auto rows = RandomRows(random, 3000, "game ", "0123456789", 12);
    list.AddItems(rows);
    EXPECT_EQ(list.Rows(), StablySorted(rows));
    EXPECT_EQ(StablySorted(rows), StablySorted(list.Rows()));
    const auto order = OrderOfRows(&collation, rows);
    ASSERT_EQ(order.size(), rows.size());
    EXPECT_EQ(rows[order.front()], list.List(0));
    EXPECT_EQ(rows[order.back()], list.List(list.ListCount() - 1));
}

}  // namespace
}  // namespace kivu::forms
