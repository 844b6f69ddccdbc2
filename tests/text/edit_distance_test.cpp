#include "text/edit_distance.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>

#include "text/text.h"

namespace kivu::text {
namespace {

using std::string;

// The whole table, as the textbook has it.
int PlainDistance(const std::u32string& a, const std::u32string& b) {
    std::vector<std::vector<int>> d(a.size() + 1, std::vector<int>(b.size() + 1));
    for (std::size_t i = 0; i <= a.size(); ++i)
        d[i][0] = static_cast<int>(i);
    for (std::size_t j = 0; j <= b.size(); ++j)
        d[0][j] = static_cast<int>(j);
    for (std::size_t i = 1; i <= a.size(); ++i) {
        for (std::size_t j = 1; j <= b.size(); ++j) {
            d[i][j] = std::min({d[i - 1][j] + 1, d[i][j - 1] + 1,
                                d[i - 1][j - 1] + (a[i - 1] == b[j - 1] ? 0 : 1)});
            if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1]) {
                d[i][j] = std::min(d[i][j], d[i - 2][j - 2] + 1);
            }
        }
    }
    return d[a.size()][b.size()];
}

string ToUtf8(const std::u32string& text) {
    string utf8;
    for (const char32_t c : text)
        AppendUtf8(utf8, c);
    return utf8;
}

TEST(EditDistance, CountsEachKindOfChange) {
    EXPECT_EQ(EditDistance("abc", "abc"), 0);
    EXPECT_EQ(EditDistance("abc", "abxc"), 1);
    EXPECT_EQ(EditDistance("abxc", "abc"), 1);
    EXPECT_EQ(EditDistance("abc", "axc"), 1);
    EXPECT_EQ(EditDistance("abcd", "acbd"), 1);
    EXPECT_EQ(EditDistance("kitten", "sitting"), 3);
    EXPECT_EQ(EditDistance("", "abc"), 3);
    EXPECT_EQ(EditDistance("abc", ""), 3);
    EXPECT_EQ(EditDistance("", ""), 0);
}

TEST(EditDistance, ChangesNoPartTwice) {
    EXPECT_EQ(EditDistance("ca", "abc"), 3);
}

TEST(EditDistance, RegardsCaseAndCountsCodePoints) {
    EXPECT_EQ(EditDistance("Game", "game"), 1);
    EXPECT_EQ(EditDistance("Käse", "Kase"), 1);
    EXPECT_EQ(EditDistance("äöü", "aou"), 3);
    EXPECT_EQ(EditDistance("a\xFF", "a"), 1);
}

TEST(EditDistance, StopsAtTheLimit) {
    EXPECT_EQ(EditDistance("abcdef", "uvwxyz", 4), 4);
    EXPECT_EQ(EditDistance("abcdef", "uvwxyz", 6), 6);
    EXPECT_EQ(EditDistance("abcdef", "uvwxyz", 7), 6);
    EXPECT_EQ(EditDistance("abc", "abd", 1), 1);
    EXPECT_EQ(EditDistance("abc", "abc", 1), 0);
    EXPECT_EQ(EditDistance("abc", "xyz", 0), 0);
    EXPECT_EQ(EditDistance("abc", "xyz", -1), 0);
    EXPECT_EQ(EditDistance("a", "abcdefgh", 3), 3);
    EXPECT_EQ(EditDistance("Game (Disk 1 of 2).adf", "Game (Disk 2 of 2).adf", 5), 1);
    EXPECT_EQ(EditDistance("abc", "xyz", 2147483647), 3);
}

TEST(EditDistance, AgreesWithTheWholeTable) {
    std::mt19937 random(8);
    const std::u32string_view letters = U"abcä";
    const auto make = [&](unsigned longest) {
        std::u32string text;
        for (auto n = random() % (longest + 1); n > 0; --n)
            text += letters[random() % letters.size()];
        return text;
    };
    for (int i = 0; i < 20000; ++i) {
        const std::u32string a = make(12);
        const std::u32string b = make(12);
        const int whole = PlainDistance(a, b);
        ASSERT_EQ(EditDistance(ToUtf8(a), ToUtf8(b)), whole) << ToUtf8(a) << '/' << ToUtf8(b);
        for (int limit = 0; limit <= 14; ++limit) {
            ASSERT_EQ(EditDistance(ToUtf8(a), ToUtf8(b), limit), std::min(whole, limit))
                << ToUtf8(a) << '/' << ToUtf8(b) << ' ' << limit;
        }
    }
}

TEST(EditDistance, AgreesWithTheWholeTableOnSlightlyChangedLongNames) {
    std::mt19937 random(9);
    for (int i = 0; i < 300; ++i) {
        std::u32string a;
        for (auto n = random() % 500; n > 0; --n)
            a += static_cast<char32_t>('a' + random() % 4);
        std::u32string b = a;
        for (auto n = random() % 9; n > 0 && b.size() > 1; --n) {
            const std::size_t at = random() % (b.size() - 1);
            switch (random() % 4) {
                case 0:
                    b.erase(at, 1);
                    break;
                case 1:
                    b.insert(at, 1, U'x');
                    break;
                case 2:
                    b[at] = U'y';
                    break;
                default:
                    std::swap(b[at], b[at + 1]);
            }
        }
        const int whole = PlainDistance(a, b);
        for (const int limit : {1, 2, 3, 5, 8, 1000}) {
            ASSERT_EQ(EditDistance(ToUtf8(a), ToUtf8(b), limit), std::min(whole, limit));
        }
    }
}

}  // namespace
}  // namespace kivu::text
