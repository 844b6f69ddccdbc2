#include "ui/picture_header.h"

#include <gtest/gtest.h>

#include "testing/picture_files.h"

namespace kivu::ui {
namespace {

using namespace kivu::testing;

std::optional<PictureHeader> Header(PictureFormat format, int width, int height) {
    return PictureHeader{format, width, height};
}

const std::vector<std::string>& OneOfEach() {
    static const std::vector<std::string> files{
        PngFile(5, 3, 0xff112233),      JpegHead(5, 3, ExifSegment(1)),
        JpegHead(3, 5, ExifSegment(6)), GifFile(5, 3, {0x112233}),
        BmpFile(5, 3, 0x112233),        IcoHead({PngFile(5, 3, 0xff112233)}, {5}),
        WebpHead("VP8 ", 5, 3),         WebpHead("VP8L", 5, 3),
        WebpHead("VP8X", 5, 3)};
    return files;
}

TEST(PictureHeader, TellsTheSizeOfEveryFormat) {
    EXPECT_EQ(ReadPictureHeader(PngHead(640, 480)), Header(PictureFormat::png, 640, 480));
    EXPECT_EQ(ReadPictureHeader(JpegHead(640, 480)), Header(PictureFormat::jpeg, 640, 480));
    EXPECT_EQ(ReadPictureHeader(GifFile(64, 48, {0})), Header(PictureFormat::gif, 64, 48));
    EXPECT_EQ(ReadPictureHeader(BmpHead(640, 480)), Header(PictureFormat::bmp, 640, 480));
    for (const char* kind : {"VP8 ", "VP8L", "VP8X"})
        EXPECT_EQ(ReadPictureHeader(WebpHead(kind, 640, 480)),
                  Header(PictureFormat::webp, 640, 480))
            << kind;
}

TEST(PictureHeader, IsOfNothingElse) {
    for (const std::string_view bytes :
         {"", "B", "<svg width='5' height='5'/>", "%PDF-1.4", "II*", "/* XPM */", "GIF88a......",
          "\x89PNG\r\n\x1a", "RIFF....WAVEVP8X"})
        EXPECT_FALSE(ReadPictureHeader(bytes)) << bytes;
}

TEST(PictureHeader, KnowsBitmapsFromTheTopAndOldOnes) {
    EXPECT_EQ(ReadPictureHeader(BmpHead(7, static_cast<std::uint32_t>(-9))),
              Header(PictureFormat::bmp, 7, 9));
    const std::string old = "BM" + std::string(8, '\0') + Little(26, 4) + Little(12, 4) +
                            Little(7, 2) + Little(9, 2) + Little(1, 2) + Little(24, 2);
    EXPECT_EQ(ReadPictureHeader(old), Header(PictureFormat::bmp, 7, 9));
    EXPECT_FALSE(ReadPictureHeader(BmpHead(static_cast<std::uint32_t>(-7), 9)));
    EXPECT_FALSE(ReadPictureHeader(BmpHead(7, 0x80000000U)));
}

TEST(PictureHeader, IsOfTheLargestPictureOfAnIcon) {
    const std::string dib = BmpHead(32, 64).substr(14);  // with its mask below
    EXPECT_EQ(ReadPictureHeader(IcoHead({dib, PngHead(256, 256), dib}, {32, 0, 48})),
              Header(PictureFormat::ico, 256, 256));
    EXPECT_EQ(ReadPictureHeader(IcoHead({dib}, {32})), Header(PictureFormat::ico, 32, 32));
    // What lies inside counts, whatever the list says of it.
    EXPECT_FALSE(ReadPictureHeader(IcoHead({PngHead(65500, 65500)}, {16})));
    EXPECT_FALSE(ReadPictureHeader(IcoHead({}, {})));
}

TEST(PictureHeader, TurnsPhotographsUpright) {
    for (std::uint32_t orientation = 0; orientation <= 9; ++orientation) {
        const bool turned = orientation >= 5 && orientation <= 8;
        for (const bool little : {true, false})
            EXPECT_EQ(ReadPictureHeader(JpegHead(640, 480, ExifSegment(orientation, little))),
                      turned ? Header(PictureFormat::jpeg, 480, 640)
                             : Header(PictureFormat::jpeg, 640, 480))
                << orientation << little;
    }
}

TEST(PictureHeader, FindsTheSizeOfAJpegFarBehindItsBeginning) {
    const std::string profile = "\xff\xe2" + Big(65535, 2) + std::string(65533, 'x');
    const std::string file = JpegHead(640, 480, profile + profile);
    EXPECT_EQ(ReadPictureHeader(file), Header(PictureFormat::jpeg, 640, 480));
    EXPECT_FALSE(ReadPictureHeader(std::string_view(file).substr(0, 65536)));
    EXPECT_TRUE(MayTellMore(std::string_view(file).substr(0, 65536)));
    EXPECT_FALSE(MayTellMore(PngHead(1, 1)));
}

TEST(PictureHeader, PassesOverFillBytesAndLoneMarkersOfAJpeg) {
    EXPECT_EQ(ReadPictureHeader(JpegHead(6, 4, "\xff\xff\xff\xd0zz\xff\x01")),
              Header(PictureFormat::jpeg, 6, 4));
}

TEST(PictureHeader, KnowsAJpegInPasses) {
    for (int marker = 0xc0; marker <= 0xcf; ++marker) {
        const auto header = ReadPictureHeader(JpegHead(6, 4, {}, static_cast<char>(marker)));
        if (marker == 0xc4 || marker == 0xc8 || marker == 0xcc) {
            EXPECT_FALSE(header) << marker;
            continue;
        }
        ASSERT_TRUE(header) << marker;
        const bool inPasses = marker == 0xc2 || marker == 0xc6 || marker == 0xca || marker == 0xce;
        EXPECT_EQ(header->progressive, inPasses) << marker;
    }
    EXPECT_FALSE(ReadPictureHeader(PngHead(6, 4))->progressive);
}

TEST(PictureHeader, GivesAJpegUpAtItsPixels) {
    EXPECT_FALSE(ReadPictureHeader("\xff\xd8\xff\xda" + Big(8, 2) + "xxxxxx" + JpegHead(5, 5)));
    EXPECT_FALSE(ReadPictureHeader("\xff\xd8\xff\xe0" + Big(1, 2) + JpegHead(5, 5)));
}

TEST(PictureHeader, TakesTheFirstFrameOfAGifWithoutAScreen) {
    std::string file = GifFile(9, 7, {0});
    file.replace(6, 4, 4, '\0');
    EXPECT_EQ(ReadPictureHeader(file), Header(PictureFormat::gif, 9, 7));
}

TEST(PictureHeader, RefusesSizesThatAreNotToBeHad) {
    for (const auto& [width, height] : std::vector<std::pair<std::uint32_t, std::uint32_t>>{
             {65500, 65500}, {0, 5}, {5, 0}, {32768, 1}, {1, 32768}, {8193, 8192}}) {
        EXPECT_FALSE(ReadPictureHeader(PngHead(width, height))) << width << "x" << height;
        EXPECT_FALSE(ReadPictureHeader(JpegHead(width, height))) << width << "x" << height;
        EXPECT_FALSE(ReadPictureHeader(BmpHead(width, height))) << width << "x" << height;
    }
    EXPECT_FALSE(ReadPictureHeader(PngHead(0xffffffff, 0xffffffff)));
    EXPECT_FALSE(ReadPictureHeader(WebpHead("VP8X", 1 << 24, 1)));
    EXPECT_TRUE(ReadPictureHeader(PngHead(32767, 2048)));
    EXPECT_TRUE(ReadPictureHeader(PngHead(8192, 8192)));
}

TEST(PictureHeader, OfAFileCutAnywhereIsRightOrNone) {
    for (const std::string& file : OneOfEach()) {
        const auto whole = ReadPictureHeader(file);
        ASSERT_TRUE(whole) << file.substr(0, 12);
        EXPECT_EQ(whole->width, 5);
        EXPECT_EQ(whole->height, 3);
        for (std::size_t length = 0; length < file.size(); ++length) {
            // Of its own, so that a look behind its end is found.
            const std::string cut = file.substr(0, length);
            const auto header = ReadPictureHeader(cut);
            if (!header) continue;
            EXPECT_EQ(header->format, whole->format);
            EXPECT_LE(header->width, 255) << length;
        }
    }
}

}  // namespace
}  // namespace kivu::ui
