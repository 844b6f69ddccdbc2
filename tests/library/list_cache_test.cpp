#include "library/list_cache.h"

#include <gtest/gtest.h>

namespace kivu::library {
namespace {

TEST(ListCache, HoldsAPathAndANameForEachImage) {
    const CacheEntries entries("/a.adf\r\nA\r\n/b.adf\r\nB\r\n");
    ASSERT_EQ(entries.size(), 2u);
    EXPECT_EQ(entries[0].path, "/a.adf");
    EXPECT_EQ(entries[0].name, "A");
    EXPECT_EQ(entries[1].path, "/b.adf");
    EXPECT_EQ(entries[1].name, "B");
}

TEST(ListCache, TakesLinesEndedByLfAlone) {
    const CacheEntries entries("/a.adf\nA\n/b.adf\nB");
    ASSERT_EQ(entries.size(), 2u);
    EXPECT_EQ(entries[1].name, "B");
}

TEST(ListCache, GivesAnOddLastLineAPathWithoutAName) {
    const CacheEntries entries("/a.adf\r\nA\r\n/b.adf\r\n");
    ASSERT_EQ(entries.size(), 2u);
    EXPECT_TRUE(entries[0].hasName);
    EXPECT_FALSE(entries[1].hasName);
    EXPECT_EQ(entries[1].path, "/b.adf");
}

TEST(ListCache, CutInTheMiddleOfALineKeepsWhatIsThere) {
    const CacheEntries entries("/a.adf\r\nA\r\n/b.ad");
    ASSERT_EQ(entries.size(), 2u);
    EXPECT_EQ(entries[1].path, "/b.ad");
    EXPECT_FALSE(entries[1].hasName);
}

TEST(ListCache, KeepsEmptyLinesInTheirPlace) {
    const CacheEntries entries("\r\n\r\n/b.adf\r\n\r\n");
    ASSERT_EQ(entries.size(), 2u);
    EXPECT_EQ(entries[0].path, "");
    EXPECT_EQ(entries[1].path, "/b.adf");
    EXPECT_EQ(entries[1].name, "");
}

TEST(ListCache, KeepsNulAndBytesThatAreNoUtf8) {
    const std::string bytes("/a\0b\xfc.adf\r\nA\xfc\r\n", 15);
    const CacheEntries entries(bytes);
    ASSERT_EQ(entries.size(), 1u);
    EXPECT_EQ(entries[0].path, std::string_view("/a\0b\xfc.adf", 9));
    EXPECT_EQ(entries[0].name, "A\xfc");
}

TEST(ListCache, GivesItsPairsInTheirOrder) {
    const CacheEntries entries("/a\r\nA\r\r\n\n\r\n/c");
    std::vector<std::string> lines;
    for (const CacheEntry entry : entries) {
        lines.emplace_back(entry.path);
        if (entry.hasName) lines.emplace_back(entry.name);
    }
    EXPECT_EQ(lines, (std::vector<std::string>{"/a", "A\r", "", "", "/c"}));
    EXPECT_EQ(entries.front().name, "A\r");
    EXPECT_EQ(entries.back().path, "/c");
    EXPECT_FALSE(entries.back().hasName);
}

TEST(ListCache, IsEmptyForAnEmptyFile) {
    EXPECT_TRUE(CacheEntries("").empty());
}

TEST(ListCache, ReadsBackWhatItWrites) {
    std::string cache;
    AppendCacheEntry(cache, "/roms/ä (1990).adf", "ä (1990)");
    EXPECT_EQ(cache, "/roms/ä (1990).adf\r\nä (1990)\r\n");
    const CacheEntries entries(cache);
    ASSERT_EQ(entries.size(), 1u);
    EXPECT_EQ(entries[0].path, "/roms/ä (1990).adf");
}

}  // namespace
}  // namespace kivu::library
