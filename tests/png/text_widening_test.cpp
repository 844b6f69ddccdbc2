#include "png/text_widening.h"

#include <gtest/gtest.h>

namespace kivu::png {
namespace {

TEST(TextWidening, Utf8StaysAsItIs) {
    for (const std::string text : {"", "plain", "\xC3\xA4", "\xE2\x82\xAC", "\xF0\x9F\x8E\xAE"}) {
        EXPECT_EQ(WidenText(text), text);
    }
}

TEST(TextWidening, OtherBytesAreWindows1252) {
    EXPECT_EQ(WidenText("\xE4"), "\xC3\xA4");
    EXPECT_EQ(WidenText("\x80\x93\x81"), "\xE2\x82\xAC\xE2\x80\x9C\xC2\x81");
    EXPECT_EQ(WidenText("\xC3\xA4\xFF"), "\xC3\x83\xC2\xA4\xC3\xBF");
}

TEST(TextWidening, WrongUtf8IsNotTakenForIt) {
    // Overlong, a surrogate, beyond the last character, cut.
    for (const std::string text :
         {"\xC0\x80", "\xE0\x80\x80", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\xE2\x82", "\xF8"}) {
        EXPECT_NE(WidenText(text), text);
    }
}

TEST(TextWidening, EveryByteBecomesACharacter) {
    std::string all;
    for (int i = 0; i < 256; ++i) {
        all += static_cast<char>(i);
    }
    const std::string wide = WidenText(all);
    EXPECT_EQ(WidenText(wide), wide);
    EXPECT_EQ(std::count_if(wide.begin(), wide.end(), [](char c) { return (c & 0xC0) != 0x80; }),
              256);
}

TEST(TextWidening, AppendingStopsAtTheLimitBetweenCharacters) {
    std::string text = "ab";
    AppendCapped(text, "cd", 4);
    EXPECT_EQ(text, "abcd");
    AppendCapped(text, "e", 4);
    EXPECT_EQ(text, "abcd");
    text = "ab";
    AppendCapped(text, "\xC3\xA4x", 3);
    EXPECT_EQ(text, "ab");
    AppendCapped(text, "\xC3\xA4x", 4);
    EXPECT_EQ(text, "ab\xC3\xA4");
}

}  // namespace
}  // namespace kivu::png
