#include <algorithm>
#include <gtest/gtest.h>

#include "png/generator/opened.h"
#include "png/generator/recording_target.h"
#include "png/load_png.h"

namespace kivu::png {
namespace {

using testing::Append;
using testing::Bytes;
using testing::MakeChunk;
using testing::PngRecipe;
using testing::RecordingTarget;

// A file whose unfiltered rows are given.
Bytes FileOf(std::uint32_t width, std::uint32_t height, std::uint8_t depth, std::uint8_t colorType,
             const Bytes& rows, const Bytes& chunks = {}) {
    Bytes file = testing::pngSignature;
    Append(file, testing::MakeHeader(width, height, depth, colorType, 0, 0));
    Append(file, chunks);
    Append(file, MakeChunk("IDAT", testing::ZlibCompress(rows, 6, 0)));
    Append(file, MakeChunk("IEND", {}));
    return file;
}

class Drawing : public ::testing::Test {
 protected:
    void SetUp() override { reader.PicBox(&target); }
    void Open(const Bytes& file) { reader.OpenBytes(testing::BufferOf(file)); }
    std::vector<Pixel> Row(int y) const {
        const auto row = target.painted.value().Row(y);
        return {row.begin(), row.end()};
    }
    using Pixels = std::vector<Pixel>;

    RecordingTarget target;
    LoadPNG reader;
};

TEST_F(Drawing, ControlIsClearedTakesTheSizeAndKeepsTheDrawing) {
    Open(FileOf(2, 1, 8, 0, {0, 10, 20}));
    EXPECT_EQ(target.calls, (std::vector<std::string>{"clear", "size 30x15", "paint", "keep"}));
    EXPECT_EQ(target.paintedX, 0);
    EXPECT_EQ(target.paintedY, 0);
    EXPECT_EQ(target.paintedSize.width, 2);
    EXPECT_EQ(target.paintedSize.height, 1);
    EXPECT_EQ(Row(0), (Pixels{0xFF0A0A0A, 0xFF141414}));
}

TEST_F(Drawing, BorderIsAddedAroundThePicture) {
    target.border = 2;
    Open(FileOf(2, 1, 8, 0, {0, 10, 20}));
    EXPECT_EQ(target.calls,
              (std::vector<std::string>{"clear", "size 30x15", "size 90x75", "paint", "keep"}));
    EXPECT_EQ(target.InnerSize().width, 30);
    EXPECT_EQ(target.InnerSize().height, 15);
    EXPECT_EQ(target.paintedSize.width, 2);
    EXPECT_EQ(target.paintedSize.height, 1);
}

TEST_F(Drawing, PlacedPictureLeavesTheControlItsSize) {
    reader.SetToBkgrnd(true, 7, -3);
    Open(FileOf(2, 1, 8, 0, {0, 10, 20}));
    EXPECT_EQ(target.calls, (std::vector<std::string>{"clear", "paint", "keep"}));
    EXPECT_EQ(target.paintedX, 7);
    EXPECT_EQ(target.paintedY, -3);
    EXPECT_EQ(target.paintedSize.width, 2);
    EXPECT_EQ(target.outerSize.width, 300);
}

TEST_F(Drawing, PositionCountsOnlyWhilePlacing) {
    reader.SetToBkgrnd(false, 7, 5);
    Open(FileOf(2, 1, 8, 0, {0, 10, 20}));
    EXPECT_EQ(target.paintedX, 0);
    EXPECT_EQ(target.paintedY, 0);
}

TEST_F(Drawing, WithoutControlNothingHappens) {
    reader.PicBox(nullptr);
    Open(FileOf(2, 1, 8, 0, {0, 10, 20}));
    EXPECT_EQ(reader.ErrorNumber(), 0);
    EXPECT_FALSE(target.WasTouched());
}

TEST_F(Drawing, UnscaledBitmapIsStretchedToTheControl) {
    const Bytes data = {1, 2, 3, 0};
    reader.CreateBitmap_24(data, 1, 1, false);
    reader.DrawBitmap(1, 1, &target, false, 4, 5, false);
    EXPECT_EQ(target.calls, (std::vector<std::string>{"clear", "paint", "keep"}));
    EXPECT_EQ(target.paintedX, 4);
    EXPECT_EQ(target.paintedY, 5);
    EXPECT_EQ(target.paintedSize.width, 20);
    EXPECT_EQ(target.paintedSize.height, 10);
}

TEST_F(Drawing, BitmapIsDrawnOnce) {
    const Bytes data = {1, 2, 3, 0};
    reader.CreateBitmap_24(data, 1, 1, false);
    reader.DrawBitmap(1, 1, &target, true, 0, 0, false);
    target.calls.clear();
    reader.DrawBitmap(1, 1, &target, true, 0, 0, false);
    EXPECT_EQ(target.calls, (std::vector<std::string>{"clear", "size 15x15", "keep"}));
}

TEST_F(Drawing, HalfTransparentOverBlackRoundsUp) {
    Open(FileOf(1, 1, 8, 6, {0, 200, 200, 200, 128}));
    EXPECT_EQ(Row(0), (Pixels{0xFF646464}));
}

TEST_F(Drawing, FullAlphaIsTheImageAndNoneTheBackground) {
    reader.SetOwnBkgndColor(0x030201, true);
    Open(FileOf(3, 1, 8, 6, {0, 7, 8, 9, 255, 7, 8, 9, 0, 100, 0, 255, 1}));
    // (100 + 254 + 255) / 256, (0 + 508 + 255) / 256, (255 + 762 + 255) / 256
    EXPECT_EQ(Row(0), (Pixels{0xFF070809, 0xFF010203, 0xFF020204}));
}

TEST_F(Drawing, EveryBlendFollowsTheRule) {
    Bytes row = {0};
    for (unsigned alpha = 0; alpha < 256; ++alpha) {
        Append(row, {200, 13, static_cast<std::uint8_t>(alpha), static_cast<std::uint8_t>(alpha)});
    }
    for (const std::uint32_t behind : {0U, 77U, 255U}) {
        reader.SetOwnBkgndColor(behind * 0x010101, true);
        Open(FileOf(256, 1, 8, 6, row));
        for (unsigned alpha = 0; alpha < 256; ++alpha) {
            const auto mix = [&](unsigned image) {
                return (image * alpha + behind * (255 - alpha) + 255) / 256;
            };
            EXPECT_EQ(Row(0)[alpha], 0xFF000000 | mix(200) << 16 | mix(13) << 8 | mix(alpha));
        }
    }
}

TEST_F(Drawing, OwnColorGoesBeforeTheFilesColor) {
    const Bytes file = FileOf(1, 1, 8, 4, {0, 9, 0}, MakeChunk("bKGD", {0, 50}));
    Open(file);
    EXPECT_EQ(Row(0), (Pixels{0xFF323232}));
    reader.SetOwnBkgndColor(0x0000FF, true);
    Open(file);
    EXPECT_EQ(Row(0), (Pixels{0xFFFF0000}));
    reader.SetOwnBkgndColor(0x0000FF, false);
    Open(file);
    EXPECT_EQ(Row(0), (Pixels{0xFF323232}));
}

TEST_F(Drawing, WithoutAnyBackgroundItIsBlack) {
    Open(FileOf(1, 1, 8, 4, {0, 9, 0}));
    EXPECT_EQ(Row(0), (Pixels{0xFF000000}));
}

TEST_F(Drawing, WithoutBlendingAlphaIsIgnoredAndNoBackgroundRead) {
    RecordingTarget behind;
    reader.BackgroundPicture(&behind);
    reader.SetAlpha(false);
    Open(FileOf(2, 1, 8, 6, {0, 1, 2, 3, 0, 4, 5, 6, 77}));
    EXPECT_EQ(Row(0), (Pixels{0xFF010203, 0xFF040506}));
    EXPECT_EQ(behind.reads, 0);
    EXPECT_FALSE(behind.WasTouched());
    Open(FileOf(1, 1, 16, 4, {0, 9, 1, 0, 0}));
    EXPECT_EQ(Row(0), (Pixels{0xFF090909}));
}

Picture Checkered() {
    Picture picture(4, 4);
    for (int y = 0; y < 4; ++y) {
        for (int x = 0; x < 4; ++x) {
            picture.Row(y)[static_cast<std::size_t>(x)] =
                0xFF000000 | static_cast<Pixel>(x << 8 | y);
        }
    }
    return picture;
}

TEST_F(Drawing, BackgroundPictureIsReadUprightFromThePlace) {
    RecordingTarget behind;
    behind.surface = Checkered();
    behind.backColor = 0xAA;
    reader.BackgroundPicture(&behind);
    reader.SetToBkgrnd(true, 2, 1);
    const Bytes clear(1 + 3 * 4, 0);
    Bytes rows = clear;
    Append(rows, clear);
    Open(FileOf(3, 2, 8, 6, rows));
    EXPECT_EQ(Row(0), (Pixels{0xFF000201, 0xFF000301, 0xFFAA0000}));
    EXPECT_EQ(Row(1), (Pixels{0xFF000202, 0xFF000302, 0xFFAA0000}));
}

TEST_F(Drawing, BackgroundPictureIsReadFromTheCornerWhereNotPlaced) {
    RecordingTarget behind;
    behind.surface = Checkered();
    reader.BackgroundPicture(&behind);
    reader.SetToBkgrnd(false, 2, 1);
    Open(FileOf(2, 1, 8, 6, Bytes(9, 0)));
    EXPECT_EQ(Row(0), (Pixels{0xFF000000, 0xFF000100}));
}

TEST_F(Drawing, SmallBackgroundPictureGrowsBeyondTheImage) {
    RecordingTarget behind({40, 1000});
    reader.BackgroundPicture(&behind);
    Open(FileOf(3, 2, 8, 6, Bytes(26, 0)));
    EXPECT_EQ(behind.calls, (std::vector<std::string>{"size 145x1000"}));
    RecordingTarget flat({1000, 29});
    reader.BackgroundPicture(&flat);
    Open(FileOf(3, 2, 8, 6, Bytes(26, 0)));
    EXPECT_EQ(flat.calls, (std::vector<std::string>{"size 1000x130"}));
    RecordingTarget enough({45, 30});
    reader.BackgroundPicture(&enough);
    Open(FileOf(3, 2, 8, 6, Bytes(26, 0)));
    EXPECT_FALSE(enough.WasTouched());
}

TEST_F(Drawing, TargetAsBackgroundShowsItsBackColorAndNoGhost) {
    target.surface = Checkered();
    target.backColor = 0x332211;
    reader.BackgroundPicture(&target);
    reader.SetOwnBkgndColor(0x999999, true);
    Open(FileOf(2, 1, 8, 6, Bytes(9, 0)));
    EXPECT_EQ(Row(0), (Pixels{0xFF112233, 0xFF112233}));
    EXPECT_EQ(target.reads, 0);
}

TEST_F(Drawing, OpaquePictureReadsNoBackground) {
    RecordingTarget behind;
    reader.BackgroundPicture(&behind);
    Open(FileOf(1, 1, 8, 2, {0, 1, 2, 3}));
    EXPECT_EQ(behind.reads, 0);
    EXPECT_FALSE(behind.WasTouched());
}

TEST_F(Drawing, PaletteEntriesBeyondTransparencyAreOpaque) {
    Bytes chunks = MakeChunk("PLTE", {10, 10, 10, 20, 20, 20, 30, 30, 30});
    Append(chunks, MakeChunk("tRNS", {0, 128}));
    Open(FileOf(4, 1, 2, 3, {0, 0x1B}, chunks));
    // The fourth index is beyond the palette.
    EXPECT_EQ(Row(0), (Pixels{0xFF000000, 0xFF0A0A0A, 0xFF1E1E1E, 0xFF000000}));
}

TEST_F(Drawing, TransparencyIsIgnoredWhereItIsNotWanted) {
    Bytes chunks = MakeChunk("PLTE", {10, 10, 10, 20, 20, 20});
    Append(chunks, MakeChunk("tRNS", {0, 0}));
    reader.SetTrans(false);
    Open(FileOf(2, 1, 8, 3, {0, 0, 1}, chunks));
    EXPECT_EQ(Row(0), (Pixels{0xFF0A0A0A, 0xFF141414}));
    EXPECT_TRUE(reader.HaveTransparence());
}

TEST_F(Drawing, EmptyTransparencyLeavesAllOpaque) {
    const Bytes none = MakeChunk("tRNS", {});
    Bytes palette = MakeChunk("PLTE", {10, 10, 10});
    Append(palette, none);
    reader.SetOwnBkgndColor(0xFFFFFF, true);
    Open(FileOf(1, 1, 8, 3, {0, 0}, palette));
    EXPECT_EQ(Row(0), (Pixels{0xFF0A0A0A}));
    Open(FileOf(1, 1, 8, 0, {0, 0}, none));
    EXPECT_EQ(Row(0), (Pixels{0xFF000000}));
    Open(FileOf(1, 1, 8, 2, {0, 0, 0, 0}, none));
    EXPECT_EQ(Row(0), (Pixels{0xFF000000}));
}

TEST_F(Drawing, KeyOutsideTheDepthOrTooShortMatchesNothing) {
    reader.SetOwnBkgndColor(0xFFFFFF, true);
    Open(FileOf(2, 1, 4, 0, {0, 0x01}, MakeChunk("tRNS", {0, 0x10})));
    EXPECT_EQ(Row(0), (Pixels{0xFF000000, 0xFF111111}));
    Open(FileOf(1, 1, 8, 0, {0, 5}, MakeChunk("tRNS", {1, 5})));
    EXPECT_EQ(Row(0), (Pixels{0xFF050505}));
    Open(FileOf(1, 1, 8, 0, {0, 5}, MakeChunk("tRNS", {5})));
    EXPECT_EQ(Row(0), (Pixels{0xFF050505}));
    Open(FileOf(1, 1, 8, 2, {0, 1, 2, 3}, MakeChunk("tRNS", {0, 1, 0, 2, 1, 3})));
    EXPECT_EQ(Row(0), (Pixels{0xFF010203}));
    Open(FileOf(1, 1, 8, 2, {0, 1, 2, 3}, MakeChunk("tRNS", {0, 1, 0, 2, 0})));
    EXPECT_EQ(Row(0), (Pixels{0xFF010203}));
}

TEST_F(Drawing, DeepSamplesAreComparedWhole) {
    reader.SetOwnBkgndColor(0xFFFFFF, true);
    Open(FileOf(2, 1, 16, 0, {0, 5, 6, 5, 7}, MakeChunk("tRNS", {5, 7})));
    EXPECT_EQ(Row(0), (Pixels{0xFF050505, 0xFFFFFFFF}));
    Open(FileOf(2, 1, 16, 2, {0, 1, 1, 2, 2, 3, 3, 1, 1, 2, 2, 3, 4},
                MakeChunk("tRNS", {1, 1, 2, 2, 3, 4})));
    EXPECT_EQ(Row(0), (Pixels{0xFF010203, 0xFFFFFFFF}));
}

TEST_F(Drawing, PaletteOfOneColorHasBlackAsItsSecond) {
    Open(FileOf(2, 1, 1, 3, {0, 0x40}, MakeChunk("PLTE", {1, 2, 3})));
    EXPECT_EQ(Row(0), (Pixels{0xFF010203, 0xFF000000}));
}

TEST_F(Drawing, TwoColorPictureWithAnyOtherPaletteIsBlackAndWhite) {
    Open(FileOf(2, 1, 1, 3, {0, 0x40}, MakeChunk("PLTE", Bytes(9, 50))));
    EXPECT_EQ(Row(0), (Pixels{0xFF000000, 0xFFFFFFFF}));
}

TEST_F(Drawing, IndexBeyondThePaletteIsBlack) {
    const Bytes palette = MakeChunk("PLTE", {1, 2, 3, 4, 5, 6});
    Open(FileOf(2, 1, 8, 3, {0, 1, 255}, palette));
    EXPECT_EQ(Row(0), (Pixels{0xFF040506, 0xFF000000}));
    Open(FileOf(2, 1, 4, 3, {0, 0x1F}, palette));
    EXPECT_EQ(Row(0), (Pixels{0xFF040506, 0xFF000000}));
    Open(FileOf(2, 1, 2, 3, {0, 0x70}, palette));
    EXPECT_EQ(Row(0), (Pixels{0xFF040506, 0xFF000000}));
}

TEST_F(Drawing, DeepGreyKeepsTheHighBytes) {
    Open(FileOf(2, 1, 16, 0, {0, 0x12, 0xFF, 0xFF, 0x00}));
    EXPECT_EQ(Row(0), (Pixels{0xFF121212, 0xFFFFFFFF}));
}

TEST_F(Drawing, GammaIsNeverApplied) {
    Open(FileOf(1, 1, 8, 0, {0, 100}, MakeChunk("gAMA", {0, 0, 0x11, 0x11})));
    EXPECT_EQ(Row(0), (Pixels{0xFF646464}));
}

TEST_F(Drawing, UnknownKindsDrawNothing) {
    for (unsigned colorType = 0; colorType < 9; ++colorType) {
        for (unsigned depth = 0; depth < 40; ++depth) {
            const bool legal = std::ranges::any_of(testing::legalKinds, [&](const auto& kind) {
                return kind.colorType == colorType && kind.depth == depth;
            });
            RecordingTarget other;
            reader.PicBox(&other);
            Open(FileOf(1, 1, static_cast<std::uint8_t>(depth),
                        static_cast<std::uint8_t>(colorType), Bytes(9, 0)));
            EXPECT_EQ(other.painted.has_value(), legal) << colorType << ' ' << depth;
            EXPECT_EQ(other.WasTouched(), legal) << colorType << ' ' << depth;
            EXPECT_EQ(reader.ErrorNumber(), 0);
        }
    }
}

TEST_F(Drawing, OtherCompressionTakesTheBytesAsTheyAre) {
    Bytes file = testing::pngSignature;
    Append(file, testing::MakeHeader(2, 2, 8, 0, 9, 0));
    Append(file, MakeChunk("IDAT", {77, 77, 0, 1, 2, 2, 1, 1, 99}));
    Append(file, MakeChunk("IEND", {}));
    Open(file);
    EXPECT_EQ(Row(0), (Pixels{0xFF010101, 0xFF020202}));
    EXPECT_EQ(Row(1), (Pixels{0xFF020202, 0xFF030303}));
}

TEST_F(Drawing, OtherInterlacingTakesTheRowsAsTheyLie) {
    Bytes file = testing::pngSignature;
    Append(file, testing::MakeHeader(2, 2, 8, 0, 0, 2));
    Append(file, MakeChunk("IDAT", testing::ZlibCompress({1, 2, 3, 4, 5, 6}, 6, 0)));
    Append(file, MakeChunk("IEND", {}));
    Open(file);
    EXPECT_EQ(Row(0), (Pixels{0xFF010101, 0xFF020202}));
    EXPECT_EQ(Row(1), (Pixels{0xFF030303, 0xFF040404}));
}

TEST_F(Drawing, FilterBytesAboveFourActAsNone) {
    Open(FileOf(2, 2, 8, 0, {5, 1, 2, 255, 3, 4}));
    EXPECT_EQ(Row(0), (Pixels{0xFF010101, 0xFF020202}));
    EXPECT_EQ(Row(1), (Pixels{0xFF030303, 0xFF040404}));
}

TEST_F(Drawing, ShortStreamGivesTheFullSizeWithZerosBehind) {
    Open(FileOf(2, 4, 8, 0, {0, 8, 9, 2, 1}));
    EXPECT_EQ(target.painted->Height(), 4);
    EXPECT_EQ(Row(0), (Pixels{0xFF080808, 0xFF090909}));
    // The byte that the second row lacks is 0 before its filter is undone.
    EXPECT_EQ(Row(1), (Pixels{0xFF090909, 0xFF090909}));
    EXPECT_EQ(Row(2), (Pixels{0xFF000000, 0xFF000000}));
    EXPECT_EQ(Row(3), (Pixels{0xFF000000, 0xFF000000}));
}

TEST_F(Drawing, ShortInterlacedStreamGivesZerosInTheLaterPasses) {
    Bytes file = testing::pngSignature;
    Append(file, testing::MakeHeader(3, 3, 8, 0, 0, 1));
    Append(file, MakeChunk("IDAT", testing::ZlibCompress({0, 7, 0, 6}, 6, 0)));
    Append(file, MakeChunk("IEND", {}));
    Open(file);
    EXPECT_EQ(Row(0), (Pixels{0xFF070707, 0xFF000000, 0xFF060606}));
    EXPECT_EQ(Row(2), (Pixels{0xFF000000, 0xFF000000, 0xFF000000}));
}

}  // namespace
}  // namespace kivu::png
