#include <QBuffer>
#include <QColor>
#include <QImage>
#include <QImageReader>
#include <gtest/gtest.h>

#include "hosts/qt/picture_decoder_qt.h"
#include "testing/picture_files.h"
#include "view/sample_pictures.h"

namespace kivu::tests {
namespace {

using platform::DecodedPicture;
using namespace kivu::testing;

std::string Saved(const QImage& image, const char* format) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(image.save(&buffer, format, 95)) << format;
    return bytes.toStdString();
}

// The left half red, the right half blue.
QImage TwoHalves(QSize size, QImage::Format format = QImage::Format_RGB32) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::red);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = size.width() / 2; x < size.width(); ++x)
            image.setPixelColor(x, y, Qt::blue);
    }
    return image.convertToFormat(format);
}

std::optional<DecodedPicture> Decode(std::string_view bytes, int largestSide = 0) {
    const std::atomic<bool> cancelled = false;
    return hosts::QtPictureDecoder().Decode(bytes, largestSide, cancelled);
}

QColor PixelOf(const DecodedPicture& picture, int x, int y) {
    return QColor::fromRgba(picture.pixels.at(static_cast<std::size_t>(y * picture.width + x)));
}

// As near as a lossy format comes.
bool IsNear(const QColor& a, const QColor& b) {
    return std::abs(a.red() - b.red()) < 24 && std::abs(a.green() - b.green()) < 24 &&
           std::abs(a.blue() - b.blue()) < 24 && a.alpha() == b.alpha();
}

void ExpectTwoHalves(const std::optional<DecodedPicture>& picture, QSize size) {
    ASSERT_TRUE(picture);
    ASSERT_EQ(QSize(picture->width, picture->height), size);
    ASSERT_EQ(picture->pixels.size(), static_cast<std::size_t>(size.width() * size.height()));
    EXPECT_TRUE(IsNear(PixelOf(*picture, 0, size.height() - 1), Qt::red));
    EXPECT_TRUE(IsNear(PixelOf(*picture, size.width() - 1, 0), Qt::blue));
}

TEST(PictureDecoder, ReadsTheCommonFormats) {
    for (const char* format : {"png", "jpg", "bmp", "ico"}) {
        SCOPED_TRACE(format);
        ExpectTwoHalves(Decode(Saved(TwoHalves(QSize(48, 32)), format)), QSize(48, 32));
    }
    const auto gif = Decode(GifFile(9, 7, {0x20c040}));
    ASSERT_TRUE(gif);
    EXPECT_EQ(QSize(gif->width, gif->height), QSize(9, 7));
    EXPECT_EQ(PixelOf(*gif, 8, 6), QColor(0x20, 0xc0, 0x40));
}

TEST(PictureDecoder, ReadsFilesMadeByHand) {
    const auto png = Decode(PngFile(5, 3, 0x80c04020));
    ASSERT_TRUE(png);
    EXPECT_EQ(PixelOf(*png, 4, 2), QColor(0xc0, 0x40, 0x20, 0x80));
    const auto bmp = Decode(BmpFile(5, 3, 0xc04020));
    ASSERT_TRUE(bmp);
    EXPECT_EQ(PixelOf(*bmp, 4, 2), QColor(0xc0, 0x40, 0x20));
}

TEST(PictureDecoder, ReadsGreyAndInkColours) {
    const QImage grey = TwoHalves(QSize(32, 32), QImage::Format_Grayscale8);
    const auto picture = Decode(Saved(grey, "jpg"));
    ASSERT_TRUE(picture);
    const QColor pixel = PixelOf(*picture, 1, 1);
    EXPECT_EQ(pixel.red(), pixel.blue());
    EXPECT_EQ(pixel.alpha(), 255);
    const auto inks = Decode(FromHex(cmykJpeg));
    ASSERT_TRUE(inks);
    EXPECT_TRUE(IsNear(PixelOf(*inks, 8, 8), QColor(0xc0, 0x40, 0x20)))
        << PixelOf(*inks, 8, 8).name().toStdString();
}

TEST(PictureDecoder, TakesTheFirstFrameOfAnAnimation) {
    const auto picture = Decode(GifFile(6, 4, {0xff0000, 0x00ff00, 0x0000ff}));
    ASSERT_TRUE(picture);
    EXPECT_EQ(PixelOf(*picture, 3, 3), QColor(Qt::red));
}

TEST(PictureDecoder, TakesTheLargestPictureOfAnIcon) {
    const auto picture = Decode(IcoHead(
        {PngFile(16, 16, 0xffff0000), PngFile(48, 48, 0xff0000ff), PngFile(32, 32, 0xff00ff00)},
        {16, 48, 32}));
    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->width, 48);
    EXPECT_EQ(PixelOf(*picture, 0, 0), QColor(Qt::blue));
}

TEST(PictureDecoder, ReadsWebpWhereItIsInstalled) {
    const auto picture = Decode(FromHex(smallWebp));
    ASSERT_EQ(picture.has_value(), QImageReader::supportedImageFormats().contains("webp"));
    if (!picture) return;
    EXPECT_EQ(QSize(picture->width, picture->height), QSize(2, 2));
    EXPECT_TRUE(IsNear(PixelOf(*picture, 1, 1), Qt::red));
}

TEST(PictureDecoder, TurnsPhotographsUpright) {
    std::string file = Saved(TwoHalves(QSize(48, 32)), "jpg");
    file.insert(2, ExifSegment(6));  // the camera's right side was up
    const auto picture = Decode(file);
    ASSERT_TRUE(picture);
    ASSERT_EQ(QSize(picture->width, picture->height), QSize(32, 48));
    EXPECT_TRUE(IsNear(PixelOf(*picture, 31, 0), Qt::red));
    EXPECT_TRUE(IsNear(PixelOf(*picture, 0, 47), Qt::blue));
}

TEST(PictureDecoder, MakesLargePicturesSmaller) {
    for (const char* format : {"png", "jpg", "bmp"}) {
        SCOPED_TRACE(format);
        const std::string file = Saved(TwoHalves(QSize(480, 320)), format);
        ExpectTwoHalves(Decode(file, 60), QSize(60, 40));
        ExpectTwoHalves(Decode(file, 480), QSize(480, 320));
    }
    std::string turned = Saved(TwoHalves(QSize(480, 320)), "jpg");
    turned.insert(2, ExifSegment(8));
    const auto picture = Decode(turned, 60);
    ASSERT_TRUE(picture);
    EXPECT_EQ(QSize(picture->width, picture->height), QSize(40, 60));
}

TEST(PictureDecoder, GoesByTheContentAndKnowsNothingElse) {
    for (const std::string_view bytes :
         {"", "x", "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>",
          "/* XPM */\nstatic char *x[] = {\"1 1 1 1\", \"a c #ff0000\", \"a\"};",
          "P3 1 1 255 1 2 3", "%PDF-1.4"})
        EXPECT_FALSE(Decode(bytes)) << bytes;
    EXPECT_FALSE(Decode(Saved(TwoHalves(QSize(8, 8)), "xpm")));
    EXPECT_FALSE(Decode(Saved(TwoHalves(QSize(8, 8)), "ppm")));
}

TEST(PictureDecoder, RefusesWhatIsTooLargeBeforeItsPixels) {
    for (const std::string& file :
         {PngWith(65500, 65500, "xx"), PngWith(32768, 1, "xx"), PngWith(8193, 8192, "xx"),
          JpegHead(65500, 65500), BmpHead(65500, 65500), IcoHead({PngHead(65500, 65500)}, {16})})
        EXPECT_FALSE(Decode(file));
}

TEST(PictureDecoder, LivesWithFilesThatAreCutAnywhere) {
    const QImage image = TwoHalves(QSize(17, 9));
    std::vector<std::string> files{GifFile(17, 9, {1, 2}), FromHex(cmykJpeg)};
    for (const char* format : {"png", "jpg", "bmp", "ico"})
        files.push_back(Saved(image, format));
    for (const std::string& file : files) {
        for (std::size_t length = 0; length < file.size(); ++length) {
            const std::string cut = file.substr(0, length);
            const auto picture = Decode(cut);
            if (!picture) continue;
            // Readers make the best of the rest.
            EXPECT_EQ(picture->pixels.size(),
                      static_cast<std::size_t>(picture->width * picture->height));
            EXPECT_LE(picture->width, 17);
        }
    }
}

// A picture of a thousand scans, each of which goes through all pixels.
std::string EndlessJpeg() {
    std::string file = FromHex(progressiveJpeg);
    file.resize(file.size() - 2);
    const auto scan = file.rfind("\xff\xc4");
    const std::string last = file.substr(scan);
    for (int i = 0; i < 1000; ++i)
        file += last;
    return file + "\xff\xd9";
}

TEST(PictureDecoder, EndsWhenNobodyWantsThePictureAnyMore) {
    const std::string file = EndlessJpeg();
    std::atomic<bool> cancelled = false;
    hosts::QtPictureDecoder decoder;
    EXPECT_TRUE(decoder.Decode(file, 0, cancelled));
    cancelled = true;
    EXPECT_FALSE(decoder.Decode(file, 0, cancelled));
    EXPECT_FALSE(decoder.Decode(Saved(TwoHalves(QSize(8, 8)), "png"), 0, cancelled));
}

TEST(PictureDecoder, EndsWhenItsTimeIsUp) {
    const std::atomic<bool> cancelled = false;
    hosts::QtPictureDecoder hasty(std::chrono::milliseconds(0));
    EXPECT_FALSE(hasty.Decode(EndlessJpeg(), 0, cancelled));
    EXPECT_FALSE(hasty.Decode(BmpFile(4, 4, 1), 0, cancelled));
}

}  // namespace
}  // namespace kivu::tests
