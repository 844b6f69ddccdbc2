#include "view/cover_picture.h"

#include <QThreadPool>
#include <algorithm>
#include <gtest/gtest.h>

#include "view/pictures.h"

namespace kivu::tests {
namespace {

using view::CoverPicture;

// A picture whose colours tell the place of each pixel.
QImage Slope(QSize size) {
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y, qRgb(x * 255 / size.width(), y * 255 / size.height(), 90));
    }
    return image;
}

// The largest distance of any colour of a pixel.
int Distance(const QImage& a, const QImage& b) {
    int most = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb one = a.pixel(x, y), other = b.pixel(x, y);
            most = std::max(
                {most, std::abs(qRed(one) - qRed(other)), std::abs(qGreen(one) - qGreen(other)),
                 std::abs(qBlue(one) - qBlue(other)), std::abs(qAlpha(one) - qAlpha(other))});
        }
    }
    return most;
}

// A picture that the toolkit brings along.
constexpr const char* resource = ":/qt-project.org/styles/commonstyle/images/desktop-32.png";

forms::Picture PixelsOf(const QImage& image) {
    auto bitmap = std::make_shared<forms::Bitmap>();
    bitmap->width = image.width();
    bitmap->height = image.height();
    bitmap->opaque = !image.hasAlphaChannel();
    for (int y = 0; y < image.height(); ++y) {
        const auto* row = reinterpret_cast<const std::uint32_t*>(image.constScanLine(y));
        bitmap->pixels.insert(bitmap->pixels.end(), row, row + image.width());
    }
    return {"/skin/Background.png", bitmap};
}

// The middle of a picture, scaled.
QImage Middle(const QImage& image, QSize size) {
    const QSize part = size.scaled(image.size(), Qt::KeepAspectRatio);
    return image
        .copy((image.width() - part.width()) / 2, (image.height() - part.height()) / 2,
              part.width(), part.height())
        .scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

class CoverPictureTest : public ::testing::Test {
 protected:
    CoverPictureTest() { picture.Set(pixels); }

    QImage Expected(QSize size) const { return Middle(slope, size); }

    const QImage slope = Slope(QSize(480, 270));
    const forms::Picture pixels = PixelsOf(slope);
    CoverPicture picture;
};

constexpr int tolerance = 4;

TEST_F(CoverPictureTest, FillsPlacesOfAnyProportions) {
    for (const QSize size : {QSize(255, 160), QSize(80, 200), QSize(400, 60), QSize(479, 269),
                             QSize(480, 270), QSize(300, 270), QSize(700, 300), QSize(1, 900)}) {
        CoverPicture fresh;
        fresh.Set(pixels);
        const QImage image = fresh.Take(size);
        ASSERT_EQ(image.size(), size);
        EXPECT_EQ(image.format(), QImage::Format_RGB32);
        if (size.width() == 1) continue;  // of no whole pixel of the picture
        EXPECT_LE(Distance(image, Expected(size)), tolerance)
            << size.width() << "x" << size.height();
    }
}

TEST_F(CoverPictureTest, IsTheSameWhetherFetchedBeforeOrNot) {
    const QSize size(255, 160);
    picture.Prefetch(size);
    const QImage image = picture.Take(size);
    EXPECT_FALSE(picture.KeepsWhole());
    EXPECT_LE(Distance(image, Expected(size)), tolerance);
}

TEST_F(CoverPictureTest, SurvivesAWrongGuessOfTheSize) {
    picture.Prefetch(QSize(255, 160));
    const QSize size(300, 100);
    EXPECT_LE(Distance(picture.Take(size), Expected(size)), tolerance);
}

TEST_F(CoverPictureTest, KeepsTheWholeWhileItsPlaceChanges) {
    picture.Set({resource, nullptr});
    const QImage whole = view::LoadPicture(resource);
    ASSERT_FALSE(whole.isNull());
    (void)picture.Take(QSize(25, 16));
    EXPECT_FALSE(picture.KeepsWhole());
    EXPECT_EQ(picture.Take(QSize(26, 16)), view::Covering(whole, QSize(26, 16)));
    EXPECT_TRUE(picture.KeepsWhole());
    picture.Rest();
    EXPECT_FALSE(picture.KeepsWhole());
    EXPECT_EQ(picture.Take(QSize(30, 16)), view::Covering(whole, QSize(30, 16)));
}

TEST_F(CoverPictureTest, KeepsWhatIsTransparent) {
    QImage clear = slope.convertToFormat(QImage::Format_ARGB32);
    clear.fill(QColor(255, 0, 0, 128));
    picture.Set(PixelsOf(clear));
    const QImage image = picture.Take(QSize(30, 30));
    EXPECT_EQ(image.format(), QImage::Format_ARGB32_Premultiplied);
    EXPECT_EQ(image.pixelColor(15, 15).alpha(), 128);
}

TEST_F(CoverPictureTest, IsRoughlyTheSameAtOnce) {
    (void)picture.Take(QSize(255, 160));
    const QSize size(200, 120);
    EXPECT_LE(Distance(picture.Take(size, true), Expected(size)), 8);
}

// Another picture must not have to wait for one that is still being made.
TEST_F(CoverPictureTest, LeavesWhatIsComingBehind) {
    QThreadPool& pool = *QThreadPool::globalInstance();
    const int threads = pool.maxThreadCount();
    pool.setMaxThreadCount(1);
    std::promise<void> release;
    pool.start([&] { release.get_future().wait(); });
    picture.Prefetch(QSize(255, 160));
    picture.Set({});
    picture.Set(pixels);
    EXPECT_LE(Distance(picture.Take(QSize(255, 160)), Expected(QSize(255, 160))), tolerance);
    release.set_value();
    pool.waitForDone();
    pool.setMaxThreadCount(threads);
}

TEST_F(CoverPictureTest, GivesPixelsThatAreTheDrawersOwn) {
    (void)picture.Take(QSize(255, 160));
    QImage image = picture.Take(QSize(480, 270));
    image.fill(Qt::red);
    EXPECT_LE(Distance(picture.Take(QSize(480, 270)), slope), tolerance);
}

TEST_F(CoverPictureTest, IsNullForWhatIsNone) {
    picture.Set({":/missing", nullptr});
    picture.Prefetch(QSize(30, 30));
    EXPECT_TRUE(picture.Take(QSize(30, 30)).isNull());
    EXPECT_TRUE(picture.Take(QSize(31, 30)).isNull());
    EXPECT_TRUE(picture.Take(QSize()).isNull());
    picture.Set({});
    EXPECT_TRUE(picture.Take(QSize(30, 30)).isNull());
}

TEST_F(CoverPictureTest, IsTakenFromWhatWasLoadedBefore) {
    const QSize size(25, 16);
    const QImage expected = view::Covering(view::LoadPicture(resource), size);
    // Once; and not by who wants another picture.
    for (const char* preloaded : {resource, "", ":/missing"}) {
        if (*preloaded != '\0') view::PreloadPicture(preloaded);
        CoverPicture fresh;
        fresh.Set({resource, nullptr});
        fresh.Prefetch(size);
        EXPECT_EQ(fresh.Take(size), expected) << preloaded;
    }
}

}  // namespace
}  // namespace kivu::tests
