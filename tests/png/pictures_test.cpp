#include <gtest/gtest.h>
#include <random>
#include <sstream>
#include <stdexcept>

#include "png/generator/libpng_reader.h"
#include "png/generator/opened.h"
#include "png/generator/recording_target.h"
#include "png/load_png.h"

namespace kivu::png {
namespace {

using testing::Bytes;
using testing::Content;
using testing::PngRecipe;
using testing::ReadWithLibpng;
using testing::RecordingTarget;
using testing::WritePng;

unsigned Channel(Pixel pixel, int shift) {
    return pixel >> shift & 0xFF;
}

Pixel Over(Pixel image, Pixel background) {
    const unsigned alpha = image >> 24;
    Pixel result = 0xFF000000;
    for (const int shift : {0, 8, 16}) {
        const unsigned mixed =
            (Channel(image, shift) * alpha + Channel(background, shift) * (255 - alpha) + 255) /
            256;
        result |= mixed << shift;
    }
    return result;
}

// The pixels that the reader must show: libpng's, over the backdrop.
Picture Expected(const Bytes& file, const RecordingTarget* behind, Pixel color) {
    std::optional<Picture> picture = ReadWithLibpng(file);
    if (!picture) throw std::runtime_error("libpng refuses a generated file");
    for (int y = 0; y < picture->Height(); ++y) {
        std::vector<Pixel> row(static_cast<std::size_t>(picture->Width()), color);
        if (behind != nullptr) behind->ReadPixels(0, y, row);
        for (std::size_t x = 0; x < row.size(); ++x) {
            picture->Row(y)[x] = Over(picture->Row(y)[x], row[x]);
        }
    }
    return std::move(*picture);
}

::testing::AssertionResult SamePicture(const Picture& actual, const Picture& expected) {
    if (actual.Width() != expected.Width() || actual.Height() != expected.Height()) {
        return ::testing::AssertionFailure() << "the size differs";
    }
    for (int y = 0; y < actual.Height(); ++y) {
        const auto left = actual.Row(y);
        const auto right = expected.Row(y);
        const auto at = std::mismatch(left.begin(), left.end(), right.begin());
        if (at.first != left.end()) {
            return ::testing::AssertionFailure()
                   << "at " << at.first - left.begin() << ", " << y << ": " << std::hex << *at.first
                   << " instead of " << *at.second;
        }
    }
    return ::testing::AssertionSuccess();
}

std::string Describe(const PngRecipe& r) {
    std::ostringstream out;
    out << ": type " << int{r.colorType} << " depth " << int{r.depth} << ' ' << r.width << 'x'
        << r.height << (r.interlaced ? " interlaced" : "") << " filter " << r.filter << " level "
        << r.level << " strategy " << r.strategy << " IDAT " << r.idatBytes << " palette "
        << r.paletteEntries << (r.trns ? " tRNS" : "") << (r.bkgd ? " bKGD" : "") << " seed "
        << r.seed;
    return out.str();
}

// A surface with something to see through to.
Picture Wallpaper(int width, int height) {
    Picture picture(width, height);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            picture.Row(y)[static_cast<std::size_t>(x)] =
                opaqueBlack | static_cast<Pixel>(x * 7 << 16 | y * 5 << 8 | x * y) % 0x1000000;
        }
    }
    return picture;
}

enum class Behind { OwnColor, FileColor, Picture };

::testing::AssertionResult ReadsLikeLibpng(const PngRecipe& recipe, Behind behind) {
    const Bytes file = WritePng(recipe);
    RecordingTarget target;
    RecordingTarget wallpaper;
    wallpaper.backColor = 0x123456;
    wallpaper.surface = Wallpaper(20, 15);
    LoadPNG reader;
    reader.PicBox(&target);
    Pixel color = 0xFF785634;
    if (behind == Behind::Picture) {
        reader.BackgroundPicture(&wallpaper);
    } else {
        reader.SetOwnBkgndColor(0x345678, behind == Behind::OwnColor);
    }
    reader.OpenBytes(testing::BufferOf(file));
    if (behind == Behind::FileColor) color = PixelOfColor(reader.BkgdColor());
    if (reader.ErrorNumber() != 0 || !target.painted) {
        return ::testing::AssertionFailure() << "nothing drawn" << Describe(recipe);
    }
    const auto same = SamePicture(
        *target.painted, Expected(file, behind == Behind::Picture ? &wallpaper : nullptr, color));
    return same ? same : ::testing::AssertionFailure() << same.message() << Describe(recipe);
}

class EveryKind : public ::testing::TestWithParam<std::tuple<testing::ColorKind, bool>> {
 protected:
    PngRecipe Recipe() const {
        PngRecipe recipe;
        recipe.colorType = std::get<0>(GetParam()).colorType;
        recipe.depth = std::get<0>(GetParam()).depth;
        recipe.interlaced = std::get<1>(GetParam());
        if (recipe.depth < 8) recipe.paletteEntries = std::size_t{1} << recipe.depth;
        return recipe;
    }
    // The parts that a size of 1 to 33 is combined with, drawn by lot.
    PngRecipe Vary(PngRecipe recipe, std::mt19937& random) const {
        recipe.seed = static_cast<std::uint32_t>(random());
        recipe.filter = static_cast<int>(random() % 6);
        recipe.level = static_cast<int>(random() % 10);
        recipe.strategy = static_cast<int>(random() % 5);
        recipe.content = static_cast<Content>(random() % 3);
        recipe.idatBytes = random() % 3 == 0 ? random() % 40 + 1 : 0;
        recipe.ancillary = random() % 4 == 0;
        recipe.paletteEntries = random() % recipe.paletteEntries + 1;
        const bool mayHaveKey = recipe.colorType < 4;
        if (mayHaveKey && random() % 2 == 0) recipe.trns = SomeTransparency(recipe);
        if (random() % 2 == 0) recipe.bkgd = SomeBackground(recipe);
        return recipe;
    }
};

TEST_P(EveryKind, ReadsAllSmallSizesLikeLibpng) {
    std::mt19937 random(7);
    for (std::uint32_t width = 1; width <= 33; ++width) {
        for (std::uint32_t height = 1; height <= 33; ++height) {
            PngRecipe recipe = Recipe();
            recipe.width = width;
            recipe.height = height;
            ASSERT_TRUE(ReadsLikeLibpng(Vary(recipe, random), static_cast<Behind>(random() % 3)));
        }
    }
}

TEST_P(EveryKind, ReadsEveryFilterLikeLibpng) {
    for (int filter = 0; filter <= testing::mixedFilters; ++filter) {
        for (const Content content : {Content::Noise, Content::Photo, Content::Screenshot}) {
            PngRecipe recipe = Recipe();
            recipe.width = 61;
            recipe.height = 47;
            recipe.filter = filter;
            recipe.content = content;
            ASSERT_TRUE(ReadsLikeLibpng(recipe, Behind::OwnColor));
        }
    }
}

TEST_P(EveryKind, ReadsLargeOnesLikeLibpng) {
    for (const auto& [width, height] : {std::pair{701, 523}, {2500, 3}, {3, 2500}, {8, 200}}) {
        PngRecipe recipe = Recipe();
        recipe.width = static_cast<std::uint32_t>(width);
        recipe.height = static_cast<std::uint32_t>(height);
        recipe.filter = testing::mixedFilters;
        recipe.content = Content::Photo;
        recipe.idatBytes = 8192;
        if (recipe.colorType < 4) recipe.trns = SomeTransparency(recipe);
        ASSERT_TRUE(ReadsLikeLibpng(recipe, Behind::Picture));
    }
}

std::string KindName(const ::testing::TestParamInfo<EveryKind::ParamType>& info) {
    const auto& [kind, interlaced] = info.param;
    return "Type" + std::to_string(kind.colorType) + "Depth" + std::to_string(kind.depth) +
           (interlaced ? "Interlaced" : "Plain");
}

INSTANTIATE_TEST_SUITE_P(Pictures, EveryKind,
                         ::testing::Combine(::testing::ValuesIn(testing::legalKinds),
                                            ::testing::Bool()),
                         KindName);

TEST(Pictures, ReadEveryDeflateLevelAndStrategyLikeLibpng) {
    for (int level = 0; level <= 9; ++level) {
        for (int strategy = 0; strategy <= 4; ++strategy) {
            PngRecipe recipe;
            recipe.colorType = 2;
            recipe.width = 160;
            recipe.height = 120;
            recipe.filter = testing::mixedFilters;
            recipe.content = strategy % 2 == 0 ? Content::Photo : Content::Screenshot;
            recipe.level = level;
            recipe.strategy = strategy;
            recipe.idatBytes = 1000;
            ASSERT_TRUE(ReadsLikeLibpng(recipe, Behind::OwnColor));
        }
    }
}

TEST(Pictures, BytesInOneIdatChunkEachAreJoined) {
    PngRecipe recipe;
    recipe.width = recipe.height = 50;
    recipe.idatBytes = 1;
    ASSERT_TRUE(ReadsLikeLibpng(recipe, Behind::OwnColor));
}

}  // namespace
}  // namespace kivu::png
