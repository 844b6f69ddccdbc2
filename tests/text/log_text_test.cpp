#include "text/log_text.h"

#include <gtest/gtest.h>

#include "text/text.h"

namespace kivu::text {
namespace {

TEST(LogText, PlainTextStaysAsItIs) {
    EXPECT_EQ(LogText(""), "");
    EXPECT_EQ(LogText("C:\\Größe\\日本 (1990).adf"), "C:\\Größe\\日本 (1990).adf");
}

TEST(LogText, WhatBreaksALineIsSpelledOut) {
    EXPECT_EQ(LogText("a\r\n2026-11-22 03:12:41.123 [1] forged"),
              "a<0D><0A>2026-11-22 03:12:41.123 [1] forged");
    EXPECT_EQ(LogText("a\vb\fc\xC2\x85"
                      "d\xE2\x80\xA8"
                      "e\xE2\x80\xA9"
                      "f"),
              "a<0B>b<0C>c<U+0085>d<U+2028>e<U+2029>f");
}

TEST(LogText, WhatATerminalActsUponOrTheEyeMissesIsSpelledOut) {
    EXPECT_EQ(LogText(std::string("\0\x1B[2J\x7F\t\b", 8)), "<00><1B>[2J<7F><09><08>");
    EXPECT_EQ(LogText("\xC2\x9B"), "<U+009B>");  // a control sequence's beginning
    EXPECT_EQ(LogText("a\xE2\x80\xAEgpj.exe"), "a<U+202E>gpj.exe");  // turns the direction
    EXPECT_EQ(LogText("a\xE2\x80\x8B\xEF\xBB\xBF"), "a<U+200B><U+FEFF>");
    EXPECT_EQ(LogText("\xF3\xA0\x81\x81"), "<U+E0041>");
}

TEST(LogText, BytesThatAreNoTextAreSpelledOut) {
    EXPECT_EQ(LogText("Gr\xF6\xDF"
                      "e\xFF\xC3"),
              "Gr<F6><DF>e<FF><C3>");
    // An overlong line feed, a surrogate.
    EXPECT_EQ(LogText("\xC0\x8A\xED\xA0\x80"), "<C0><8A><ED><A0><80>");
}

TEST(LogText, IsAlwaysOneLineOfUtf8) {
    std::string bytes;
    for (int first = 0; first < 256; ++first) {
        for (int second = 0; second < 256; ++second)
            bytes.append({static_cast<char>(first), static_cast<char>(second)});
    }
    for (std::size_t at = 0; at < bytes.size(); at += 1000) {
        const std::string line = LogText(bytes.substr(at, 1000));
        EXPECT_TRUE(IsUtf8(line));
        for (const char c : line)
            EXPECT_FALSE(static_cast<unsigned char>(c) < ' ' || c == '\x7F');
    }
}

TEST(LogText, ALongTextIsCutBetweenCharacters) {
    const std::string fits(maxLogText, 'x');
    EXPECT_TRUE(LogText(fits) == fits);
    EXPECT_TRUE(LogText(fits + "x") == fits.substr(4) + " ...");
    for (const char* piece : {"ä", "日", "\n", "\xFF"}) {
        std::string text;
        while (text.size() <= maxLogText)
            text += piece;
        const std::string line = LogText(text);
        EXPECT_LE(line.size(), maxLogText);
        EXPECT_TRUE(IsUtf8(line));
        EXPECT_TRUE(line.ends_with(" ..."));
        EXPECT_EQ((line.size() - 4) % LogText(piece).size(), 0U);
    }
}

TEST(LogLine, BeginsWithTheTimeAndTheProcess) {
    EXPECT_EQ(LogLine({2026, 11, 22, 3, 2, 1, 45}, 4711, "a\nb"),
              "2026-11-22 03:02:01.045 [4711] a<0A>b");
}

TEST(LogWords, EachIsSeenAsOneWord) {
    EXPECT_EQ(LogWords({}), "");
    EXPECT_EQ(LogWords({"wine", "a b", "", "-x", "say \"hi\"", "tab\t"}),
              "wine \"a b\" \"\" -x \"say \"\"hi\"\"\" \"tab\t\"");
}

}  // namespace
}  // namespace kivu::text
