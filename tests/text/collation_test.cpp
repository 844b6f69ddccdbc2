#include "text/collation.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <random>

#include "text/text.h"

namespace kivu::text {
namespace {

using std::string;
using std::string_view;
using namespace std::literals;

int Sign(int order) {
    return (order > 0) - (order < 0);
}

// Each text stands before all that follow it, by both means.
void ExpectRising(const std::vector<string>& texts) {
    for (std::size_t i = 0; i < texts.size(); ++i) {
        for (std::size_t j = 0; j < texts.size(); ++j) {
            const int expected = Sign(static_cast<int>(i) - static_cast<int>(j));
            EXPECT_EQ(Sign(CompareText(texts[i], texts[j])), expected)
                << texts[i] << '/' << texts[j];
            EXPECT_EQ(Sign(SortKey(texts[i]).compare(SortKey(texts[j]))), expected)
                << texts[i] << '/' << texts[j];
        }
    }
}

TEST(CompareText, PassesOverCase) {
    EXPECT_EQ(CompareText("Turrican", "tURRICAN"), 0);
    EXPECT_EQ(CompareText("ÄÖÜ", "äöü"), 0);
    EXPECT_EQ(CompareText("ЖУК", "жук"), 0);
    EXPECT_EQ(SortKey("ÄÖÜ"), SortKey("äöü"));
    ExpectRising({"apple", "Banana", "cherry"});
}

TEST(CompareText, PutsPunctuationBeforeDigitsBeforeLetters) {
    ExpectRising({"\x01", "\x1F", " ", "!", "\"", "'", "(", "-", ".", "/", ":", "@", "[",
                  "\\",   "_",    "{", "~", "€",  "0", "9", "a", "z", "α", "ж", "漢"});
}

TEST(CompareText, CountsPunctuation) {
    ExpectRising({"co-op", "co-ops", "cobra", "coop"});
    ExpectRising({"it's", "its"});
}

TEST(CompareText, ComparesDigitsOneByOne) {
    ExpectRising({"Disk 1", "Disk 10", "Disk 2"});
}

TEST(CompareText, PutsAStartBeforeTheWhole) {
    ExpectRising({"", "a", "a ", "a b", "ab", "abc"});
}

TEST(CompareText, KeepsAccentsBesideTheirBaseLetters) {
    ExpectRising({"Arzt", "Ärzte", "Asche"});
    ExpectRising({"Zebra", "Žena", "Zulu"});
    ExpectRising({"ега", "ёлка", "ель", "жук"});
    ExpectRising({"αβγ", "άγρα", "βήτα"});
}

TEST(CompareText, LetsAccentsDecideOnlyWhereAllElseIsEqual) {
    ExpectRising({"Uber", "Über", "Ubers", "Übers"});
    ExpectRising({"resume", "resumé", "résume", "résumé"});
}

TEST(CompareText, SortsSharpSAsTwoS) {
    ExpectRising({"Strasse", "Straße", "Strassen", "Straßen", "Strast"});
    EXPECT_EQ(CompareText("ẞ", "ß"), 0);
    EXPECT_NE(CompareText("ß", "ss"), 0);
}

TEST(CompareText, SortsLigaturesAsTheirLetters) {
    ExpectRising({"ad", "aebleskiver", "æon", "af"});
    ExpectRising({"of", "Ötzi", "øx", "oy"});
    ExpectRising({"Lo", "Łódź", "lp"});
}

TEST(CompareText, PutsDecomposedBesidePrecomposedLetters) {
    const string decomposed = "a\u0308rger";
    EXPECT_NE(CompareText(decomposed, "ärger"), 0);
    ExpectRising({"arger", decomposed, "ärger", "arges"});
    ExpectRising({"a", "a\u0308", "b"});
}

TEST(CompareText, ReadsStrayBytesAsWindows1252) {
    EXPECT_EQ(CompareText("\xC4rger", "ärger"), 0);
    EXPECT_EQ(SortKey("\xC4rger"), SortKey("ärger"));
    ExpectRising({"Arzt", "\xC4rzte", "Asche"});
}

TEST(CompareText, CountsNul) {
    ExpectRising({"a", "a\0"s, "a\0b"s, "a b"});
}

TEST(CompareText, SortsPathsByTheirDirectories) {
    ExpectRising({"C:\\Roms\\A B\\x.adf", "C:\\Roms\\A-B\\x.adf", "C:\\Roms\\A\\x.adf",
                  "C:\\Roms\\A0\\x.adf", "C:\\Roms\\AB\\x.adf"});
    ExpectRising({"/roms/a b/x", "/roms/a/x", "/roms/a1/x", "/roms/ab/x"});
}

TEST(CompareText, FindsADifferenceAtEveryPlace) {
    const string common(40, 'x');
    for (std::size_t at = 0; at <= common.size(); ++at) {
        string less = common;
        less.insert(at, "a");
        string more = common;
        more.insert(at, "Ä");
        EXPECT_LT(CompareText(less, more), 0) << at;
        EXPECT_GT(CompareText(more, less), 0) << at;
        EXPECT_EQ(CompareText(more, more), 0) << at;
    }
}

std::vector<string> RandomTexts() {
    const string_view pieces[] = {"a",  "A", "b",       "ä",      "Ä",    "á",      "s",
                                  "ss", "ß", "ẞ",       "æ",      "ae",   "\u0308", "\u0301",
                                  "1",  "²", " ",       "\u00A0", "-",    "ж",      "Ж",
                                  "漢", "й", "и\u0306", "\xE4",   "\xC4", "\xFF",   "\0"sv,
                                  "Ａ", "ế", "ǽ",       "σ",      "ς",    "İ",      "\U0001F600"};
    std::mt19937 random(4);
    std::vector<string> texts;
    for (int i = 0; i < 400; ++i) {
        string text;
        for (auto n = random() % 5; n > 0; --n)
            text += pieces[random() % std::size(pieces)];
        texts.push_back(text);
    }
    return texts;
}

TEST(CompareText, IsATotalOrderThatSortKeysShare) {
    const std::vector<string> texts = RandomTexts();
    std::vector<string> sorted = texts;
    std::stable_sort(sorted.begin(), sorted.end(), TextLess());
    for (std::size_t i = 0; i < sorted.size(); ++i) {
        for (std::size_t j = i; j < sorted.size(); ++j) {
            const int order = CompareText(sorted[i], sorted[j]);
            ASSERT_LE(order, 0) << sorted[i] << '/' << sorted[j];
            ASSERT_EQ(Sign(CompareText(sorted[j], sorted[i])), -Sign(order));
            ASSERT_EQ(order == 0, EqualsNoCase(sorted[i], sorted[j]))
                << sorted[i] << '/' << sorted[j];
            ASSERT_EQ(Sign(SortKey(sorted[i]).compare(SortKey(sorted[j]))), Sign(order))
                << sorted[i] << '/' << sorted[j];
            ASSERT_LE(SortRank(sorted[i]), SortRank(sorted[j])) << sorted[i] << '/' << sorted[j];
        }
    }
}

TEST(SortRank, IsTheBeginningOfTheSortKey) {
    std::vector<string> texts = RandomTexts();
    for (const char* text : {"", "ä", "Über", "ßßßßßßßß", "abcdefg\xC3\xA4", "abc\xE4", "日本語"})
        texts.emplace_back(text);
    for (const string& text : texts) {
        std::uint64_t expected = 0;
        const string key = SortKey(text);
        for (std::size_t i = 0; i < 8; ++i)
            expected = expected << 8 | (i < key.size() ? static_cast<unsigned char>(key[i]) : 0U);
        ASSERT_EQ(SortRank(text), expected) << text;
    }
}

// Long enough for steps of several bytes, alike enough to be equal for many of them.
TEST(CompareText, ComparesLongTextsAsTheirSortKeys) {
    const string_view pieces[] = {"Game", "gAME", "a", "A", "b", "1", "-", " ", "ä", "Ä", "\x7F"};
    std::mt19937 random(8);
    const auto text = [&](std::size_t kinds) {
        string made;
        while (made.size() < 30)
            made += pieces[random() % kinds];
        return made;
    };
    for (const std::size_t kinds : {2U, 8U, 10U, 11U}) {
        for (int i = 0; i < 2000; ++i) {
            const string common = text(kinds).substr(0, 4 * (random() % 5));
            const string a = common + text(kinds);
            const string b = common + text(kinds);
            ASSERT_EQ(Sign(CompareText(a, b)), Sign(SortKey(a).compare(SortKey(b))))
                << a << '/' << b;
        }
    }
}

TEST(CompareText, PassesOverCaseAtEveryPlaceOfALongText) {
    const string text = "abcdefghijklmnopqrstuvwxyz";
    for (std::size_t at = 0; at < text.size(); ++at) {
        string other = text;
        other[at] = static_cast<char>(other[at] - 'a' + 'A');
        EXPECT_EQ(CompareText(text, other), 0) << at;
        EXPECT_LT(CompareText(other, text + ' '), 0) << at;
        EXPECT_LT(CompareText(other + 'a', text + 'B'), 0) << at;
        EXPECT_GT(CompareText(other + 'b', text + 'A'), 0) << at;
    }
}

}  // namespace
}  // namespace kivu::text
