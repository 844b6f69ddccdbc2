#include "library/find_list_item.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <random>

#include "text/collation.h"
#include "text/text.h"

namespace kivu::library {
namespace {

using std::string;
using Rows = std::vector<string>;

int Find(std::string_view text, const Rows& rows, int start = 0) {
    return FindListItem(text, rows, false, start);
}

// Four rows to each letter, "a0" to "z3".
Rows Alphabet() {
    Rows rows;
    for (char letter = 'a'; letter <= 'z'; ++letter) {
        for (char digit = '0'; digit < '4'; ++digit)
            rows.push_back({letter, digit});
    }
    return rows;
}

TEST(FindListItem, FindsTheFirstRowThatContainsTheText) {
    const Rows rows = {"Apidya", "Turrican II", "Turrican", "Über"};
    EXPECT_EQ(Find("turrican", rows), 1);
    EXPECT_EQ(Find("II", rows), 1);
    EXPECT_EQ(Find("ÜBER", rows), 3);
    EXPECT_EQ(Find("", rows), 0);
    EXPECT_EQ(Find("Zool", rows), -1);
    EXPECT_EQ(Find("a", {}), -1);
}

TEST(FindListItem, BeginsAtTheStartRow) {
    const Rows rows = {"a", "b", "a"};
    EXPECT_EQ(Find("a", rows, 1), 2);
    EXPECT_EQ(Find("b", rows, 2), -1);
    EXPECT_EQ(Find("a", rows, 3), -1);
    EXPECT_EQ(Find("a", rows, 2147483647), -1);
}

TEST(FindListItem, TakesANegativeStartRowForZero) {
    int start = -1;
    EXPECT_EQ(FindListItem("b", Rows{"a", "b"}, false, start), 1);
    EXPECT_EQ(start, 0);
}

TEST(FindListItem, LeavesTheStartRowWithoutProbe) {
    int start = 1;
    EXPECT_EQ(FindListItem("c", Rows{"a", "b", "c"}, false, start), 2);
    EXPECT_EQ(start, 1);
}

TEST(FindListItem, ProbesAheadByFirstLetters) {
    // 0, 52, 78, 91 and 97 begin with less than "z"; the jump behind 101 leaves the list.
    int start = 0;
    EXPECT_EQ(FindListItem("Z1", Alphabet(), true, start), 101);
    EXPECT_EQ(start, 97);
}

TEST(FindListItem, ProbeMayJumpPastARowThatOnlyContainsTheText) {
    Rows rows = Alphabet();
    rows[1] = "az";
    int start = 0;
    EXPECT_EQ(FindListItem("z", rows, true, start), 100);
    start = 0;
    EXPECT_EQ(FindListItem("z", rows, false, start), 1);
}

TEST(FindListItem, ProbesOnlyListsOf61Rows) {
    Rows rows(60, "a");
    rows.back() = "z";
    int start = 0;
    EXPECT_EQ(FindListItem("z", rows, true, start), 59);
    EXPECT_EQ(start, 0);
    rows.insert(rows.begin(), "a");
    start = 0;
    EXPECT_EQ(FindListItem("z", rows, true, start), 60);
    EXPECT_GT(start, 0);
}

TEST(FindListItem, AsksOnlyForRowsInRange) {
    for (const int start : {0, 5, 69, 70, 1000, 2147483647}) {
        for (const char* needle : {"", "a", "m", "z"}) {
            int from = start;
            const auto row = [](int index) -> std::string_view {
                EXPECT_GE(index, 0);
                EXPECT_LT(index, 70);
                return index < 35 ? "b" : "y";
            };
            FindListItem(needle, 70, row, true, from);
        }
    }
}

// The probe once more, with floating point numbers that round by themselves.
int ProbeByFloatingPoint(const string& needle, const Rows& rows, int start) {
    const auto code = [&](double row) -> char32_t {
        const auto index = static_cast<std::size_t>(row);
        if (index >= rows.size() || rows[index].empty()) return 0;
        return text::FoldCase(text::DecodeAt(rows[index], 0).codePoint);
    };
    const char32_t wanted =
        needle.empty() ? 0 : text::FoldCase(text::DecodeAt(needle, 0).codePoint);
    const auto count = static_cast<double>(rows.size());
    double at = start;
    double low = at;
    for (int round = 1; round <= 8; ++round) {
        if (wanted > code(at)) {
            low = at;
            at = at + std::nearbyint((count - at) / 2);
        } else {
            at = std::nearbyint(at / 2) + low;
            const double nearer = std::nearbyint(at / 4) + low;
            if (!(code(nearer) > wanted)) break;
            at = nearer;
            low = at;
        }
    }
    return static_cast<int>(low);
}

TEST(FindListItem, ProbesAsFloatingPointNumbersDo) {
    std::mt19937 random(12);
    const std::string_view letters[] = {"a", "B", "ä", "m", "N", "Ö", "z", "1", "Ж", ""};
    for (int i = 0; i < 3000; ++i) {
        Rows rows;
        for (auto n = 61 + random() % 300; n > 0; --n) {
            rows.push_back(string(letters[random() % std::size(letters)]) + std::to_string(n % 10));
        }
        if (i % 4 != 0) std::sort(rows.begin(), rows.end(), text::TextLess());
        const string needle(letters[random() % std::size(letters)]);
        const int start = static_cast<int>(random() % (rows.size() + 10));
        int from = start;
        FindListItem(needle, rows, true, from);
        ASSERT_EQ(from, ProbeByFloatingPoint(needle, rows, start)) << needle << ' ' << start;
    }
}

}  // namespace
}  // namespace kivu::library
