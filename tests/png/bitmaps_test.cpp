#include <gtest/gtest.h>

#include "png/generator/recording_target.h"
#include "png/load_png.h"

namespace kivu::png {
namespace {

using Bytes = std::vector<std::uint8_t>;
using Pixels = std::vector<Pixel>;
using testing::RecordingTarget;

constexpr Pixel black = 0xFF000000;
constexpr Pixel white = 0xFFFFFFFF;

class Bitmaps : public ::testing::Test {
 protected:
    Pixels Row(int y) {
        if (!target.painted) reader.DrawBitmap(1, 1, &target, true, 0, 0, false);
        const auto row = target.painted.value().Row(y);
        return {row.begin(), row.end()};
    }

    RecordingTarget target;
    LoadPNG reader;
};

TEST_F(Bitmaps, GreyTablesReachFromBlackToWhite) {
    EXPECT_EQ(reader.InitColorTable_Grey(1), (Bytes{0, 0, 0, 255, 255, 255}));
    EXPECT_EQ(reader.InitColorTable_Grey(2),
              (Bytes{0, 0, 0, 85, 85, 85, 170, 170, 170, 255, 255, 255}));
    const Bytes sixteen = reader.InitColorTable_Grey(4);
    const Bytes all = reader.InitColorTable_Grey(8);
    ASSERT_EQ(sixteen.size(), 48U);
    ASSERT_EQ(all.size(), 768U);
    for (unsigned i = 0; i < 256; ++i) {
        EXPECT_EQ(sixteen[i / 16 * 3 + 1], i / 16 * 17);
        EXPECT_EQ(all[i * 3 + 2], i);
    }
    for (const int bits : {0, 3, 16, -1}) {
        EXPECT_TRUE(reader.InitColorTable_Grey(bits).empty());
    }
}

TEST_F(Bitmaps, TwoColorTableHasTwoModes) {
    const Bytes data = {0x40, 0, 0, 0};
    reader.InitColorTable_1(0);
    reader.CreateBitmap_1(data, 2, 1, true);
    EXPECT_EQ(Row(0), (Pixels{white, black}));
    target.painted.reset();
    reader.InitColorTable_1(1);
    reader.CreateBitmap_1(data, 2, 1, true);
    EXPECT_EQ(Row(0), (Pixels{black, white}));
}

TEST_F(Bitmaps, TwoColorPaletteNeedsTwoColors) {
    const Bytes data = {0x40, 0, 0, 0};
    reader.InitColorTable_1Palette(Bytes{1, 2, 3, 4, 5, 6});
    reader.CreateBitmap_1(data, 2, 1, true);
    EXPECT_EQ(Row(0), (Pixels{0xFF010203, 0xFF040506}));
    target.painted.reset();
    reader.InitColorTable_1Palette(Bytes(9, 1));
    reader.CreateBitmap_1(data, 2, 1, true);
    EXPECT_EQ(Row(0), (Pixels{black, white}));
    target.painted.reset();
    reader.InitColorTable_1Palette(Bytes{1, 2, 3});
    reader.CreateBitmap_1(data, 2, 1, true);
    EXPECT_EQ(Row(0), (Pixels{0xFF010203, black}));
}

TEST_F(Bitmaps, TablesOfSixteenAndOfAllColorsLeaveTheRestBlack) {
    Bytes colors(20 * 3, 9);
    colors.push_back(9);
    reader.InitColorTable_4(colors);
    reader.CreateBitmap_8(Bytes{15, 16, 0, 0}, 2, 1, true);
    EXPECT_EQ(Row(0), (Pixels{0xFF090909, black}));
    target.painted.reset();
    reader.InitColorTable_8(colors);
    reader.CreateBitmap_8(Bytes{19, 20, 0, 0}, 2, 1, true);
    EXPECT_EQ(Row(0), (Pixels{0xFF090909, black}));
    reader.InitColorTable_8(Bytes(2000, 1));
}

TEST_F(Bitmaps, RowsArePaddedAndLieBottomUpUnlessFlipped) {
    reader.InitColorTable_Grey(8);
    const Bytes data = {1, 2, 3, 4, 5, 99, 99, 99, 6, 7, 8, 9, 10, 99, 99, 99};
    reader.CreateBitmap_8(data, 5, 2, false);
    EXPECT_EQ(Row(0)[0], 0xFF060606);
    EXPECT_EQ(Row(1)[4], 0xFF050505);
    target.painted.reset();
    reader.CreateBitmap_8(data, 5, 2, true);
    EXPECT_EQ(Row(0)[0], 0xFF010101);
    EXPECT_EQ(Row(1)[4], 0xFF0A0A0A);
}

TEST_F(Bitmaps, PackedPixelsHaveTheFirstInTheHighBits) {
    reader.InitColorTable_Grey(8);
    reader.CreateBitmap_2(Bytes{0x1B, 0x40, 0, 0}, 5, 1, true);
    EXPECT_EQ(Row(0), (Pixels{black, 0xFF010101, 0xFF020202, 0xFF030303, 0xFF010101}));
    target.painted.reset();
    reader.CreateBitmap_4(Bytes{0x1F, 0xA0, 0, 0}, 3, 1, true);
    EXPECT_EQ(Row(0), (Pixels{0xFF010101, 0xFF0F0F0F, 0xFF0A0A0A}));
}

TEST_F(Bitmaps, EntriesBeyondTheUsedColorsAreBlack) {
    reader.InitColorTable_Grey(8);
    reader.CreateBitmap_8(Bytes{1, 2, 3, 4}, 4, 1, true, 3);
    EXPECT_EQ(Row(0), (Pixels{0xFF010101, 0xFF020202, black, black}));
}

TEST_F(Bitmaps, DeepPixelsHaveBlueFirst) {
    reader.CreateBitmap_24(Bytes{1, 2, 3, 4, 5, 6, 0, 0}, 2, 1, true);
    EXPECT_EQ(Row(0), (Pixels{0xFF030201, 0xFF060504}));
    target.painted.reset();
    reader.CreateBitmap_24(Bytes{1, 2, 3, 4, 5, 6, 7, 0}, 2, 1, true, 0, 32);
    EXPECT_EQ(Row(0), (Pixels{0xFF030201, 0xFF070605}));
    target.painted.reset();
    reader.CreateBitmap_16(Bytes{0x00, 0x7C, 0xE1, 0x03}, 2, 1, true);
    EXPECT_EQ(Row(0), (Pixels{0xFFFF0000, 0xFF00FF08}));
}

TEST_F(Bitmaps, BytesThatAreMissingAreZeros) {
    reader.InitColorTable_Grey(8);
    reader.CreateBitmap_8(Bytes{1, 2, 3, 4, 5}, 3, 3, true);
    EXPECT_EQ(Row(1), (Pixels{0xFF050505, black, black}));
    EXPECT_EQ(Row(2), (Pixels{black, black, black}));
}

TEST_F(Bitmaps, ImpossibleSizesMakeNoBitmap) {
    const Bytes data(16);
    const int most = 1 << 30;
    for (const auto& [width, height] :
         {std::pair{0, 1}, {1, 0}, {-1, 1}, {1, -1}, {most, most}, {32768, 1}, {20000, 20000}}) {
        reader.CreateBitmap_8(data, width, height, true);
        reader.CreateBitmap_24(data, width, height, false);
        reader.DrawBitmap(1, 1, &target, true, 0, 0, false);
        EXPECT_FALSE(target.painted.has_value());
    }
}

}  // namespace
}  // namespace kivu::png
