#include "hosts/windows/code_page.h"
#include "hosts/windows/file_system_windows.h"
#include "hosts/windows/scratch_directory.h"
#include "text/text.h"

namespace kivu::hosts {
namespace {

constexpr unsigned western = 1252;
constexpr unsigned japanese = 932;

TEST(CodePage, Windows1252IsReadAndWritten) {
    EXPECT_EQ(DecodeFromCodePage("Gr\xfc\xdf"
                                 "e \x80",
                                 western),
              "Gr\xc3\xbc\xc3\x9f"
              "e \xe2\x82\xac");
    EXPECT_EQ(EncodeInCodePage("Gr\xc3\xbc\xc3\x9f"
                               "e \xe2\x82\xac",
                               western),
              "Gr\xfc\xdf"
              "e \x80");
    EXPECT_EQ(DecodeFromCodePage("", western), "");
    EXPECT_EQ(EncodeInCodePage("", western), "");
}

TEST(CodePage, EveryByteComesBack) {
    for (int byte = 0; byte < 256; ++byte) {
        const std::string bytes(1, static_cast<char>(byte));
        const std::string text = DecodeFromCodePage(bytes, western);
        EXPECT_TRUE(text::IsUtf8(text)) << byte;
        EXPECT_EQ(text, text::FromWindows1252(bytes)) << byte;
        EXPECT_EQ(EncodeInCodePage(text, western), bytes) << byte;
    }
}

TEST(CodePage, WhatThePageDoesNotHoldBecomesAQuestionMarkAndNoLetterThatLooksLikeIt) {
    EXPECT_EQ(EncodeInCodePage("\xe6\x97\xa5\xe6\x9c\xac.adf", western), "??.adf");
    // A with macron, full-width A, full-width quotation mark, one third.
    EXPECT_EQ(EncodeInCodePage("\xc4\x80|\xef\xbc\xa1|\xef\xbc\x82|\xe2\x85\x93", western),
              "?|?|?|?");
}

TEST(CodePage, BytesThatAreNoUtf8AreTakenAsWindows1252) {
    EXPECT_EQ(EncodeInCodePage("n\xfc.adf", western), "n\xfc.adf");
}

TEST(CodePage, APageOfTwoByteCharactersIsReadAndWritten) {
    if (!::IsValidCodePage(japanese)) GTEST_SKIP() << "code page 932 is not installed";
    const std::string text = "\xe6\x97\xa5\xe6\x9c\xac C:\\a";
    EXPECT_EQ(EncodeInCodePage(text, japanese), "\x93\xfa\x96\x7b C:\\a");
    EXPECT_EQ(DecodeFromCodePage("\x93\xfa\x96\x7b C:\\a", japanese), text);
    EXPECT_EQ(EncodeInCodePage("\xc3\xbc", japanese), "?");
}

TEST(CodePage, AHalfCharacterAtTheEndIsNoCrash) {
    if (!::IsValidCodePage(japanese)) GTEST_SKIP() << "code page 932 is not installed";
    EXPECT_TRUE(text::IsUtf8(DecodeFromCodePage("a\x93", japanese)));
}

TEST(CodePage, WhereThePageIsUtf8OtherBytesAreWindows1252) {
    EXPECT_EQ(DecodeFromCodePage("Gr\xc3\xbc\xc3\x9f", CP_UTF8), "Gr\xc3\xbc\xc3\x9f");
    EXPECT_EQ(DecodeFromCodePage("Gr\xfc\xdf \x80", CP_UTF8), "Gr\xc3\xbc\xc3\x9f \xe2\x82\xac");
    EXPECT_EQ(EncodeInCodePage("Gr\xc3\xbc\xc3\x9f \xe6\x97\xa5 \xed\xa0\x80", CP_UTF8),
              "Gr\xc3\xbc\xc3\x9f \xe6\x97\xa5 \xed\xa0\x80");
}

TEST(CodePage, APageThatHoldsEveryCharacterIsReadAndWritten) {
    const std::string text = "\xc4\x80 \xe6\x97\xa5 \xc3\xbc";
    EXPECT_EQ(DecodeFromCodePage(EncodeInCodePage(text, CP_UTF7), CP_UTF7), text);
}

TEST(CodePage, AnUnknownPageIsWindows1252) {
    EXPECT_EQ(DecodeFromCodePage("\xfc", 9), "\xc3\xbc");
    EXPECT_EQ(EncodeInCodePage("\xc3\xbc\xe6\x97\xa5", 9), "\xfc?");
}

TEST(CodePage, TheFilesSpeakThatOfTheSystem) {
    const WindowsFileSystem files;
    EXPECT_EQ(files.DecodeText("a\xfc"), DecodeFromCodePage("a\xfc", ::GetACP()));
    EXPECT_EQ(files.EncodeText("a\xc3\xbc\xe6\x97\xa5"),
              EncodeInCodePage("a\xc3\xbc\xe6\x97\xa5", ::GetACP()));
}

TEST(CodePage, AFileOfNamesWithUmlautsLeadsToTheFilesOfTheseNames) {
    if (::GetACP() != western) GTEST_SKIP() << "the system's code page is " << ::GetACP();
    const testing::ScratchDirectory directory;
    directory.Write("T\xc3\xbcrme \xc3\x84rger.adf", "game");
    directory.Write("list.txt", "T\xfcrme \xc4rger.adf");
    WindowsFileSystem files;
    const std::string name = files.DecodeText(*files.ReadFile(directory.Path("list.txt")));
    EXPECT_EQ(files.ReadFile(directory.Path(name)), "game");
    ASSERT_FALSE(files.WriteFile(directory.Path("again.txt"), files.EncodeText(name)));
    EXPECT_EQ(directory.Read("again.txt"), directory.Read("list.txt"));
}

}  // namespace
}  // namespace kivu::hosts
