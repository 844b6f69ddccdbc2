#include <gtest/gtest.h>

#include "png/generator/opened.h"
#include "png/generator/recording_target.h"
#include "png/load_png.h"

namespace kivu::png {
namespace {

using testing::Append;
using testing::Bytes;
using testing::BytesOf;
using testing::MakeChunk;
using testing::MakeHeader;
using testing::PngRecipe;
using testing::RecordingTarget;

Bytes operator+(Bytes left, const Bytes& right) {
    Append(left, right);
    return left;
}

Bytes Text(std::string_view text) {
    return BytesOf(text);
}

Bytes ImageData(const PngRecipe& recipe) {
    return MakeChunk("IDAT", testing::ZlibCompress(MakeRows(recipe), 6, 0));
}

PngRecipe Small(std::uint8_t colorType, std::uint8_t depth) {
    PngRecipe recipe;
    recipe.width = 4;
    recipe.height = 3;
    recipe.colorType = colorType;
    recipe.depth = depth;
    recipe.paletteEntries = 2;
    return recipe;
}

// A small picture with more chunks behind its header.
Bytes FileWith(const Bytes& chunks, std::uint8_t colorType = 0, std::uint8_t depth = 8) {
    const PngRecipe recipe = Small(colorType, depth);
    return testing::pngSignature + MakeHeader(4, 3, depth, colorType, 0, 0) + chunks +
           ImageData(recipe) + MakeChunk("IEND", {});
}

class Chunks : public ::testing::Test {
 protected:
    void Open(const Bytes& file) {
        reader.PicBox(&target);
        reader.OpenBytes(testing::BufferOf(file));
    }
    bool Drawn() const { return target.painted.has_value(); }

    RecordingTarget target;
    LoadPNG reader;
};

TEST_F(Chunks, HeaderIsReadAsStored) {
    Open(FileWith({}));
    EXPECT_EQ(reader.Width(), 4U);
    EXPECT_EQ(reader.Height(), 3U);
    EXPECT_EQ(reader.Bitdepht(), 8);
    EXPECT_EQ(reader.ColorType(), 0);
    EXPECT_EQ(reader.Compression(), 0);
    EXPECT_EQ(reader.Filter(), 0);
    EXPECT_EQ(reader.Interlacing(), 0);
    EXPECT_EQ(reader.ErrorNumber(), 0);
    EXPECT_TRUE(Drawn());
}

TEST_F(Chunks, WithoutSignatureIsErrorOne) {
    Bytes file = FileWith({});
    file[1] = 'p';
    Open(file);
    EXPECT_EQ(reader.ErrorNumber(), 1);
    Open({});
    EXPECT_EQ(reader.ErrorNumber(), 1);
    Open({137, 'P', 'N', 'G'});
    EXPECT_EQ(reader.ErrorNumber(), 1);
    EXPECT_FALSE(target.WasTouched());
}

TEST_F(Chunks, SignatureAloneIsErrorThree) {
    Open(testing::pngSignature);
    EXPECT_EQ(reader.ErrorNumber(), 3);
    EXPECT_FALSE(target.WasTouched());
}

TEST_F(Chunks, ChunkBeyondTheFileIsErrorThreeAndKeepsWhatWasRead) {
    Bytes file =
        testing::pngSignature + MakeHeader(4, 3, 8, 0, 0, 0) + MakeChunk("tEXt", Text("Title"));
    for (const Bytes& length : {Bytes{0, 0, 0, 9}, Bytes{0x7F, 0xFF, 0xFF, 0xFF},
                                Bytes{0x80, 0, 0, 0}, Bytes{0xFF, 0xFF, 0xFF, 0xFF}}) {
        LoadPNG other;
        other.PicBox(&target);
        other.OpenBytes(testing::BufferOf(file + length + Text("IDAT1234CRC!")));
        EXPECT_EQ(other.ErrorNumber(), 3);
        EXPECT_EQ(other.Width(), 4U);
        EXPECT_EQ(other.Text(), std::string("Title\0", 6));
    }
    EXPECT_FALSE(target.WasTouched());
}

TEST_F(Chunks, CheckSumsAreNeverCompared) {
    Bytes file = FileWith(MakeChunk("gAMA", {0, 0, 0xB1, 0x8F}));
    RecordingTarget other;
    LoadPNG right;
    right.PicBox(&other);
    right.OpenBytes(testing::BufferOf(file));
    // Of the header, the gamma and the end.
    file[8 + 8 + 13] ^= 0xFF;
    file[8 + 25 + 8 + 4 + 1] ^= 0xFF;
    file.back() ^= 0xFF;
    Open(file);
    EXPECT_EQ(reader.ErrorNumber(), 0);
    ASSERT_TRUE(Drawn());
    for (int y = 0; y < 3; ++y) {
        EXPECT_TRUE(std::ranges::equal(target.painted->Row(y), other.painted->Row(y)));
    }
}

TEST_F(Chunks, EndWithoutImageDataIsErrorFour) {
    Open(testing::pngSignature + MakeHeader(4, 3, 8, 0, 0, 0) + MakeChunk("IDAT", {}) +
         MakeChunk("IEND", {}));
    EXPECT_EQ(reader.ErrorNumber(), 4);
    EXPECT_FALSE(target.WasTouched());
}

TEST_F(Chunks, WithoutEndNothingIsDrawn) {
    Bytes file = FileWith({});
    file.resize(file.size() - 12);
    Open(file);
    EXPECT_EQ(reader.ErrorNumber(), 3);
    EXPECT_FALSE(target.WasTouched());
}

TEST_F(Chunks, CutAnywhereBeforeTheNameOfTheEndIsErrorThree) {
    const Bytes file = FileWith(MakeChunk("tEXt", Text("a")) + MakeChunk("tIME", Bytes(7)));
    for (std::size_t size = 8; size <= file.size(); ++size) {
        RecordingTarget cutTarget;
        LoadPNG cut;
        cut.PicBox(&cutTarget);
        cut.OpenBytes(testing::BufferOf({file.begin(), file.begin() + static_cast<long>(size)}));
        const bool whole = size >= file.size() - 4;
        EXPECT_EQ(cut.ErrorNumber(), whole ? 0 : 3) << size;
        EXPECT_EQ(cutTarget.WasTouched(), whole) << size;
    }
}

TEST_F(Chunks, ShortHeaderIsIgnoredAndMissingOneDrawsNothing) {
    const PngRecipe recipe = Small(0, 8);
    Open(testing::pngSignature + MakeChunk("IHDR", Bytes(12, 1)) + ImageData(recipe) +
         MakeChunk("IEND", {}));
    EXPECT_EQ(reader.ErrorNumber(), 0);
    EXPECT_EQ(reader.Width(), 0U);
    EXPECT_FALSE(target.WasTouched());
}

TEST_F(Chunks, MissingHeaderDrawsNothingAfterAnotherFileToo) {
    Open(FileWith({}));
    EXPECT_TRUE(Drawn());
    target.calls.clear();
    Open(testing::pngSignature + ImageData(Small(0, 8)) + MakeChunk("IEND", {}));
    EXPECT_FALSE(target.WasTouched());
}

TEST_F(Chunks, SecondHeaderOverwritesTheFirst) {
    Open(testing::pngSignature + MakeHeader(99, 99, 16, 6, 0, 1) + MakeHeader(4, 3, 8, 0, 0, 0) +
         ImageData(Small(0, 8)) + MakeChunk("IEND", {}));
    EXPECT_EQ(reader.Width(), 4U);
    ASSERT_TRUE(Drawn());
    EXPECT_EQ(target.painted->Height(), 3);
}

TEST_F(Chunks, OrderIsNotChecked) {
    const PngRecipe recipe = Small(3, 1);
    Open(testing::pngSignature + ImageData(recipe) + MakeChunk("PLTE", {10, 20, 30, 40, 50, 60}) +
         MakeHeader(4, 3, 1, 3, 0, 0) + MakeChunk("IEND", {}));
    ASSERT_TRUE(Drawn());
    for (const Pixel pixel : target.painted->Row(0)) {
        EXPECT_TRUE(pixel == 0xFF0A141E || pixel == 0xFF28323C);
    }
}

TEST_F(Chunks, UnknownOnesAndBytesBehindTheEndArePassedOver) {
    Bytes chunks;
    for (const char* name : {"cHRM", "oFFs", "pCaL", "sCAL", "hIST", "pHYs", "sBIT", "gIFg", "gIFx",
                             "cTXt", "idat", "quak", "\xFF\x01?!"}) {
        chunks = chunks + MakeChunk(name, Bytes(5, 1));
    }
    Open(FileWith(chunks) + Text("more"));
    EXPECT_EQ(reader.ErrorNumber(), 0);
    EXPECT_TRUE(Drawn());
    EXPECT_EQ(reader.Text(), "");
}

TEST_F(Chunks, TextsAreJoinedWithAZeroBehindEach) {
    Open(FileWith(MakeChunk("tEXt", Text(std::string_view("Title\0A", 7))) +
                  MakeChunk("tEXt", Text(std::string_view("Author\0B", 8)))));
    EXPECT_EQ(reader.Text(), std::string("Title\0A\0Author\0B\0", 17));
}

TEST_F(Chunks, EmptyTextRepeatsThePayloadBeforeIt) {
    Open(FileWith(MakeChunk("pHYs", Text("abc")) + MakeChunk("cHRM", {}) + MakeChunk("tEXt", {})));
    EXPECT_EQ(reader.Text(), std::string("abc\0", 4));
}

TEST_F(Chunks, EmptyTextBehindJoinedImageDataRepeatsTheLastPiece) {
    Open(testing::pngSignature + MakeHeader(4, 3, 8, 0, 0, 0) + MakeChunk("IDAT", Text("xx")) +
         MakeChunk("pHYs", Bytes(9, 'p')) + MakeChunk("IDAT", Text("data")) +
         MakeChunk("tEXt", {}) + MakeChunk("IEND", {}));
    EXPECT_EQ(reader.Text(), std::string("data\0", 5));
}

TEST_F(Chunks, EightBitTextIsWidened) {
    Open(FileWith(MakeChunk("tEXt", {'K', 0xF6, 'n', 'i', 'g', 0x80})));
    EXPECT_EQ(reader.Text(), std::string("K\xC3\xB6nig\xE2\x82\xAC\0", 10));
}

TEST_F(Chunks, TheLaunchersCodePageWidensText) {
    LoadPNG other({{}, [](std::string_view bytes) { return "<" + std::string(bytes) + ">"; }});
    other.OpenBytes(testing::BufferOf(FileWith(MakeChunk("tEXt", Text("x")))));
    EXPECT_EQ(other.Text(), std::string("<x>\0", 4));
}

TEST_F(Chunks, CompressedTextStaysCompressed) {
    const Bytes payload = Text(std::string_view("Key\0\0\x78\x9C?rest\0x", 14));
    Open(FileWith(MakeChunk("zTXt", payload)));
    EXPECT_EQ(reader.zText(), std::string("Key\0rest\0x\0", 11));
}

TEST_F(Chunks, CompressedTextWithoutZeroIsAllKeyword) {
    Open(FileWith(MakeChunk("zTXt", Text("Keyword")) + MakeChunk("zTXt", Text({"K\0\0x", 4}))));
    EXPECT_EQ(reader.zText(), std::string("Keyword\0\0K\0\0", 12));
}

TEST_F(Chunks, TextsAreCapped) {
    const Bytes large = MakeChunk("tEXt", Bytes(9 << 20, 'x'));
    const Bytes wide = MakeChunk("zTXt", Bytes(9 << 20, 0xE4));
    Open(FileWith(large + large + wide + wide));
    EXPECT_EQ(reader.Text().size(), std::size_t{16} << 20);
    EXPECT_EQ(reader.zText().size(), std::size_t{16} << 20);
    EXPECT_TRUE(Drawn());
}

TEST_F(Chunks, TimeIsWrittenWithDayFirst) {
    Open(FileWith(MakeChunk("tIME", {7, 0xEA, 3, 9, 8, 5, 59})));
    EXPECT_EQ(reader.ModiTime(), "09.03.2026 08:05:59");
}

TEST_F(Chunks, YearStandsAsItIs) {
    Open(FileWith(MakeChunk("tIME", {0, 7, 12, 31, 23, 0, 0})));
    EXPECT_EQ(reader.ModiTime(), "31.12.7 23:00:00");
}

TEST_F(Chunks, NumbersOfTheTimeHaveAtLeastTwoDigits) {
    Open(FileWith(MakeChunk("tIME", {0xFF, 0xFF, 255, 100, 0, 99, 10})));
    EXPECT_EQ(reader.ModiTime(), "100.255.65535 00:99:10");
}

TEST_F(Chunks, ShortTimeAndGammaAreIgnored) {
    Open(FileWith(MakeChunk("tIME", Bytes(6)) + MakeChunk("gAMA", Bytes(3, 1))));
    EXPECT_EQ(reader.ModiTime(), "");
    EXPECT_EQ(reader.gama(), 0.0);
}

TEST_F(Chunks, GammaIsAFraction) {
    Open(FileWith(MakeChunk("gAMA", {0, 0, 0xB1, 0x8F})));
    EXPECT_DOUBLE_EQ(reader.gama(), 0.45455);
}

TEST_F(Chunks, TransparencyAndAlphaAreTold) {
    Open(FileWith({}));
    EXPECT_FALSE(reader.HaveTransparence());
    EXPECT_FALSE(reader.HaveAlpha());
    Open(FileWith(MakeChunk("tRNS", {0, 1})));
    EXPECT_TRUE(reader.HaveTransparence());
    Open(FileWith({}, 4, 8));
    EXPECT_FALSE(reader.HaveTransparence());
    EXPECT_TRUE(reader.HaveAlpha());
    Open(FileWith({}, 6, 16));
    EXPECT_TRUE(reader.HaveAlpha());
    Open(FileWith({}));
    EXPECT_FALSE(reader.HaveAlpha());
}

struct BackgroundCase {
    std::uint8_t colorType;
    std::uint8_t depth;
    Bytes payload;
    std::uint32_t color;
};

TEST_F(Chunks, BackgroundColorFollowsTheKindOfPicture) {
    const std::vector<BackgroundCase> cases = {
        {3, 8, {1}, 0x060504},
        {3, 8, {2}, 0},
        {3, 8, {0, 1}, 0},
        {2, 8, {0, 1, 0, 2, 0, 3}, 0x030201},
        {2, 8, {1, 0, 0, 2, 0, 3}, 0x0302FF},
        {2, 16, {0xFF, 0xFF, 0x80, 0x80, 0, 0x80}, 0x0080FF},
        {2, 16, {0, 0x81, 0, 0x80, 0xFE, 0x80}, 0xFE0001},
        {6, 8, {0, 9, 0, 8, 0, 7}, 0x070809},
        {2, 8, {0, 1}, 0},
        {0, 1, {0, 1}, 0xFFFFFF},
        {0, 1, {0, 2}, 0},
        {0, 2, {0, 2}, 0xAAAAAA},
        {0, 4, {0, 7}, 0x777777},
        {0, 4, {0, 16}, 0},
        {0, 8, {0, 200}, 0xC8C8C8},
        {0, 8, {1, 0}, 0},
        {0, 16, {0xC8, 0xFF}, 0xC8C8C8},
        {4, 16, {0xFF, 0xFF}, 0xFFFFFF},
        {0, 8, {5}, 0},
        {0, 3, {0, 1}, 0},
        {2, 0, {0, 1, 0, 1, 0, 1}, 0},
        {5, 8, {1}, 0},
    };
    for (const BackgroundCase& one : cases) {
        reader.OpenBytes(testing::BufferOf(testing::pngSignature +
                                           MakeHeader(4, 3, one.depth, one.colorType, 0, 0) +
                                           MakeChunk("PLTE", {1, 2, 3, 4, 5, 6}) +
                                           MakeChunk("bKGD", one.payload) + MakeChunk("IEND", {})));
        EXPECT_EQ(reader.BkgdColor(), one.color)
            << int{one.colorType} << ' ' << int{one.depth} << ' ' << int{one.payload[0]};
        EXPECT_TRUE(reader.HasBKGDChunk());
    }
    reader.OpenBytes(testing::BufferOf(FileWith({})));
    EXPECT_FALSE(reader.HasBKGDChunk());
}

TEST_F(Chunks, BackgroundColorIsClearedByTheNextFile) {
    Open(FileWith(MakeChunk("bKGD", {0, 200})));
    EXPECT_EQ(reader.BkgdColor(), 0xC8C8C8U);
    Open(FileWith({}));
    EXPECT_EQ(reader.BkgdColor(), 0U);
}

}  // namespace
}  // namespace kivu::png
