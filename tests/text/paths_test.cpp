#include "text/paths.h"

#include <gtest/gtest.h>

namespace kivu::text {
namespace {

const PathTest nothingIsADirectory = [](const std::string&) { return false; };

TEST(GetFileNameOnly, GivesTheTextBehindTheLastSeparator) {
    EXPECT_EQ(GetFileNameOnly("C:\\Roms\\a.adf"), "a.adf");
    EXPECT_EQ(GetFileNameOnly("/roms/a.adf"), "a.adf");
    EXPECT_EQ(GetFileNameOnly("roms/a.adf"), "a.adf");
    EXPECT_EQ(GetFileNameOnly("a.adf"), "a.adf");
    EXPECT_EQ(GetFileNameOnly(""), "");
    EXPECT_EQ(GetFileNameOnly("C:\\Roms\\"), "");
}

TEST(GetFileNameOnly, SplitsMixedPathsAtBackslashes) {
    EXPECT_EQ(GetFileNameOnly("C:\\Roms/a.adf"), "Roms/a.adf");
    EXPECT_EQ(GetFileNameOnly("Z:/x\\a"), "a");
}

TEST(GetFileNameOnly, KeepsABackslashInAPosixName) {
    EXPECT_EQ(GetFileNameOnly("/roms/odd\\name.adf"), "odd\\name.adf");
    EXPECT_EQ(GetFileNameOnly("\"/my roms/odd\\name.adf\""), "odd\\name.adf\"");
}

TEST(GetLastPathElement, GivesFileOrDirectory) {
    EXPECT_EQ(GetLastPathElement("C:\\Roms\\a.adf"), "a.adf");
    EXPECT_EQ(GetLastPathElement("C:\\Roms\\Amiga\\"), "Amiga");
    EXPECT_EQ(GetLastPathElement("/roms/amiga/"), "amiga");
    EXPECT_EQ(GetLastPathElement("/roms/odd\\name"), "odd\\name");
    EXPECT_EQ(GetLastPathElement("a.adf"), "a.adf");
    EXPECT_EQ(GetLastPathElement(""), "");
    EXPECT_EQ(GetLastPathElement("/"), "");
}

TEST(GetLastPathElement, GivesTheLetterOfADrive) {
    EXPECT_EQ(GetLastPathElement("C:"), "C");
    EXPECT_EQ(GetLastPathElement("C:\\"), "C");
    EXPECT_EQ(GetLastPathElement("C:\\a"), "a");
}

TEST(GetLastPathElement, PassesOverAnElementThatEndsInAPoint) {
    EXPECT_EQ(GetLastPathElement("C:\\Roms\\."), "Roms");
    EXPECT_EQ(GetLastPathElement("C:\\Roms\\.\\"), "Roms");
    EXPECT_EQ(GetLastPathElement("/roms/.."), "roms");
    EXPECT_EQ(GetLastPathElement("."), "");
}

TEST(GetParentPath, TakesTheLastElementAway) {
    EXPECT_EQ(GetParentPath("C:\\a\\b\\"), "C:\\a\\");
    EXPECT_EQ(GetParentPath("C:\\a\\b"), "C:\\a\\");
    EXPECT_EQ(GetParentPath("C:\\a"), "C:\\");
    EXPECT_EQ(GetParentPath("/a/b/"), "/a/");
    EXPECT_EQ(GetParentPath("/a"), "/");
    EXPECT_EQ(GetParentPath("a"), "");
    EXPECT_EQ(GetParentPath(""), "");
}

TEST(GetParentPath, LeavesARoot) {
    EXPECT_EQ(GetParentPath("C:\\"), "C:\\");
    EXPECT_EQ(GetParentPath("/"), "/");
}

TEST(GetFilePath, GivesTheDirectoryOfAFile) {
    EXPECT_EQ(GetFilePath("C:\\Roms\\a.adf", nothingIsADirectory), "C:\\Roms\\");
    EXPECT_EQ(GetFilePath("/roms/a.adf", nothingIsADirectory), "/roms/");
    EXPECT_EQ(GetFilePath("  C:\\Roms\\a.adf", nothingIsADirectory), "C:\\Roms\\");
    EXPECT_EQ(GetFilePath("C:\\Roms/x/a.adf", nothingIsADirectory), "C:\\");
    EXPECT_EQ(GetFilePath("/roms/odd\\name", nothingIsADirectory), "/roms/");
}

TEST(GetFilePath, GivesNothingForANameWithoutSeparator) {
    EXPECT_EQ(GetFilePath("a.adf", nothingIsADirectory), "");
    EXPECT_EQ(GetFilePath("", nothingIsADirectory), "");
}

TEST(GetFilePath, LeavesAnExistingDirectory) {
    const PathTest isRoms = [](const std::string& path) { return path == "C:\\Roms"; };
    EXPECT_EQ(GetFilePath("C:\\Roms", isRoms), "C:\\Roms");
    EXPECT_EQ(GetFilePath("C:\\Rome", isRoms), "C:\\");
    EXPECT_EQ(GetFilePath("C:\\Roms", nullptr), "C:\\");
}

TEST(AddPathSeparator, AddsThePathsOwnSeparator) {
    EXPECT_EQ(AddPathSeparator("C:\\Roms"), "C:\\Roms\\");
    EXPECT_EQ(AddPathSeparator("C:\\Roms\\"), "C:\\Roms\\");
    EXPECT_EQ(AddPathSeparator("/roms"), "/roms/");
    EXPECT_EQ(AddPathSeparator("/roms/"), "/roms/");
    EXPECT_EQ(AddPathSeparator("/"), "/");
    EXPECT_EQ(AddPathSeparator("C:\\Roms/x"), "C:\\Roms/x\\");
    EXPECT_EQ(AddPathSeparator("C:\\Roms/"), "C:\\Roms/\\");
}

TEST(AddPathSeparator, LeavesAPathWithoutSeparator) {
    EXPECT_EQ(AddPathSeparator("roms"), "roms");
    EXPECT_EQ(AddPathSeparator("C:"), "C:");
    EXPECT_EQ(AddPathSeparator(""), "");
    EXPECT_EQ(AddPathSeparator("\""), "\"");
}

TEST(AddPathSeparator, KeepsAClosingQuoteAtTheEnd) {
    EXPECT_EQ(AddPathSeparator("\"C:\\My Roms\""), "\"C:\\My Roms\\\"");
    EXPECT_EQ(AddPathSeparator("\"C:\\My Roms\\\""), "\"C:\\My Roms\\\"");
    EXPECT_EQ(AddPathSeparator("\"/my roms\""), "\"/my roms/\"");
}

TEST(AddPathSeparator, SeesNoSeparatorInABackslashOfAPosixName) {
    EXPECT_EQ(AddPathSeparator("/roms/odd\\name"), "/roms/odd\\name/");
    EXPECT_EQ(AddPathSeparator("/roms/odd\\"), "/roms/odd\\/");
}

TEST(RemoveQuotes, TakesOneEnclosingPair) {
    EXPECT_EQ(RemoveQuotes("\"C:\\My Roms\""), "C:\\My Roms");
    EXPECT_EQ(RemoveQuotes("  \"a b\"  "), "a b");
    EXPECT_EQ(RemoveQuotes("\"\"a\"\""), "\"a\"");
    EXPECT_EQ(RemoveQuotes("\" a \""), " a ");
    EXPECT_EQ(RemoveQuotes("\"\""), "");
    EXPECT_EQ(RemoveQuotes(" plain "), "plain");
}

TEST(RemoveQuotes, LeavesALoneQuote) {
    EXPECT_EQ(RemoveQuotes("\""), "\"");
    EXPECT_EQ(RemoveQuotes("\"a"), "\"a");
    EXPECT_EQ(RemoveQuotes("a\""), "a\"");
    EXPECT_EQ(RemoveQuotes(""), "");
}

TEST(PreParePath, TakesBlanksAndQuotesAwayAndAddsASeparator) {
    EXPECT_EQ(PreParePath("  \" C:\\My Roms \"  "), "C:\\My Roms\\");
    EXPECT_EQ(PreParePath("C:\\Roms\\"), "C:\\Roms\\");
    EXPECT_EQ(PreParePath("/roms"), "/roms/");
    EXPECT_EQ(PreParePath("/roms/"), "/roms/");
    EXPECT_EQ(PreParePath("C:\\Roms/x"), "C:\\Roms/x/");
    EXPECT_EQ(PreParePath("Roms"), "Roms\\");
}

TEST(QuoteIfNeeded, QuotesATextWithABlank) {
    EXPECT_EQ(QuoteIfNeeded("C:\\My Roms\\a.adf"), "\"C:\\My Roms\\a.adf\"");
    EXPECT_EQ(QuoteIfNeeded("  a b  "), "\"a b\"");
}

TEST(QuoteIfNeeded, LeavesATextWithoutABlankOrWithAQuote) {
    EXPECT_EQ(QuoteIfNeeded("C:\\Roms\\a.adf"), "C:\\Roms\\a.adf");
    EXPECT_EQ(QuoteIfNeeded("  a  "), "a");
    EXPECT_EQ(QuoteIfNeeded("\"a b\""), "\"a b\"");
    EXPECT_EQ(QuoteIfNeeded("a \"b"), "a \"b");
    EXPECT_EQ(QuoteIfNeeded("a\tb"), "a\tb");
    EXPECT_EQ(QuoteIfNeeded("   "), "");
    EXPECT_EQ(QuoteIfNeeded(""), "");
}

}  // namespace
}  // namespace kivu::text
