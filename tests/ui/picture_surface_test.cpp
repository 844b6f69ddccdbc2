#include "ui/picture_surface.h"

#include <gtest/gtest.h>

namespace kivu::ui {
namespace {

constexpr forms::Color back = 0x332211;  // 0x112233 as a pixel
constexpr png::Pixel backPixel = 0xff112233;

png::Picture Counted(int width, int height) {
    png::Picture picture(width, height);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x)
            picture.Row(y)[static_cast<std::size_t>(x)] =
                png::opaqueBlack | static_cast<png::Pixel>(y * width + x);
    }
    return picture;
}

std::vector<std::uint32_t> Low(const std::vector<std::uint32_t>& pixels) {
    std::vector<std::uint32_t> low;
    for (const std::uint32_t pixel : pixels)
        low.push_back(pixel == backPixel ? 99 : pixel & 0xff);
    return low;
}

TEST(PictureSurface, TakesAPictureOfItsSizeAsItIs) {
    PictureSurface surface(back);
    EXPECT_FALSE(surface.Kept());
    surface.Clear();
    surface.SetOuterSize({45, 30});
    EXPECT_EQ(surface.InnerSize().width, 45);
    surface.Paint(Counted(3, 2), 0, 0, {3, 2});
    EXPECT_FALSE(surface.Kept());
    surface.KeepDrawing();
    ASSERT_TRUE(surface.Kept());
    EXPECT_EQ(surface.Kept()->width, 3);
    EXPECT_EQ(surface.Kept()->height, 2);
    EXPECT_TRUE(surface.Kept()->opaque);
    EXPECT_EQ(Low(surface.Kept()->pixels), (std::vector<std::uint32_t>{0, 1, 2, 3, 4, 5}));
}

TEST(PictureSurface, CutsAndStretchesWhatIsPaintedElsewhere) {
    PictureSurface surface(back);
    surface.SetOuterSize({60, 45});
    surface.Paint(Counted(2, 1), 1, -1, {4, 3});
    surface.KeepDrawing();
    EXPECT_EQ(Low(surface.Kept()->pixels),
              (std::vector<std::uint32_t>{99, 0, 0, 1, 99, 0, 0, 1, 99, 99, 99, 99}));
}

TEST(PictureSurface, IsInItsBackColourWhereNothingIsPainted) {
    PictureSurface surface(back);
    surface.SetOuterSize({30, 15});
    std::vector<png::Pixel> row(4);
    surface.ReadPixels(-1, 0, row);
    EXPECT_EQ(row, std::vector<png::Pixel>(4, backPixel));
    surface.Paint(Counted(2, 1), 0, 0, {2, 1});
    surface.ReadPixels(-1, 0, row);
    EXPECT_EQ(row, (std::vector<png::Pixel>{backPixel, 0xff000000, 0xff000001, backPixel}));
    surface.ReadPixels(0, 1, row);
    EXPECT_EQ(row, std::vector<png::Pixel>(4, backPixel));
    surface.SetOuterSize({45, 30});
    surface.KeepDrawing();
    EXPECT_EQ(Low(surface.Kept()->pixels), (std::vector<std::uint32_t>{0, 1, 99, 99, 99, 99}));
    surface.Clear();
    surface.KeepDrawing();
    EXPECT_EQ(surface.Kept()->pixels, std::vector<std::uint32_t>(6, backPixel));
}

std::shared_ptr<const forms::Bitmap> Grey(int width, int height) {
    auto bitmap = std::make_shared<forms::Bitmap>();
    bitmap->width = width;
    bitmap->height = height;
    for (int i = 0; i < width * height; ++i)
        bitmap->pixels.push_back(0xff000000 | static_cast<std::uint32_t>(i * 0x010101));
    return bitmap;
}

TEST(ShrunkPicture, IsTheMeanOfSquares) {
    const auto shrunk = Shrunk(Grey(5, 4), 3);
    EXPECT_EQ(shrunk->width, 2);
    EXPECT_EQ(shrunk->height, 2);
    EXPECT_TRUE(shrunk->opaque);
    // (0 + 1 + 5 + 6) / 4 and so on.
    EXPECT_EQ(Low(shrunk->pixels), (std::vector<std::uint32_t>{3, 5, 13, 15}));
}

TEST(ShrunkPicture, StaysWhatItIsIfItIsSmallOrALine) {
    const auto small = Grey(3, 3), line = Grey(9, 1);
    EXPECT_EQ(Shrunk(small, 3), small);
    EXPECT_EQ(Shrunk(line, 3), line);
    EXPECT_FALSE(Shrunk(nullptr, 3));
}

}  // namespace
}  // namespace kivu::ui
