#include "library/search_words.h"

#include <gtest/gtest.h>
#include <random>

namespace kivu::library {
namespace {

using std::string;

bool Matches(std::string_view text, std::string_view row) {
    return SearchWords(text).AreIn(row);
}

std::vector<string> Lines(std::string_view text, std::string_view block) {
    std::vector<string> lines;
    const auto decode = [](std::string_view bytes) { return text::FromWindows1252(bytes); };
    SearchWords(text).ForEachLine(block, decode, [&](std::string_view line) {
        lines.emplace_back(line);
        return true;
    });
    return lines;
}

TEST(SearchWords, AllWordsInAnyOrderAnywhereInAnyCase) {
    const char* row = "The Great Giana Sisters (1987)(Rainbow Arts)";
    EXPECT_TRUE(Matches("sisters giana", row));
    EXPECT_TRUE(Matches("GIANA 1987", row));
    EXPECT_TRUE(Matches("reat ana ter", row));
    EXPECT_TRUE(Matches("giana giana", row));
    EXPECT_FALSE(Matches("giana brothers", row));
    EXPECT_FALSE(Matches("gianasisters", row));
}

TEST(SearchWords, TwoBlanksMakeAnEmptyWordThatEveryRowContains) {
    EXPECT_TRUE(Matches("giana  sisters", "Sisters of Giana"));
    EXPECT_TRUE(Matches("  ", "anything"));
    EXPECT_TRUE(Matches("", ""));
    EXPECT_FALSE(Matches(" x ", "anything"));
}

TEST(SearchWords, WildcardsAndQuotesAreLetters) {
    EXPECT_FALSE(Matches("tur*", "Turrican"));
    EXPECT_FALSE(Matches("tur?ican", "Turrican"));
    EXPECT_FALSE(Matches("\"turrican\"", "Turrican"));
    EXPECT_TRUE(Matches("\"turrican\"", "The \"Turrican\" Demo"));
    EXPECT_TRUE(Matches("*", "Who*"));
}

TEST(SearchWords, TabsDoNotSplit) {
    EXPECT_TRUE(Matches("a\tb", "xa\tby"));
    EXPECT_FALSE(Matches("a\tb", "a b"));
}

TEST(SearchWords, LettersBeyondAsciiHaveACaseToo) {
    EXPECT_TRUE(Matches("JÄGER", "Der Jäger"));
    EXPECT_TRUE(Matches("jäger", "DER JÄGER"));
    EXPECT_TRUE(Matches("ä", "Ä"));
    EXPECT_FALSE(Matches("jager", "Jäger"));
    EXPECT_FALSE(Matches("jäger", "Jager"));
    EXPECT_TRUE(Matches("ИГРА", "Эта игра"));
    // The bytes of "ä" end like those of "Ӥ" and of others: only the letter counts.
    EXPECT_FALSE(Matches("ä", "Ӥ"));
}

TEST(SearchWords, BytesBesideLettersAreNotTakenForThem) {
    EXPECT_FALSE(Matches("@", "`"));
    EXPECT_FALSE(Matches("[a]", "{A}"));
    EXPECT_FALSE(Matches("a", "\xC1"));
    EXPECT_TRUE(Matches("{a}", "{A}"));
}

TEST(SearchWords, ARowIsNoLongerThanItsText) {
    const string rows = "Turrican";
    EXPECT_FALSE(Matches("turrican", std::string_view(rows).substr(0, 7)));
    EXPECT_FALSE(Matches("turrican", ""));
}

TEST(SearchWords, NulIsALetterLikeOthers) {
    const string row("Tur\0rican", 9);
    EXPECT_TRUE(Matches("rican", row));
    EXPECT_FALSE(Matches("turrican", row));
    EXPECT_TRUE(Matches(std::string_view("r\0r", 3), row));
}

TEST(SearchWords, AgreesWithThePlainWayOnRandomTexts) {
    std::mt19937 random(7);
    const string letters = "abAB1 (ä\xC3\x84\xE4Z/";
    const auto make = [&](std::size_t most) {
        string text(random() % (most + 1), ' ');
        for (char& c : text)
            c = letters[random() % letters.size()];
        return text;
    };
    for (int round = 0; round < 20000; ++round) {
        const string word = make(4), row = make(40);
        if (word.find(' ') != string::npos) continue;
        EXPECT_EQ(SearchWord(word).IsIn(row), text::ContainsNoCase(row, word))
            << "'" << word << "' in '" << row << "'";
    }
}

TEST(SearchLines, GivesMatchingLinesWithoutTheirEnds) {
    EXPECT_EQ(Lines("ant", "Ant\r\nbee\r\nGiant\nANT"),
              (std::vector<string>{"Ant", "Giant", "ANT"}));
    EXPECT_EQ(Lines("ant 1990", "Ant (1990)\r\nAnt (1991)\r\n"), std::vector<string>{"Ant (1990)"});
    EXPECT_EQ(Lines("ant", "ant ant ant\nant\n"), (std::vector<string>{"ant ant ant", "ant"}));
    EXPECT_TRUE(Lines("ant", "").empty());
    EXPECT_TRUE(Lines("ant", "\n\r\n\n").empty());
}

TEST(SearchLines, AWordNeverGoesAcrossLines) {
    EXPECT_TRUE(Lines("ab", "a\nb\n").empty());
    EXPECT_TRUE(Lines("a\nb", "a\nb\n").empty());
    EXPECT_TRUE(Lines("a\r", "a\r\nb").empty());
    EXPECT_TRUE(Lines("one two", "one\ntwo\n").empty());
}

TEST(SearchLines, LinesInTheWindowsCodePageAreDecoded) {
    EXPECT_EQ(Lines("JÄGER", "J\xE4ger\r\nJager\r\nJäger\r\n"),
              (std::vector<string>{"J\xE4ger", "Jäger"}));
    EXPECT_EQ(Lines("Ä", "\xC4\n\xE4\nx\n"), (std::vector<string>{"\xC4", "\xE4"}));
}

TEST(SearchLines, StopsWhenTheCallerHasEnough) {
    int calls = 0;
    const auto decode = [](std::string_view bytes) { return string(bytes); };
    EXPECT_FALSE(SearchWords("a").ForEachLine("a\na\na\n", decode,
                                              [&](std::string_view) { return ++calls < 2; }));
    EXPECT_EQ(calls, 2);
}

// Whether a text that contains all of `found` needs only be looked through for what is left.
std::optional<bool> LeftIsIn(std::string_view text, std::string_view found, std::string_view row) {
    const auto left = SearchWords(text).Beyond(SearchWords(found));
    return left ? std::optional(left->AreIn(row)) : std::nullopt;
}

TEST(SearchWordsBeyond, ALongerTextIsLookedForInWhatTheShorterOneHasLeft) {
    EXPECT_TRUE(SearchWords("ant").Beyond(SearchWords("ant"))->IsEmpty());
    EXPECT_TRUE(SearchWords("ANT ").Beyond(SearchWords("ant"))->IsEmpty());
    EXPECT_TRUE(SearchWords("bee ant").Beyond(SearchWords("ant bee"))->IsEmpty());
    EXPECT_EQ(LeftIsIn("giant", "ant", "Ant"), false);
    EXPECT_EQ(LeftIsIn("giant", "ant", "GIANT"), true);
    EXPECT_EQ(LeftIsIn("ant bee", "ant", "Bee"), true);
    EXPECT_EQ(LeftIsIn("jäger", "ä", "Jäger"), true);
    EXPECT_EQ(LeftIsIn("a", "", "b"), false);
}

TEST(SearchWordsBeyond, OtherTextsAreLookedForAnew) {
    EXPECT_FALSE(SearchWords("an").Beyond(SearchWords("ant")));
    EXPECT_FALSE(SearchWords("ant").Beyond(SearchWords("ant bee")));
    EXPECT_FALSE(SearchWords("").Beyond(SearchWords("ant")));
    EXPECT_FALSE(SearchWords("bee").Beyond(SearchWords("ant")));
    // A stray byte is no part of a letter.
    EXPECT_FALSE(SearchWords("ä").Beyond(SearchWords("\xC3")));
}

// The places of a word from each place on, and those that one object gives one after the other.
TEST(WordPlaces, AreThoseOfThePlainWay) {
    std::mt19937 random(5);
    const string letters = "abB1-----";
    for (const char* word : {"b", "ab", "b1", "abb", "1-b-a"}) {
        const SearchWord searched(word);
        for (std::size_t size = 0; size < 300; size += 1 + size / 20) {
            string text(size, '-');
            for (char& c : text)
                c = letters[random() % letters.size()];
            const string lower = text::ToLower(text);
            std::size_t step = 1 + random() % 3;
            WordPlaces places(searched, text);
            for (std::size_t from = 0; from <= size; from += step) {
                const std::size_t expected = lower.find(word, from);
                ASSERT_EQ(places.Next(from), expected) << word << " in " << text;
                ASSERT_EQ(searched.Find(text, from), expected) << word << " in " << text;
                if (random() % 9 == 0) step = 1 + random() % 90;
            }
        }
    }
}

}  // namespace
}  // namespace kivu::library
