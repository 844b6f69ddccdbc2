#include "png/header.h"

#include <gtest/gtest.h>

namespace kivu::png {
namespace {

ImageHeader Header(std::uint32_t width, std::uint32_t height, std::uint8_t depth,
                   std::uint8_t colorType, std::uint8_t interlacing) {
    return {width, height, depth, colorType, 0, 0, interlacing};
}

TEST(Header, ExpectedBytesArePlainRowsWithTheirFilterBytes) {
    EXPECT_EQ(ExpectedBytes(Header(10, 3, 8, 2, 0)), 93U);
    EXPECT_EQ(ExpectedBytes(Header(9, 3, 1, 0, 0)), 9U);
    EXPECT_EQ(ExpectedBytes(Header(3, 2, 16, 6, 0)), 50U);
    EXPECT_EQ(ExpectedBytes(Header(32, 32, 8, 2, 1)), 3136U);
}

TEST(Header, SomeInterlacedPicturesNeedMoreThanTheirRows) {
    // Rows of one byte would take 600; the passes have 25, 25, 25, 50, 50, 100 and 100 rows.
    EXPECT_EQ(ExpectedBytes(Header(8, 200, 1, 0, 1)), 750U);
    EXPECT_EQ(ExpectedBytes(Header(10, 3, 8, 2, 1)), 97U);
}

TEST(Header, ExpectedBytesHoldTheLargestPicture) {
    EXPECT_EQ(ExpectedBytes(Header(32767, 2048, 16, 6, 0)), 2048ULL * (32767 * 8 + 1));
}

TEST(Header, PassesCountTheirColumnsAndRows) {
    for (std::uint32_t size = 1; size <= 40; ++size) {
        std::uint32_t pixels = 0;
        for (const Pass& pass : adam7Passes) {
            std::uint32_t columns = 0;
            for (std::uint32_t x = pass.startX; x < size; x += pass.stepX) {
                ++columns;
            }
            EXPECT_EQ(pass.Columns(size), columns);
            pixels += pass.Columns(size) * pass.Rows(17);
        }
        EXPECT_EQ(pixels, size * 17);
    }
}

TEST(Header, OnePixelWideLeavesPassesEmpty) {
    EXPECT_EQ(adam7Passes[1].Columns(1), 0U);
    EXPECT_EQ(adam7Passes[3].Columns(1), 0U);
    EXPECT_EQ(adam7Passes[5].Columns(1), 0U);
    EXPECT_EQ(adam7Passes[6].Columns(1), 1U);
}

TEST(Header, LimitsAreOnSidesAndPixels) {
    EXPECT_TRUE(IsWithinLimits(32767, 2048));
    EXPECT_TRUE(IsWithinLimits(8192, 8192));
    EXPECT_FALSE(IsWithinLimits(32768, 1));
    EXPECT_FALSE(IsWithinLimits(8192, 8193));
    EXPECT_FALSE(IsWithinLimits(0xFFFFFFFF, 0xFFFFFFFF));
    EXPECT_FALSE(IsWithinLimits(0, 1));
}

}  // namespace
}  // namespace kivu::png
