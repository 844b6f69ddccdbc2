#include "text/text.h"

#include <gmock/gmock.h>
#include <random>

namespace kivu::text {
namespace {

using std::string;
using std::string_view;
using testing::ElementsAre;
using testing::IsEmpty;
using namespace std::string_literals;

string Utf8(char32_t c) {
    string text;
    AppendUtf8(text, c);
    return text;
}

string RandomBytes(std::mt19937& random, std::size_t longest) {
    string bytes(random() % (longest + 1), ' ');
    // Leads and continuations often enough to meet every kind of broken sequence.
    constexpr unsigned char kAwkward[] = {0x00, 0x7F, 0x80, 0xBF, 0xC0, 0xC3, 0xE0,
                                          0xED, 0xEF, 0xF0, 0xF4, 0xF5, 0xFF};
    for (char& c : bytes) {
        const bool awkward = random() % 2 == 0;
        c = static_cast<char>(awkward ? kAwkward[random() % std::size(kAwkward)] : random() % 256);
    }
    return bytes;
}

TEST(Decoding, RoundTripsEveryCodePoint) {
    for (char32_t c = 0; c <= 0x10FFFF; ++c) {
        if (c >= 0xD800 && c < 0xE000) continue;
        const string text = Utf8(c);
        const DecodedCodePoint decoded = DecodeAt(text, 0);
        ASSERT_EQ(decoded.codePoint, c);
        ASSERT_EQ(decoded.length, text.size());
        ASSERT_TRUE(decoded.isUtf8);
        ASSERT_TRUE(IsUtf8(text));
    }
}

TEST(Decoding, WritesSurrogatesAndTooLargeValuesAsReplacementCharacters) {
    EXPECT_EQ(Utf8(0xD800), "\xEF\xBF\xBD");
    EXPECT_EQ(Utf8(0xDFFF), "\xEF\xBF\xBD");
    EXPECT_EQ(Utf8(0x110000), "\xEF\xBF\xBD");
}

TEST(Decoding, RefusesWhatIsNotUtf8) {
    const string_view broken[] = {"\x80",
                                  "\xBF",
                                  "\xC3",
                                  "\xC0\x80",
                                  "\xC1\xBF",
                                  "\xE0\x80\x80",
                                  "\xE0\x9F\xBF",
                                  "\xED\xA0\x80",
                                  "\xED\xBF\xBF",
                                  "\xE2\x82",
                                  "\xE2\x82(",
                                  "\xF0\x80\x80\x80",
                                  "\xF0\x8F\xBF\xBF",
                                  "\xF4\x90\x80\x80",
                                  "\xF5\x80\x80\x80",
                                  "\xF0\x9F\x98",
                                  "\xFF",
                                  "\xFE"};
    for (const string_view text : broken) {
        EXPECT_FALSE(IsUtf8(text));
        EXPECT_FALSE(DecodeAt(text, 0).isUtf8);
        EXPECT_EQ(DecodeAt(text, 0).length, 1);
    }
    EXPECT_TRUE(IsUtf8(""));
    EXPECT_TRUE(IsUtf8("a\0b"s));
}

TEST(IsUtf8, FindsAStrayByteAtEveryPlaceOfALongText) {
    for (std::size_t size = 1; size < 40; ++size) {
        EXPECT_TRUE(IsUtf8(string(size, 'x')));
        for (std::size_t at = 0; at < size; ++at) {
            string text(size, 'x');
            text[at] = '\xFF';
            EXPECT_FALSE(IsUtf8(text)) << size << ' ' << at;
            text.replace(at, 1, "ä");
            EXPECT_TRUE(IsUtf8(text)) << size << ' ' << at;
        }
    }
}

TEST(Decoding, ReadsAStrayByteAsItsWindows1252Character) {
    EXPECT_EQ(DecodeAt("\x80", 0).codePoint, U'\u20AC');
    EXPECT_EQ(DecodeAt("\xE4", 0).codePoint, U'ä');
    EXPECT_EQ(DecodeAt("\x9F", 0).codePoint, U'Ÿ');
    EXPECT_EQ(DecodeAt("\x81", 0).codePoint, 0x81u);
    EXPECT_EQ(DecodeAt("\xFF", 0).codePoint, U'ÿ');
}

TEST(Decoding, WalksThroughAnyBytes) {
    std::mt19937 random(1);
    for (int i = 0; i < 5000; ++i) {
        const string bytes = RandomBytes(random, 12);
        std::size_t count = 0;
        for (std::size_t at = 0; at < bytes.size(); ++count) {
            const std::size_t before = at;
            NextCodePoint(bytes, at);
            ASSERT_GT(at, before);
            ASSERT_LE(at, bytes.size());
        }
        EXPECT_EQ(CodePointCount(bytes), count);
        EXPECT_EQ(CodePointOffset(bytes, count), bytes.size());
    }
}

TEST(Decoding, CountsAndFindsCodePoints) {
    EXPECT_EQ(CodePointCount("Käse\xE4"), 5u);
    EXPECT_EQ(CodePointOffset("Käse", 0), 0u);
    EXPECT_EQ(CodePointOffset("Käse", 2), 3u);
    EXPECT_EQ(CodePointOffset("Käse", 9), 5u);
}

TEST(Windows1252, ConvertsBothWays) {
    string all;
    for (int byte = 0; byte < 256; ++byte)
        all += static_cast<char>(byte);
    EXPECT_EQ(ToWindows1252(FromWindows1252(all)), all);
    EXPECT_EQ(FromWindows1252("Gel\xF6scht \x80"), "Gelöscht €");
    EXPECT_EQ(ToWindows1252("Gelöscht €"), "Gel\xF6scht \x80");
}

TEST(Windows1252, ReplacesWhatItLacksAndKeepsStrayBytes) {
    EXPECT_EQ(ToWindows1252("aЖ漢b"), "a??b");
    EXPECT_EQ(ToWindows1252("Ж", '_'), "_");
    EXPECT_EQ(ToWindows1252("\xE4\x95"), "\xE4\x95");
}

TEST(FoldCase, LowersTheLettersOfEveryCoveredScript) {
    EXPECT_EQ(FoldCase(U'A'), U'a');
    EXPECT_EQ(FoldCase(U'Z'), U'z');
    EXPECT_EQ(FoldCase(U'Ä'), U'ä');
    EXPECT_EQ(FoldCase(U'Þ'), U'þ');
    EXPECT_EQ(FoldCase(U'Ÿ'), U'ÿ');
    EXPECT_EQ(FoldCase(U'Š'), U'š');
    EXPECT_EQ(FoldCase(U'Ł'), U'ł');
    EXPECT_EQ(FoldCase(U'Ĳ'), U'ĳ');
    EXPECT_EQ(FoldCase(U'Ǆ'), U'ǆ');
    EXPECT_EQ(FoldCase(U'ǅ'), U'ǆ');
    EXPECT_EQ(FoldCase(U'Ȼ'), U'ȼ');
    EXPECT_EQ(FoldCase(U'Ⱥ'), U'ⱥ');
    EXPECT_EQ(FoldCase(U'Ω'), U'ω');
    EXPECT_EQ(FoldCase(U'Ά'), U'ά');
    EXPECT_EQ(FoldCase(U'Ж'), U'ж');
    EXPECT_EQ(FoldCase(U'Ё'), U'ё');
    EXPECT_EQ(FoldCase(U'Ӏ'), U'ӏ');
    EXPECT_EQ(FoldCase(U'Ա'), U'ա');
    EXPECT_EQ(FoldCase(U'Ֆ'), U'ֆ');
    EXPECT_EQ(FoldCase(U'Ế'), U'ế');
    EXPECT_EQ(FoldCase(U'ẞ'), U'ß');
    EXPECT_EQ(FoldCase(U'Ａ'), U'ａ');
    EXPECT_EQ(FoldCase(U'Ｚ'), U'ｚ');
}

TEST(FoldCase, LeavesEverythingElse) {
    for (const char32_t c : U"@[`{0_×÷ßſĸŉıİςª漢あ\u212A\u212B\U0001F600") {
        EXPECT_EQ(FoldCase(c), c);
    }
}

TEST(FoldCase, IsStableAndNeverReachesAsciiFromOutside) {
    for (char32_t c = 0; c <= 0x10FFFF; ++c) {
        const char32_t folded = FoldCase(c);
        ASSERT_EQ(FoldCase(folded), folded);
        ASSERT_EQ(folded < 0x80, c < 0x80);
    }
}

TEST(ToLower, LowersLettersAndPassesStrayBytesThrough) {
    EXPECT_EQ(ToLower("TURRICAN Ä Ж Ế"), "turrican ä ж ế");
    EXPECT_EQ(ToLower("A\xC4\xFF"), "a\xC4\xFF");
    EXPECT_EQ(ToLower("A\0B"s), "a\0b"s);
    EXPECT_EQ(ToLower(""), "");
}

TEST(ToUpperAscii, LeavesLettersBeyondAscii) {
    EXPECT_EQ(ToUpperAscii("az{`äß\xE4"), "AZ{`äß\xE4");
}

TEST(EqualsNoCase, ComparesFoldedLetters) {
    EXPECT_TRUE(EqualsNoCase("Märchen", "MÄRCHEN"));
    EXPECT_TRUE(EqualsNoCase("", ""));
    EXPECT_TRUE(EqualsNoCase("Ⱥ", "ⱥ"));
    EXPECT_TRUE(EqualsNoCase("M\xC4R", "mär"));
    EXPECT_FALSE(EqualsNoCase("Straße", "STRASSE"));
    EXPECT_FALSE(EqualsNoCase("abc", "ab"));
    EXPECT_FALSE(EqualsNoCase("ab", "abc"));
    EXPECT_FALSE(EqualsNoCase("ab", "a\0b"s));
}

TEST(ContainsNoCase, FindsANeedleAnywhere) {
    EXPECT_TRUE(ContainsNoCase("Great Giana Sisters", "giana"));
    EXPECT_TRUE(ContainsNoCase("Great Giana Sisters", "SISTERS"));
    EXPECT_TRUE(ContainsNoCase("aab", "AB"));
    EXPECT_TRUE(ContainsNoCase("Über", "ÜB"));
    EXPECT_TRUE(ContainsNoCase("xÄÖÜ", "öü"));
    EXPECT_TRUE(ContainsNoCase("a\0b"s, "B"));
    EXPECT_TRUE(ContainsNoCase("abc", ""));
    EXPECT_TRUE(ContainsNoCase("", ""));
    EXPECT_FALSE(ContainsNoCase("", "a"));
    EXPECT_FALSE(ContainsNoCase("abc", "abcd"));
    EXPECT_FALSE(ContainsNoCase("aXbX", "ab"));
}

TEST(ContainsNoCase, FindsNothingInTheMiddleOfASequence) {
    EXPECT_FALSE(ContainsNoCase("ä", "\xA4"));  // the second byte of "ä"
    EXPECT_TRUE(ContainsNoCase("\xA4", "¤"));
}

TEST(ContainsNoCase, AgreesWithAPlainSearchInFoldedText) {
    std::mt19937 random(2);
    const string_view letters[] = {"a", "A", "b", "ä", "Ä", "Ж", " "};
    for (int i = 0; i < 20000; ++i) {
        string text;
        string needle;
        for (auto n = random() % 10; n > 0; --n)
            text += letters[random() % std::size(letters)];
        for (auto n = random() % 4; n > 0; --n)
            needle += letters[random() % std::size(letters)];
        ASSERT_EQ(ContainsNoCase(text, needle), ToLower(text).find(ToLower(needle)) != string::npos)
            << text << " / " << needle;
    }
}

TEST(Trim, TakesBlanksAndNothingElse) {
    EXPECT_EQ(Trim("  a b  "), "a b");
    EXPECT_EQ(Trim("\ta\r\n"), "\ta\r\n");
    EXPECT_EQ(Trim("   "), "");
    EXPECT_EQ(Trim(""), "");
    EXPECT_EQ(TrimLeft("  a "), "a ");
    EXPECT_EQ(TrimRight("  a "), "  a");
    EXPECT_EQ(TrimLeft("  "), "");
    EXPECT_EQ(TrimRight("  "), "");
}

TEST(ToNumber, ReadsTheLeadingNumber) {
    EXPECT_EQ(ToNumber("16"), 16);
    EXPECT_EQ(ToNumber("  -3 "), -3);
    EXPECT_EQ(ToNumber("+7"), 7);
    EXPECT_EQ(ToNumber("\t1"), 1);
    EXPECT_EQ(ToNumber("12px"), 12);
    EXPECT_EQ(ToNumber("0000000000000000000012"), 12);
}

TEST(ToNumber, RoundsHalvesToTheEvenNeighbour) {
    EXPECT_EQ(ToNumber("0.5"), 0);
    EXPECT_EQ(ToNumber("1,5"), 2);
    EXPECT_EQ(ToNumber("2.5"), 2);
    EXPECT_EQ(ToNumber("2.50001"), 3);
    EXPECT_EQ(ToNumber("-1.5"), -2);
    EXPECT_EQ(ToNumber(".75"), 1);
    EXPECT_EQ(ToNumber("3."), 3);
}

TEST(ToNumber, GivesNothingForWhatIsNoNumber) {
    for (const string_view text : {"", "   ", "abc", "-", "+", ".", ",", "- 5", "--5", "x1"}) {
        EXPECT_EQ(ToNumber(text), std::nullopt) << text;
        EXPECT_EQ(ToWideNumber(text), std::nullopt) << text;
    }
}

TEST(ToNumber, KeepsTheLimitsOf16Bits) {
    EXPECT_EQ(ToNumber("32767"), 32767);
    EXPECT_EQ(ToNumber("-32768"), -32768);
    EXPECT_EQ(ToNumber("32768"), std::nullopt);
    EXPECT_EQ(ToNumber("-32769"), std::nullopt);
    EXPECT_EQ(ToNumber("32767.5"), std::nullopt);
    EXPECT_EQ(ToNumber("-32768.5"), -32768);
    EXPECT_EQ(ToNumber(string(5000, '9')), std::nullopt);
}

TEST(ToWideNumber, ReadsMeasuresBeyond16Bits) {
    EXPECT_EQ(ToWideNumber("57600"), 57600);
    EXPECT_EQ(ToWideNumber("12345,75"), 12346);
    EXPECT_EQ(ToWideNumber("2147483647"), 2147483647);
    EXPECT_EQ(ToWideNumber("-2147483648"), -2147483648LL);
    EXPECT_EQ(ToWideNumber("2147483648"), std::nullopt);
    EXPECT_EQ(ToWideNumber("2147483647.5"), std::nullopt);
    EXPECT_EQ(ToWideNumber(string(5000, '9')), std::nullopt);
}

TEST(SplitLines, EndsLinesAtCrLfAndLf) {
    EXPECT_THAT(SplitLines("a\r\nb\nc"), ElementsAre("a", "b", "c"));
    EXPECT_THAT(SplitLines("a\r\n"), ElementsAre("a"));
    EXPECT_THAT(SplitLines("\r\n\n"), ElementsAre("", ""));
    EXPECT_THAT(SplitLines(""), IsEmpty());
}

TEST(SplitLines, KeepsALoneCrAndNul) {
    EXPECT_THAT(SplitLines("a\rb\nc\0d\n"s), ElementsAre("a\rb", "c\0d"s));
    EXPECT_THAT(SplitLines("a\r\r\n"), ElementsAre("a\r"));
}

TEST(SplitLines, TakesACrAtTheVeryEndForALineEnd) {
    EXPECT_THAT(SplitLines("a\r\nb\r"), ElementsAre("a", "b"));
}

TEST(Split, KeepsEmptyParts) {
    EXPECT_THAT(Split("a,b", ','), ElementsAre("a", "b"));
    EXPECT_THAT(Split("a,,b,", ','), ElementsAre("a", "", "b", ""));
    EXPECT_THAT(Split(",", ','), ElementsAre("", ""));
    EXPECT_THAT(Split("a b", ','), ElementsAre("a b"));
    EXPECT_THAT(Split("", ','), IsEmpty());
}

TEST(Text, StandsAnyBytes) {
    std::mt19937 random(3);
    for (int i = 0; i < 5000; ++i) {
        const string a = RandomBytes(random, 20);
        const string b = RandomBytes(random, 3);
        EXPECT_TRUE(EqualsNoCase(a, a));
        EXPECT_TRUE(ContainsNoCase(a + " " + b, a));
        EXPECT_EQ(EqualsNoCase(a, b), EqualsNoCase(b, a));
        EXPECT_TRUE(EqualsNoCase(ToLower(a), a));
        EXPECT_TRUE(IsUtf8(FromWindows1252(a)));
        ToNumber(a);
        ToWideNumber(a);
    }
}

}  // namespace
}  // namespace kivu::text
