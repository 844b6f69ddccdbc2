#include "library/short_names.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <random>

#include "text/text.h"

namespace kivu::library {
namespace {

using std::string;
using std::string_view;

string Cut(string_view path) {
    return CutShortName(path, ")", true);
}

TEST(CutShortName, CutsAtTheSecondParenthesis) {
    EXPECT_EQ(Cut("Game (1990)(Maker)(Disk 1 of 2).adf"), "Game (1990)(Maker)");
    EXPECT_EQ(Cut("C:\\Roms\\Game (1990)(Maker)(Disk 2 of 2).adf"), "Game (1990)(Maker)");
    EXPECT_EQ(Cut("/roms/Game (1990)(Maker).adf"), "Game (1990)(Maker)");
}

TEST(CutShortName, CutsAtTheOnlyParenthesis) {
    EXPECT_EQ(Cut("Name (1990).adf"), "Name (1990)");
    EXPECT_EQ(Cut("Name (1990)"), "Name (1990)");
}

TEST(CutShortName, CutsAtTheFirstWhenAsked) {
    EXPECT_EQ(CutShortName("Game (1990)(Maker)(Disk 1).adf", ")", false), "Game (1990)");
    EXPECT_EQ(CutShortName("Game (Disk 1).adf", "(", false), "Game (");
    EXPECT_EQ(CutShortName("Game (Disk 1)(x).adf", "(", true), "Game (Disk 1)(");
}

TEST(CutShortName, TakesOnlyTheExtensionWithoutAParenthesis) {
    EXPECT_EQ(Cut("Ab.adf"), "Ab");
    EXPECT_EQ(Cut("Super Game.zip"), "Super Game");
    EXPECT_EQ(Cut("readme"), "re");
    EXPECT_EQ(Cut("Game .adf"), "Game");
}

TEST(CutShortName, GivesTheWholePathForAVeryShortName) {
    EXPECT_EQ(Cut("A.b"), "A.b");
    EXPECT_EQ(Cut("C:\\Roms\\A.b"), "C:\\Roms\\A.b");
    EXPECT_EQ(Cut("  /roms/abcd "), "/roms/abcd");
    EXPECT_EQ(Cut("  \"C:\\My Roms\\A.b\" "), "\"C:\\My Roms\\A.b\"");
    EXPECT_EQ(Cut("C:\\Roms\\"), "C:\\Roms\\");
    EXPECT_EQ(Cut(""), "");
    EXPECT_EQ(Cut("/roms/abcde"), "a");
}

TEST(CutShortName, PassesOverAParenthesisAmongTheFirstFourCharacters) {
    EXPECT_EQ(Cut("(1990)(x).adf"), "(1990)(x)");
    EXPECT_EQ(Cut("(a)(b).adf"), "(a)(b)");
    EXPECT_EQ(Cut("(ab)(c).adf"), "(ab)(c)");
    EXPECT_EQ(Cut("(abc)(d)(e).adf"), "(abc)(d)");
    EXPECT_EQ(Cut("abc)(d)(e).adf"), "abc)(d)(e)");
    EXPECT_EQ(Cut("abcd)(d)(e).adf"), "abcd)(d)");
}

TEST(CutShortName, CountsCodePoints) {
    EXPECT_EQ(Cut("ÄÖÜß"), "ÄÖÜß");  // four
    EXPECT_EQ(Cut("/r/ÄÖÜß"), "/r/ÄÖÜß");
    EXPECT_EQ(Cut("/r/ÄÖÜßä"), "Ä");
    EXPECT_EQ(Cut("ÄÖ)x)y.adf"), "ÄÖ)x)y");  // third place, though behind four bytes
    EXPECT_EQ(Cut("ÄÖÜß)x)y.adf"), "ÄÖÜß)x)");
    EXPECT_EQ(Cut("Spiel.ädf"), "Spiel");
    EXPECT_EQ(Cut("Spiel.\xE4"
                  "df"),
              "Spiel");
    EXPECT_EQ(Cut("漢字漢字漢字"), "漢字");
}

TEST(CutShortName, TakesQuotesAway) {
    EXPECT_EQ(Cut("\"C:\\My Roms\\Game (1990)(Maker)(Disk 1).adf\""), "Game (1990)(Maker)");
}

TEST(CutShortName, KeepsABackslashInAPosixName) {
    EXPECT_EQ(Cut("/roms/a\\b (1990)(x).adf"), "a\\b (1990)(x)");
}

TEST(CutShortName, CutsBehindTheFirstCharacterOfALongerMark) {
    EXPECT_EQ(CutShortName("Game--one--two.adf", "--", true), "Game--one-");
    EXPECT_EQ(CutShortName("Game one.adf", "", true), "Game one");
    EXPECT_EQ(CutShortName("Spiel·eins·zwei.adf", "·", true), "Spiel·eins·");
}

TEST(CutShortName, StandsAnyBytes) {
    std::mt19937 random(11);
    for (int i = 0; i < 20000; ++i) {
        string path(random() % 16, ' ');
        for (char& c : path) {
            constexpr string_view kPieces = ")(/\\\" .a\xC3\xA4\xE2\x82\xFF\xF0";
            c = kPieces[random() % kPieces.size()];
        }
        const string name = Cut(path);
        EXPECT_LE(name.size(), path.size());
        EXPECT_EQ(text::Trim(name), name);
    }
}

TEST(GetCharDiff, IsTheEditDistanceUpToTheLimit) {
    EXPECT_EQ(getCharDiff("Game (Disk 1).adf", "Game (Disk 2).adf", 5), 1);
    EXPECT_EQ(getCharDiff("Game (Disk 1).adf", "Game (Disk 1).adf", 1), 0);
    EXPECT_EQ(getCharDiff("Game (Disk 1).adf", "game (Disk 2).adf", 1), 1);
    EXPECT_EQ(getCharDiff("Turrican", "Apidya", 5), 5);
    EXPECT_EQ(getCharDiff("abc", "acb"), 1);
    EXPECT_EQ(getCharDiff("abc", "xyz"), 3);
}

// As wide as its longest line has bytes.
double LongestLine(const string& caption) {
    std::size_t longest = 0;
    for (const string_view line : text::Split(caption, '\r'))
        longest = std::max(longest, line.size());
    return static_cast<double>(longest);
}

TEST(WrapCaption, LeavesACaptionThatFits) {
    const WrappedCaption wrapped = WrapCaption("Great Giana Sisters", LongestLine, 19);
    EXPECT_EQ(wrapped.caption, "Great Giana Sisters");
    EXPECT_FALSE(wrapped.hide);
}

TEST(WrapCaption, BreaksAtTheFirstBlankFromTheMiddleOn) {
    EXPECT_EQ(WrapCaption("Great Giana Sisters", LongestLine, 18).caption, "Great Giana\rSisters");
    EXPECT_EQ(WrapCaption("aaa bbbbbb ccc", LongestLine, 13).caption, "aaa bbbbbb\rccc");
}

TEST(WrapCaption, BreaksAtUnderlinesThenHyphensThenAnywhere) {
    EXPECT_EQ(WrapCaption("a b_aaaa-bb_cc", LongestLine, 13).caption, "a b_aaaa-bb\rcc");
    EXPECT_EQ(WrapCaption("a b_aaaa-bbbcc", LongestLine, 13).caption, "a b_aaaa\rbbbcc");
    EXPECT_EQ(WrapCaption("abcdefgh", LongestLine, 7).caption, "abc\refgh");
}

TEST(WrapCaption, SearchesBehindAnEarlierBreak) {
    // The second round's middle lies behind the first break, so the search begins right behind it.
    EXPECT_EQ(WrapCaption("aaaa bbbb\rc dddddddddddddddd", LongestLine, 17).caption,
              "aaaa bbbb\rc\rdddddddddddddddd");
}

TEST(WrapCaption, StopsAfterElevenBreaks) {
    const auto alwaysTooWide = [](const string&) { return 1e9; };
    const string blanks(100, ' ');
    const WrappedCaption all = WrapCaption(blanks, alwaysTooWide, 1);
    EXPECT_FALSE(all.hide);
    EXPECT_EQ(std::count(all.caption.begin(), all.caption.end(), '\r'), 11);
}

TEST(WrapCaption, HidesACaptionWithoutAPlaceLeft) {
    const auto alwaysTooWide = [](const string&) { return 1e9; };
    EXPECT_TRUE(WrapCaption("x", alwaysTooWide, 1).hide);
    EXPECT_TRUE(WrapCaption("", alwaysTooWide, 1).hide);
    EXPECT_TRUE(WrapCaption("ab", alwaysTooWide, 1).hide);
    EXPECT_FALSE(WrapCaption("", LongestLine, 1).hide);
}

TEST(WrapCaption, TakesWholeCodePoints) {
    EXPECT_EQ(WrapCaption("ÄÖÜßÄÖÜß", LongestLine, 15).caption, "ÄÖÜ\rÄÖÜß");
}

TEST(ParseAliasList, ReadsARulePerLine) {
    const auto rules = ParseAliasList("Turrican (1990);Turrican I\r\n  a b ; c d  \r\n", ";");
    ASSERT_EQ(rules.size(), 2u);
    EXPECT_EQ(rules[0].find, "Turrican (1990)");
    EXPECT_EQ(rules[0].newName, "Turrican I");
    EXPECT_EQ(rules[1].find, "a b");
    EXPECT_EQ(rules[1].newName, "c d");
}

TEST(ParseAliasList, SplitsAtTheFirstSeparator) {
    const auto rules = ParseAliasList("a;b;c", ";");
    ASSERT_EQ(rules.size(), 1u);
    EXPECT_EQ(rules[0].find, "a");
    EXPECT_EQ(rules[0].newName, "b;c");
}

TEST(ParseAliasList, PassesOverLinesWithoutSeparator) {
    EXPECT_TRUE(ParseAliasList("\r\nno rule\r\n   \r\n", ";").empty());
    EXPECT_TRUE(ParseAliasList("", ";").empty());
    EXPECT_TRUE(ParseAliasList("a;b", "").empty());
}

TEST(ParseAliasList, KeepsEmptySides) {
    const auto rules = ParseAliasList(";b\na;\n", ";");
    ASSERT_EQ(rules.size(), 2u);
    EXPECT_EQ(rules[0].find, "");
    EXPECT_EQ(rules[1].newName, "");
}

TEST(ParseAliasList, ReadsOldTextAndPassesOverAByteOrderMark) {
    const auto rules = ParseAliasList("\xEF\xBB\xBFx;\xC4rger\nÄ;ä\n", ";");
    ASSERT_EQ(rules.size(), 2u);
    EXPECT_EQ(rules[0].find, "x");
    EXPECT_EQ(rules[0].newName, "Ärger");
    EXPECT_EQ(rules[1].find, "Ä");
}

}  // namespace
}  // namespace kivu::library
