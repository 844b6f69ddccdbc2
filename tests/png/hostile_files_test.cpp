#include <gtest/gtest.h>
#include <random>

#include "allocation_meter.h"
#include "png/generator/bit_writer.h"
#include "png/generator/opened.h"
#include "png/generator/recording_target.h"
#include "png/load_png.h"

namespace kivu::png {
namespace {

using testing::AllocationMeter;
using testing::Append;
using testing::BitWriter;
using testing::Bytes;
using testing::MakeChunk;
using testing::PngRecipe;
using testing::RecordingTarget;

// What a file did to the reader.
struct Opened {
    RecordingTarget target;
    std::int32_t errorNumber = 0;
    int messages = 0;
    std::string lastMessage;
    std::uint32_t width = 0;
    std::uint32_t height = 0;
};

void OpenInto(Opened& opened, const Bytes& file) {
    LoadPNG reader({[&](std::string_view text) {
                        ++opened.messages;
                        opened.lastMessage = text;
                    },
                    {}});
    reader.PicBox(&opened.target);
    reader.OpenBytes(testing::BufferOf(file));
    opened.errorNumber = reader.ErrorNumber();
    opened.width = reader.Width();
    opened.height = reader.Height();
}

// Whatever the file is: a whole opaque picture of the header's size, or an untouched control.
void ExpectWholeOrNothing(const Bytes& file) {
    Opened opened;
    OpenInto(opened, file);
    EXPECT_LE(opened.messages, 1);
    EXPECT_EQ(opened.target.WasTouched(), opened.target.painted.has_value());
    if (!opened.target.painted) return;
    const Picture& picture = *opened.target.painted;
    EXPECT_EQ(opened.errorNumber, 0);
    EXPECT_EQ(static_cast<std::uint32_t>(picture.Width()), opened.width);
    EXPECT_EQ(static_cast<std::uint32_t>(picture.Height()), opened.height);
    for (int y = 0; y < picture.Height(); ++y) {
        for (const Pixel pixel : picture.Row(y)) {
            ASSERT_EQ(pixel >> 24, 255U);
        }
    }
}

Bytes FileOf(std::uint32_t width, std::uint32_t height, std::uint8_t depth, std::uint8_t colorType,
             const Bytes& deflated, std::uint8_t interlacing = 0) {
    Bytes file = testing::pngSignature;
    Append(file, testing::MakeHeader(width, height, depth, colorType, 0, interlacing));
    Bytes data = {0x78, 0x9C};
    Append(data, deflated);
    Append(file, MakeChunk("IDAT", data));
    Append(file, MakeChunk("IEND", {}));
    return file;
}

std::vector<PngRecipe> SmallRecipes() {
    std::vector<PngRecipe> recipes;
    for (const auto& kind : testing::legalKinds) {
        for (const bool interlaced : {false, true}) {
            PngRecipe recipe;
            recipe.colorType = kind.colorType;
            recipe.depth = kind.depth;
            recipe.interlaced = interlaced;
            recipe.width = 11;
            recipe.height = 9;
            recipe.filter = testing::mixedFilters;
            recipe.content = testing::Content::Screenshot;
            recipe.idatBytes = 50;
            recipe.paletteEntries = kind.depth < 8 ? std::size_t{1} << kind.depth : 20;
            recipe.ancillary = interlaced;
            if (kind.colorType < 4) recipe.trns = SomeTransparency(recipe);
            recipe.bkgd = SomeBackground(recipe);
            recipes.push_back(recipe);
        }
    }
    return recipes;
}

TEST(HostileFiles, CutAtEveryByteIsWholeOrNothing) {
    for (const PngRecipe& recipe : SmallRecipes()) {
        const Bytes file = WritePng(recipe);
        for (std::size_t size = 0; size < file.size(); ++size) {
            ExpectWholeOrNothing({file.begin(), file.begin() + static_cast<std::ptrdiff_t>(size)});
        }
    }
}

TEST(HostileFiles, ImageDataCutAtEveryByteGiveTheRowsThatWereWhole) {
    PngRecipe recipe;
    recipe.width = 20;
    recipe.height = 30;
    recipe.level = 0;
    const Bytes rows = MakeRows(recipe);
    Opened whole;
    OpenInto(whole, WritePng(recipe));
    // Literals only, so that every byte of the stream shows.
    const Bytes packed = testing::ZlibCompress(rows, 6, 2);
    std::size_t rowsBefore = 0;
    for (std::size_t size = 2; size < packed.size(); size += 7) {
        Opened cut;
        OpenInto(cut,
                 FileOf(20, 30, 8, 0,
                        {packed.begin() + 2, packed.begin() + static_cast<std::ptrdiff_t>(size)}));
        ASSERT_TRUE(cut.target.painted);
        std::size_t sameRows = 0;
        while (sameRows < 30 &&
               std::ranges::equal(cut.target.painted->Row(static_cast<int>(sameRows)),
                                  whole.target.painted->Row(static_cast<int>(sameRows)))) {
            ++sameRows;
        }
        EXPECT_GE(sameRows, rowsBefore);
        rowsBefore = sameRows;
    }
    EXPECT_GE(rowsBefore, 29U);
}

TEST(HostileFiles, FlippedBitsAreWholeOrNothing) {
    std::mt19937 random(11);
    const std::vector<PngRecipe> recipes = SmallRecipes();
    for (int round = 0; round < 20000; ++round) {
        Bytes file = WritePng(recipes[random() % recipes.size()]);
        for (std::size_t flips = random() % 6 + 1; flips-- > 0;) {
            // The size stays, so that no round takes long; other tests change it.
            std::size_t at = random() % file.size();
            if (at >= 16 && at < 24) at = 24;
            file[at] ^= static_cast<std::uint8_t>(1U << random() % 8);
        }
        ExpectWholeOrNothing(file);
        if (::testing::Test::HasFailure()) break;
    }
}

TEST(HostileFiles, NoiseInTheImageDataIsWhole) {
    std::mt19937 random(12);
    for (int round = 0; round < 3000; ++round) {
        const auto kind = testing::legalKinds[random() % testing::legalKinds.size()];
        Bytes noise(random() % 400);
        std::ranges::generate(noise, [&] { return static_cast<std::uint8_t>(random()); });
        Opened opened;
        OpenInto(opened, FileOf(static_cast<unsigned>(random() % 70 + 1),
                                static_cast<unsigned>(random() % 70 + 1), kind.depth,
                                kind.colorType, noise, static_cast<std::uint8_t>(random() % 3)));
        EXPECT_TRUE(opened.target.painted);
    }
}

TEST(HostileFiles, ImpossibleSizesDrawNothing) {
    constexpr std::uint32_t top = 0x80000000;
    const Bytes data = BitWriter().Stored(true, Bytes(100)).Done();
    const std::vector<std::pair<std::uint32_t, std::uint32_t>> sizes = {
        {0, 0},       {0, 5},          {5, 0},     {top, 1},   {1, top},
        {top, top},   {0xFFFFFFFF, 1}, {32768, 1}, {1, 32768}, {0xFFFFFFFF, 0xFFFFFFFF},
        {8192, 8193}, {32767, 2049}};
    for (const auto& [width, height] : sizes) {
        for (const auto& kind : testing::legalKinds) {
            Opened opened;
            AllocationMeter::Restart();
            OpenInto(opened, FileOf(width, height, kind.depth, kind.colorType, data, 1));
            EXPECT_LT(AllocationMeter::Peak(), 1U << 20);
            EXPECT_FALSE(opened.target.WasTouched()) << width << 'x' << height;
            EXPECT_EQ(opened.errorNumber, 0);
            EXPECT_EQ(opened.width, width);
        }
    }
}

TEST(HostileFiles, LongestSidesAreDrawn) {
    for (const auto& [width, height] : {std::pair{32767U, 1U}, {1U, 32767U}}) {
        Opened opened;
        OpenInto(opened, FileOf(width, height, 1, 0, BitWriter().Stored(true, {0, 0xFF}).Done()));
        ASSERT_TRUE(opened.target.painted);
        EXPECT_EQ(opened.target.painted->Row(0)[0], 0xFFFFFFFF);
    }
}

TEST(HostileFiles, PromisedGigabytesTakeOnePictureOfMemory) {
    // 512 MiB of samples are promised, and a thousand bytes are there.
    const Bytes file = FileOf(8192, 8192, 16, 6, BitWriter().Stored(true, Bytes(1000)).Done());
    Opened opened;
    AllocationMeter::Restart();
    OpenInto(opened, file);
    ASSERT_TRUE(opened.target.painted);
    EXPECT_LT(AllocationMeter::Peak(), (std::size_t{8192} * 8192 * 4) + (2U << 20));
}

TEST(HostileFiles, PackedZerosFillNoMoreThanTheirRatio) {
    const Bytes packed = testing::ZlibCompress(Bytes(4 << 20), 9, 0);
    const Bytes file = FileOf(1000, 1, 8, 6, {packed.begin() + 2, packed.end()});
    Opened opened;
    AllocationMeter::Restart();
    OpenInto(opened, file);
    EXPECT_TRUE(opened.target.painted);
    EXPECT_LT(AllocationMeter::Peak(), 1U << 20);
}

TEST(HostileFiles, ManyEmptyBlocksEnd) {
    BitWriter writer;
    for (int i = 0; i < 100000; ++i) {
        writer.BlockHead(false, 1).StaticSymbol(256);
    }
    Opened opened;
    OpenInto(opened, FileOf(2, 2, 8, 0, writer.Done()));
    EXPECT_TRUE(opened.target.painted);
    EXPECT_EQ(opened.messages, 0);
}

TEST(HostileFiles, LiteralsWithoutEndAreReadToTheirEnd) {
    BitWriter writer;
    writer.BlockHead(true, 1);
    for (int i = 0; i < 300000; ++i) {
        writer.StaticSymbol(1);
    }
    Opened opened;
    OpenInto(opened, FileOf(2, 2, 8, 0, writer.Done()));
    ASSERT_TRUE(opened.target.painted);
    // Filter 1 in both rows.
    EXPECT_EQ(opened.target.painted->Row(1)[1], 0xFF020202);
}

TEST(HostileFiles, FailedTreeShowsItsMessageOnce) {
    BitWriter writer;
    writer.Stored(false, {0, 1, 2}).BlockHead(true, 2).Bits(0, 100);
    Opened opened;
    OpenInto(opened, FileOf(2, 2, 8, 0, writer.Done()));
    EXPECT_EQ(opened.messages, 1);
    EXPECT_EQ(opened.lastMessage, "Error in tree creation (Static)");
    ASSERT_TRUE(opened.target.painted);
    EXPECT_EQ(opened.target.painted->Row(0)[1], 0xFF020202);
    EXPECT_EQ(opened.target.painted->Row(1)[1], 0xFF000000);
}

TEST(HostileFiles, MessageIsShownAgainForTheNextFile) {
    BitWriter writer;
    writer.BlockHead(true, 2).Bits(0, 100);
    const Bytes file = FileOf(2, 2, 8, 0, writer.Done());
    int messages = 0;
    LoadPNG reader({[&](std::string_view) { ++messages; }, {}});
    reader.OpenBytes(testing::BufferOf(file));
    reader.OpenBytes(testing::BufferOf(file));
    EXPECT_EQ(messages, 2);
}

TEST(HostileFiles, ImageDataOfOneByteGiveZeros) {
    for (const std::size_t size : {1U, 2U}) {
        Bytes file = testing::pngSignature;
        Append(file, testing::MakeHeader(2, 1, 8, 0, 0, 0));
        Append(file, MakeChunk("IDAT", Bytes(size, 0x78)));
        Append(file, MakeChunk("IEND", {}));
        Opened opened;
        OpenInto(opened, file);
        EXPECT_EQ(opened.errorNumber, 0);
        ASSERT_TRUE(opened.target.painted);
        EXPECT_EQ(opened.target.painted->Row(0)[1], 0xFF000000);
    }
}

TEST(HostileFiles, LackOfMemoryDrawsNothingAndIsTold) {
    const Bytes file = FileOf(1000, 1000, 8, 6, BitWriter().Stored(true, Bytes(1000)).Done());
    RecordingTarget target;
    LoadPNG reader;
    reader.PicBox(&target);
    ByteBuffer bytes = testing::BufferOf(file);
    AllocationMeter::Limit(3000000);
    const std::error_code error = reader.OpenBytes(std::move(bytes));
    AllocationMeter::Limit(0);
    EXPECT_EQ(error, std::errc::not_enough_memory);
    EXPECT_FALSE(target.WasTouched());
    EXPECT_FALSE(reader.OpenBytes(testing::BufferOf(file)));
    EXPECT_TRUE(target.painted);
}

TEST(HostileFiles, HugeTablesTakeNoMemory) {
    for (const std::uint8_t colorType : {std::uint8_t{2}, std::uint8_t{3}}) {
        Bytes file = testing::pngSignature;
        Append(file, testing::MakeHeader(1, 1, 8, colorType, 0, 0));
        Bytes table(8U << 20, 0x70);
        table[0] = 0x10;
        for (const char* name : {"PLTE", "tRNS", "bKGD"}) {
            Append(file, MakeChunk(name, table));
        }
        Append(file, MakeChunk("IDAT", testing::ZlibCompress(Bytes(4, 0), 6, 0)));
        Append(file, MakeChunk("IEND", {}));
        ByteBuffer bytes = testing::BufferOf(file);
        RecordingTarget target;
        LoadPNG reader;
        reader.PicBox(&target);
        AllocationMeter::Restart();
        EXPECT_FALSE(reader.OpenBytes(std::move(bytes)));
        EXPECT_LT(AllocationMeter::Peak(), 1U << 20);
        ASSERT_TRUE(target.painted);
        // The entries that count do so, and a background of that length is none.
        EXPECT_TRUE(reader.HaveTransparence());
        EXPECT_TRUE(reader.HasBKGDChunk());
        EXPECT_EQ(reader.BkgdColor(), 0U);
        const unsigned blended = colorType == 3 ? 0xFF010707 : 0xFF000000;
        EXPECT_EQ(target.painted->Row(0)[0], blended) << int{colorType};
    }
}

TEST(HostileFiles, RepeatedTextEndsAtItsCap) {
    // Each empty text repeats sixteen mebibytes; the first of them is the last that costs any work.
    Bytes file = testing::pngSignature;
    Append(file, MakeChunk("pHYs", Bytes((16U << 20) - 1, 0xE4)));
    for (int i = 0; i < 20000; ++i) {
        Append(file, MakeChunk("tEXt", {}));
    }
    Append(file, MakeChunk("IEND", {}));
    LoadPNG reader;
    reader.OpenBytes(testing::BufferOf(file));
    EXPECT_EQ(reader.ErrorNumber(), 4);
    EXPECT_LE(reader.Text().size(), 16U << 20);
    EXPECT_GT(reader.Text().size(), (16U << 20) - 4);
}

TEST(HostileFiles, ManyChunksNeedNoMemoryOfTheirOwn) {
    Bytes file = testing::pngSignature;
    Append(file, testing::MakeHeader(2, 2, 8, 0, 0, 0));
    for (int i = 0; i < 100000; ++i) {
        Append(file, MakeChunk("IDAT", {}));
    }
    Append(file, MakeChunk("IDAT", testing::ZlibCompress(Bytes(6, 0), 6, 0)));
    Append(file, MakeChunk("IEND", {}));
    Opened opened;
    AllocationMeter::Restart();
    OpenInto(opened, file);
    EXPECT_TRUE(opened.target.painted);
    EXPECT_LT(AllocationMeter::Peak(), file.size() + (1U << 20));
}

}  // namespace
}  // namespace kivu::png
