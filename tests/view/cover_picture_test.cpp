#include "view/cover_picture.h"

#include <QFile>
#include <QTemporaryDir>
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

class CoverPictureTest : public ::testing::Test {
 protected:
    CoverPictureTest() {
        EXPECT_TRUE(slope.save(directory.filePath("slope.png")));
        picture.Set({Source(), nullptr});
    }

    std::string Source() const { return directory.filePath("slope.png").toStdString(); }

    // The middle of the picture, scaled.
    QImage Expected(QSize size) const {
        const QSize part = size.scaled(slope.size(), Qt::KeepAspectRatio);
        return slope
            .copy((slope.width() - part.width()) / 2, (slope.height() - part.height()) / 2,
                  part.width(), part.height())
            .scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }

    const QTemporaryDir directory;
    const QImage slope = Slope(QSize(480, 270));
    CoverPicture picture;
};

constexpr int tolerance = 4;

TEST_F(CoverPictureTest, FillsPlacesOfAnyProportions) {
    for (const QSize size : {QSize(255, 160), QSize(80, 200), QSize(400, 60), QSize(479, 269),
                             QSize(480, 270), QSize(300, 270), QSize(700, 300), QSize(1, 900)}) {
        CoverPicture fresh;
        fresh.Set({Source(), nullptr});
        const QImage image = fresh.Take(size);
        ASSERT_EQ(image.size(), size);
        EXPECT_EQ(image.format(), QImage::Format_ARGB32_Premultiplied);
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
    (void)picture.Take(QSize(255, 160));
    EXPECT_FALSE(picture.KeepsWhole());
    EXPECT_LE(Distance(picture.Take(QSize(256, 160)), Expected(QSize(256, 160))), tolerance);
    EXPECT_TRUE(picture.KeepsWhole());
    // What is kept needs no file.
    ASSERT_TRUE(QFile::remove(directory.filePath("slope.png")));
    EXPECT_LE(Distance(picture.Take(QSize(300, 160)), Expected(QSize(300, 160))), tolerance);
    picture.Rest();
    EXPECT_FALSE(picture.KeepsWhole());
    EXPECT_TRUE(picture.Take(QSize(301, 160)).isNull());
}

TEST_F(CoverPictureTest, GivesPixelsThatAreTheDrawersOwn) {
    (void)picture.Take(QSize(255, 160));
    QImage image = picture.Take(QSize(480, 270));
    image.fill(Qt::red);
    EXPECT_LE(Distance(picture.Take(QSize(480, 270)), slope), tolerance);
}

TEST_F(CoverPictureTest, TakesAControlsPixels) {
    auto bitmap = std::make_shared<forms::Bitmap>();
    bitmap->width = 2;
    bitmap->height = 1;
    bitmap->pixels = {0xffff0000, 0xff0000ff};
    picture.Set({"", bitmap});
    picture.Prefetch(QSize(30, 30));
    EXPECT_EQ(picture.Take(QSize(30, 30)).size(), QSize(30, 30));
}

TEST_F(CoverPictureTest, IsNullForWhatIsNone) {
    picture.Set({directory.filePath("missing").toStdString(), nullptr});
    picture.Prefetch(QSize(30, 30));
    EXPECT_TRUE(picture.Take(QSize(30, 30)).isNull());
    EXPECT_TRUE(picture.Take(QSize(31, 30)).isNull());
    EXPECT_TRUE(picture.Take(QSize()).isNull());
    picture.Set({});
    EXPECT_TRUE(picture.Take(QSize(30, 30)).isNull());
}

TEST_F(CoverPictureTest, IsTakenFromWhatWasLoadedBefore) {
    view::PreloadPicture(Source());
    const QSize size(255, 160);
    picture.Prefetch(size);
    EXPECT_LE(Distance(picture.Take(size), Expected(size)), tolerance);
    // Once; and not by who wants another picture.
    CoverPicture other;
    other.Set({Source(), nullptr});
    other.Prefetch(size);
    EXPECT_LE(Distance(other.Take(size), Expected(size)), tolerance);
    view::PreloadPicture(directory.filePath("missing").toStdString());
    CoverPicture third;
    third.Set({Source(), nullptr});
    third.Prefetch(size);
    EXPECT_LE(Distance(third.Take(size), Expected(size)), tolerance);
}

}  // namespace
}  // namespace kivu::tests
