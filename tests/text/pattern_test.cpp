#include "text/pattern.h"

#include <gtest/gtest.h>
#include <random>

#include "text/text.h"

namespace kivu::text {
namespace {

using std::string;
using std::string_view;

bool Match(string_view pattern, string_view name) {
    return Pattern(pattern).Matches(name);
}

TEST(Pattern, MatchesAnEndingWithoutRegardToCase) {
    EXPECT_TRUE(Match("*.adf", "GAME.ADF"));
    EXPECT_TRUE(Match("*.ADF", "game.adf"));
    EXPECT_TRUE(Match("*.adf", ".adf"));
    EXPECT_TRUE(Match("*.adf", "Märchen.adf"));
    EXPECT_FALSE(Match("*.adf", "game.adfx"));
    EXPECT_FALSE(Match("*.adf", "adf"));
    EXPECT_FALSE(Match("*.adf", "game.adz"));
    EXPECT_FALSE(Match("*.adf", ""));
}

TEST(Pattern, FoldsLettersBeyondAscii) {
    EXPECT_TRUE(Match("*.ÄDF", "x.ädf"));
    EXPECT_TRUE(Match("ÜBER*", "über alles"));
    EXPECT_TRUE(Match("*Ж", "ж"));
    EXPECT_TRUE(Match("\xC4*", "ärger"));
}

TEST(Pattern, TakesStarPointStarForEveryFile) {
    EXPECT_TRUE(Match("*.*", "readme"));
    EXPECT_TRUE(Match("*.*", "a.b"));
    EXPECT_TRUE(Match("*.*", "a."));
    EXPECT_TRUE(Match("*", "anything"));
    EXPECT_TRUE(Match("**", "anything"));
    EXPECT_TRUE(Match("*", ""));
}

TEST(Pattern, WantsThePointElsewhere) {
    EXPECT_FALSE(Match("*.*f", "readmef"));
    EXPECT_FALSE(Match("a*.*", "about"));
    EXPECT_TRUE(Match("a*.*", "a.b"));
    EXPECT_TRUE(Match("*.", "a."));
    EXPECT_FALSE(Match("*.", "a"));
}

TEST(Pattern, MatchesNothingWhenEmpty) {
    EXPECT_FALSE(Match("", ""));
    EXPECT_FALSE(Match("", "a"));
}

TEST(Pattern, TakesAQuestionMarkForExactlyOneCharacter) {
    EXPECT_TRUE(Match("disk?.adf", "Disk1.adf"));
    EXPECT_TRUE(Match("disk?.adf", "diskä.adf"));
    EXPECT_TRUE(Match("disk?.adf", "disk\xE4.adf"));
    EXPECT_TRUE(Match("?", "漢"));
    EXPECT_FALSE(Match("disk?.adf", "disk.adf"));
    EXPECT_FALSE(Match("disk?.adf", "disk12.adf"));
    EXPECT_FALSE(Match("?", ""));
}

TEST(Pattern, KnowsNoBracketsAndNoEscapes) {
    EXPECT_TRUE(Match("[a].adf", "[A].adf"));
    EXPECT_FALSE(Match("[ab].adf", "a.adf"));
    EXPECT_TRUE(Match("a\\*", "a\\bc"));
    EXPECT_FALSE(Match("a\\*", "a*"));
    EXPECT_TRUE(Match("{a,b}", "{a,b}"));
}

TEST(Pattern, WidensAStarAsFarAsNeeded) {
    EXPECT_TRUE(Match("*(Disk*).adf", "Game (1990)(Disk 1).adf"));
    EXPECT_TRUE(Match("*ab*ab", "xababab"));
    EXPECT_TRUE(Match("a*b?c", "abxcbyc"));
    EXPECT_FALSE(Match("a*b?c", "abxcbc"));
    EXPECT_FALSE(Match("a*b", "acd"));
    EXPECT_TRUE(Match("a**b*", "ab"));
}

TEST(Pattern, EndsSoonOnManyStars) {
    string pattern;
    for (int i = 0; i < 100; ++i)
        pattern += "a*";
    EXPECT_FALSE(Match(pattern + "b", string(255, 'a')));
    EXPECT_TRUE(Match(pattern, string(255, 'a')));
}

bool MatchByRecursion(std::u32string_view pattern, std::u32string_view name) {
    if (pattern.empty()) return name.empty();
    if (pattern[0] == U'*') {
        return MatchByRecursion(pattern.substr(1), name) ||
               (!name.empty() && MatchByRecursion(pattern, name.substr(1)));
    }
    return !name.empty() && (pattern[0] == U'?' || pattern[0] == name[0]) &&
           MatchByRecursion(pattern.substr(1), name.substr(1));
}

TEST(Pattern, AgreesWithAPlainRecursiveMatcher) {
    std::mt19937 random(7);
    const auto make = [&](std::u32string_view letters, unsigned longest) {
        std::u32string text;
        for (auto n = random() % (longest + 1); n > 0; --n)
            text += letters[random() % letters.size()];
        return text;
    };
    const auto toUtf8 = [](std::u32string_view text) {
        string utf8;
        for (const char32_t c : text)
            AppendUtf8(utf8, c);
        return utf8;
    };
    for (int i = 0; i < 50000; ++i) {
        const std::u32string pattern = make(U"aabä*?.", 7);
        const std::u32string name = make(U"abä.", 8);
        if (pattern.empty() || pattern == U"*.*") continue;
        ASSERT_EQ(Match(toUtf8(pattern), toUtf8(name)), MatchByRecursion(pattern, name))
            << toUtf8(pattern) << " / " << toUtf8(name);
    }
}

}  // namespace
}  // namespace kivu::text
