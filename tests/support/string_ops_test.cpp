#include "support/string_ops.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>

#include "support/text.h"

namespace kivu::support {
namespace {

using std::string;
using std::string_view;
using namespace std::literals;

TEST(ReplaceAll, ReplacesFromLeftToRight) {
    EXPECT_EQ(replaceall("a.b.c", ".", "-"), "a-b-c");
    EXPECT_EQ(replaceall("aaa", "aa", "b"), "ba");
    EXPECT_EQ(replaceall("abc", "b", ""), "ac");
    EXPECT_EQ(replaceall("abc", "x", "y"), "abc");
    EXPECT_EQ(replaceall("", "x", "y"), "");
    EXPECT_EQ(replaceall("a\0b"s, "\0"s, "0"), "a0b");
    EXPECT_EQ(replaceall("aA", "a", "b"), "bA");
}

TEST(ReplaceAll, EndsWhenTheReplacementHoldsTheSearchText) {
    EXPECT_EQ(replaceall("a'b", "'", "'\\''"), "a'\\''b");
    EXPECT_EQ(replaceall("aa", "a", "aa"), "aaaa");
}

TEST(ReplaceAll, LeavesATextWhenThereIsNothingToLookFor) {
    EXPECT_EQ(replaceall("ab", "", "x"), "ab");
}

TEST(ReplaceText, PassesOverCaseWhenAsked) {
    EXPECT_EQ(ReplaceText("Disk disk DISK", "disk", "x", false), "x x x");
    EXPECT_EQ(ReplaceText("Disk disk DISK", "disk", "x", true), "Disk x DISK");
    EXPECT_EQ(ReplaceText("ÄÖÜ", "ö", "-", false), "Ä-Ü");
    EXPECT_EQ(ReplaceText("Keep CASE here", "case", "it", false), "Keep it here");
    EXPECT_EQ(ReplaceText("aaa", "AA", "b", false), "ba");
    EXPECT_EQ(ReplaceText("aa", "A", "aa", false), "aaaa");
    EXPECT_EQ(ReplaceText("ab", "", "x", false), "ab");
    EXPECT_EQ(ReplaceText("x\xFFy", "Y", "z", false), "x\xFFz");
    EXPECT_EQ(ReplaceText("ab", "abc", "x", false), "ab");
}

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

TEST(SplitRegistryPath, SplitsRootKeyAndValue) {
    const auto path = SplitRegistryPath("HKEY_LOCAL_MACHINE\\Software\\Microsoft\\SystemRoot");
    ASSERT_TRUE(path);
    EXPECT_EQ(path->root, "HKEY_LOCAL_MACHINE");
    EXPECT_EQ(path->keyPath, "Software\\Microsoft");
    EXPECT_EQ(path->valueName, "SystemRoot");
}

TEST(SplitRegistryPath, KnowsSevenRoots) {
    for (const char* root :
         {"HKEY_CLASSES_ROOT", "HKEY_CURRENT_USER", "HKEY_LOCAL_MACHINE", "HKEY_USERS",
          "HKEY_PERFORMANCE_DATA", "HKEY_CURRENT_CONFIG", "HKEY_DYN_DATA"}) {
        EXPECT_TRUE(SplitRegistryPath(root + "\\a\\b"s)) << root;
    }
    EXPECT_FALSE(SplitRegistryPath("HKEY_ELSEWHERE\\a\\b"));
    EXPECT_FALSE(SplitRegistryPath("\\a\\b"));
}

TEST(SplitRegistryPath, GivesNothingWithoutABackslash) {
    EXPECT_FALSE(SplitRegistryPath("HKEY_USERS"));
    EXPECT_FALSE(SplitRegistryPath(""));
}

TEST(SplitRegistryPath, LeavesTheKeyEmptyWithOneBackslash) {
    const auto path = SplitRegistryPath("HKEY_USERS\\Name");
    ASSERT_TRUE(path);
    EXPECT_EQ(path->keyPath, "");
    EXPECT_EQ(path->valueName, "Name");
}

TEST(ExpandUserProfile, PutsTheUsersDirectoryBetweenPercentSigns) {
    const EnvironmentLookup lookup = [](const string& name) -> std::optional<string> {
        return name == "USERPROFILE" ? std::optional<string>("C:\\Users\\me") : std::nullopt;
    };
    EXPECT_EQ(ExpandUserProfile("%USERPROFILE%\\Desktop", lookup), "C:\\Users\\me\\Desktop");
    EXPECT_EQ(ExpandUserProfile("x%any%y%other%", lookup), "xC:\\Users\\meyC:\\Users\\me");
    EXPECT_EQ(ExpandUserProfile("100% sure", lookup), "100% sure");
    EXPECT_EQ(ExpandUserProfile("C:\\Windows", lookup), "C:\\Windows");
    EXPECT_EQ(ExpandUserProfile("", lookup), "");
}

TEST(ExpandUserProfile, LeavesTheTextWithoutAUsersDirectory) {
    const EnvironmentLookup none = [](const string&) { return std::optional<string>(); };
    EXPECT_EQ(ExpandUserProfile("%USERPROFILE%\\Desktop", none), "%USERPROFILE%\\Desktop");
    EXPECT_EQ(ExpandUserProfile("%USERPROFILE%\\Desktop", nullptr), "%USERPROFILE%\\Desktop");
}

TEST(ExpandUserProfile, DoesNotExpandWhatItPutIn) {
    const EnvironmentLookup odd = [](const string&) { return std::optional<string>("%a%"); };
    EXPECT_EQ(ExpandUserProfile("%x%", odd), "%a%");
}

}  // namespace
}  // namespace kivu::support
