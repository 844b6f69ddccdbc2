#include "core/stored_names.h"

#include <gtest/gtest.h>

#include "testing/memory_file_system.h"

namespace kivu::core {
namespace {

using Texts = std::vector<std::string>;

const testing::MemoryFileSystem posix{'/'};
const testing::MemoryFileSystem windows{'\\'};

TEST(StoredNames, FirstRowOfExactlyTheTextIsMeant) {
    EXPECT_EQ(FindStoredName(posix, {"a", "A", "A"}, {"A"}), 1);
    EXPECT_EQ(FindStoredName(posix, {" A", "A"}, {"A"}), 1);
    EXPECT_EQ(FindStoredName(posix, {"A"}, {"B"}), -1);
    EXPECT_EQ(FindStoredName(posix, {"", " "}, {""}), -1);
    EXPECT_EQ(FindStoredName(posix, {}, {"A"}), -1);
    EXPECT_EQ(FindStoredName(posix, {"A"}, {}), -1);
}

TEST(StoredNames, EarlierTextsGoFirst) {
    EXPECT_EQ(FindStoredName(posix, {"A", " A"}, {" A", "A"}), 1);
    EXPECT_EQ(FindStoredName(posix, {"A", "B"}, {" A", "A"}), 0);
}

TEST(StoredNames, BlanksAndQuotesThatAProfileTakesAwayAreNoHindrance) {
    EXPECT_EQ(FindStoredName(posix, {"x", " Amiga ", "y"}, {"Amiga"}), 1);
    EXPECT_EQ(FindStoredName(posix, {"x", "'Amiga'"}, {"Amiga"}), 1);
    EXPECT_EQ(FindStoredName(posix, {"\"\tAmiga\""}, {"Amiga"}), -1);
}

TEST(StoredNames, BytesThatAreNoTextAreFoundAsTheyAreDecoded) {
    EXPECT_EQ(FindStoredName(posix, {"Gr\xfcn"}, {"Grün"}), 0);
    EXPECT_EQ(FindStoredName(posix, {"Gr\xfcn", "Grün"}, {"Grün"}), 1);
    EXPECT_EQ(FindStoredName(posix, {"Gr\xfcn", "Grün"}, {"Gr\xfcn", "Grün"}), 0);
}

TEST(StoredNames, OfTwoThatMightBeMeantNoneIs) {
    EXPECT_EQ(FindStoredName(posix, {" A", "A "}, {"A"}), -1);
    // Neither is in the code page.
    EXPECT_EQ(FindStoredName(windows, {"日本", "中国"}, {"??"}), -1);
    EXPECT_EQ(FindStoredName(windows, {"日本", "x"}, {"??"}), 0);
}

}  // namespace
}  // namespace kivu::core
