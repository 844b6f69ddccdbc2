#include "view/pictures.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "view/scaling.h"
#include "view/shown_form.h"

namespace kivu::tests {
namespace {

using view::PictureCache;

forms::Picture OfPixels(int width, int height, std::vector<std::uint32_t> pixels,
                        bool opaque = false) {
    auto bitmap = std::make_shared<forms::Bitmap>();
    bitmap->width = width;
    bitmap->height = height;
    bitmap->pixels = std::move(pixels);
    bitmap->opaque = opaque;
    return {"", bitmap};
}

forms::Picture TwoByOne() {
    return OfPixels(2, 1, {0xffff0000, 0xff0000ff}, true);
}

// The left half of one colour, the right half of another one.
forms::Picture TwoHalves(int width, int height, std::uint32_t left = 0xffff0000,
                         std::uint32_t right = 0xff0000ff) {
    std::vector<std::uint32_t> pixels;
    for (int i = 0; i < width * height; ++i)
        pixels.push_back(i % width < width / 2 ? left : right);
    return OfPixels(width, height, std::move(pixels));
}

// What a place of that size shows over white.
QImage Drawn(const forms::Picture& picture, QSize size, PictureCache::Fit fit, double ratio = 1,
             bool roughly = false) {
    PictureCache cache;
    cache.Set(picture);
    QImage image((QSizeF(size) * ratio).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::white);
    QPainter painter(&image);
    cache.Draw(painter, QRect(QPoint(), size), ratio, fit, roughly);
    painter.end();
    return image;
}

TEST(Pictures, StretchAControlsPixels) {
    PictureCache cache;
    cache.Set(TwoByOne());
    EXPECT_FALSE(cache.IsInUse());
    const QImage image = cache.Scaled(QSize(20, 10));
    EXPECT_TRUE(cache.IsInUse());
    ASSERT_EQ(image.size(), QSize(20, 10));
    EXPECT_EQ(image.pixelColor(0, 0), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(19, 9), QColor(Qt::blue));
}

TEST(Pictures, DrawPixelsWithoutACopy) {
    const forms::Picture picture = TwoByOne();
    PictureCache cache;
    cache.Set(picture);
    for (const auto fit :
         {PictureCache::Fit::stretch, PictureCache::Fit::cover, PictureCache::Fit::contain})
        EXPECT_EQ(cache.Scaled(QSize(2, 1), fit).constBits(),
                  reinterpret_cast<const uchar*>(picture.pixels->pixels.data()));
}

TEST(Pictures, HoldTheirPixelsAsLongAsTheyAreDrawn) {
    forms::Picture picture = TwoByOne();
    const std::weak_ptr<const forms::Bitmap> pixels = picture.pixels;
    PictureCache cache;
    cache.Set(picture);
    picture = {};
    EXPECT_EQ(cache.Scaled(QSize(2, 1)).pixelColor(0, 0), QColor(Qt::red));
    cache.Set({});
    EXPECT_TRUE(pixels.expired());
}

TEST(Pictures, AreNullForPixelsThatAreMissing) {
    PictureCache cache;
    for (const auto& picture : {OfPixels(1000, 1000, {1, 2, 3}), OfPixels(-1, 2, {1, 2, 3}),
                                OfPixels(0, 0, {}), forms::Picture()}) {
        cache.Set(picture);
        EXPECT_TRUE(cache.Scaled(QSize(10, 10)).isNull());
    }
}

TEST(Pictures, OfFilesAreNotTheWindowsToLoad) {
    const QTemporaryDir directory;
    QImage image(3, 2, QImage::Format_RGB32);
    ASSERT_TRUE(image.save(directory.filePath("a.png")));
    EXPECT_TRUE(view::LoadPicture(directory.filePath("a.png").toStdString()).isNull());
    EXPECT_TRUE(view::LoadPicture(":/missing").isNull());
    EXPECT_TRUE(view::LoadPicture("").isNull());
    EXPECT_FALSE(
        view::LoadPicture(":/qt-project.org/styles/commonstyle/images/left-32.png").isNull());
}

TEST(Pictures, AreContainedAtTheTopInTheMiddle) {
    const QImage wide = Drawn(TwoHalves(8, 4), QSize(40, 60), PictureCache::Fit::contain);
    EXPECT_EQ(wide.pixelColor(0, 0), QColor(Qt::red));
    EXPECT_EQ(wide.pixelColor(39, 19), QColor(Qt::blue));
    EXPECT_EQ(wide.pixelColor(0, 20), QColor(Qt::white));
    EXPECT_EQ(wide.pixelColor(39, 59), QColor(Qt::white));
    const QImage tall = Drawn(TwoHalves(4, 8), QSize(60, 40), PictureCache::Fit::contain);
    EXPECT_EQ(tall.pixelColor(19, 0), QColor(Qt::white));
    EXPECT_EQ(tall.pixelColor(20, 0), QColor(Qt::red));
    EXPECT_EQ(tall.pixelColor(39, 39), QColor(Qt::blue));
    EXPECT_EQ(tall.pixelColor(40, 39), QColor(Qt::white));
}

TEST(Pictures, CoverTheirPlaceWithTheirMiddle) {
    const QImage image = Drawn(TwoHalves(40, 4), QSize(8, 8), PictureCache::Fit::cover);
    EXPECT_EQ(image.pixelColor(0, 0), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(3, 7), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(4, 0), QColor(Qt::blue));
    EXPECT_EQ(image.pixelColor(7, 7), QColor(Qt::blue));
}

TEST(Pictures, AreAlikeRoughAndSmooth) {
    for (const auto fit :
         {PictureCache::Fit::stretch, PictureCache::Fit::cover, PictureCache::Fit::contain}) {
        const QImage smooth = Drawn(TwoHalves(64, 32), QSize(50, 50), fit);
        const QImage rough = Drawn(TwoHalves(64, 32), QSize(50, 50), fit, 1, true);
        for (const QPoint at : {QPoint(2, 2), QPoint(47, 2), QPoint(2, 47), QPoint(47, 47)})
            EXPECT_EQ(smooth.pixelColor(at), rough.pixelColor(at)) << at.x() << "," << at.y();
    }
}

TEST(Pictures, AreDrawnInTheScreensOwnPixels) {
    const forms::Picture picture = TwoHalves(60, 20);
    // Three device pixels to two of the window's.
    const QImage image = Drawn(picture, QSize(40, 30), PictureCache::Fit::contain, 1.5);
    ASSERT_EQ(image.size(), QSize(60, 45));
    EXPECT_EQ(image.pixelColor(29, 19), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(30, 0), QColor(Qt::blue));
    EXPECT_EQ(image.pixelColor(0, 21), QColor(Qt::white));
}

TEST(Pictures, LetShineThroughWhatIsTransparent) {
    const QImage image =
        Drawn(TwoHalves(8, 8, 0x00ff0000, 0x80000000), QSize(8, 8), PictureCache::Fit::contain);
    EXPECT_EQ(image.pixelColor(0, 0), QColor(Qt::white));
    EXPECT_NEAR(image.pixelColor(7, 7).red(), 127, 1);
}

TEST(Scaling, KeepsPixelsSharpThatBecomeMuchLarger) {
    const QImage two = view::OverPixels(TwoByOne().pixels);
    // Twice: nothing between the colours.
    const QImage twice = view::Sharp(two, QSize(4, 2));
    EXPECT_EQ(twice.pixelColor(1, 0), QColor(Qt::red));
    EXPECT_EQ(twice.pixelColor(2, 0), QColor(Qt::blue));
    // By 2.5: three times, and then a little smaller, so that one column is mixed at most.
    const QImage more = view::Sharp(two, QSize(5, 2));
    EXPECT_EQ(more.pixelColor(1, 1), QColor(Qt::red));
    EXPECT_EQ(more.pixelColor(4, 1), QColor(Qt::blue));
    const QImage large = view::Sharp(two, QSize(400, 200));
    EXPECT_EQ(large.pixelColor(199, 100), QColor(Qt::red));
    EXPECT_EQ(large.pixelColor(200, 100), QColor(Qt::blue));
}

TEST(Scaling, SmoothesWhatBecomesSmallerOrALittleLarger) {
    std::vector<std::uint32_t> pixels;
    for (int i = 0; i < 64; ++i)
        pixels.push_back(i % 2 == 0 ? 0xff000000 : 0xffffffff);
    const QImage stripes = view::OverPixels(OfPixels(64, 1, pixels, true).pixels);
    EXPECT_NEAR(view::Sharp(stripes, QSize(32, 1)).pixelColor(16, 0).red(), 128, 8);
    const QImage larger = view::Sharp(stripes, QSize(90, 1));
    bool mixed = false;
    for (int x = 0; x < larger.width(); ++x) {
        const int red = larger.pixelColor(x, 0).red();
        mixed = mixed || (red > 40 && red < 215);
    }
    EXPECT_TRUE(mixed);
}

TEST(Scaling, LivesWithThinPictures) {
    std::vector<std::uint32_t> line(4000, 0xff102030);
    const QImage wide = view::OverPixels(OfPixels(4000, 1, line).pixels);
    EXPECT_EQ(view::Contained(wide.size(), QSize(40, 40)), QSize(40, 1));
    EXPECT_EQ(view::Sharp(wide, QSize(40, 1)).size(), QSize(40, 1));
    EXPECT_EQ(view::MiddleFor(wide, QSize(40, 40)).size(), QSize(1, 1));
    EXPECT_TRUE(view::MiddleFor(QImage(), QSize(4, 4)).isNull());
    EXPECT_TRUE(view::Sharp(wide, QSize()).isNull());
    // By way of 4000 x 400 times as many pixels there would be nothing to see.
    EXPECT_EQ(view::Sharp(wide, QSize(10, 400)).pixelColor(5, 200), QColor(0x10, 0x20, 0x30));
}

using PicturesOnAForm = ShownForm;

TEST_F(PicturesOnAForm, LieOverTheWindowsColour) {
    form.SetPicture(OfPixels(1, 1, {0x00000000}));
    form.SetBackColor(forms::Rgb(0, 128, 0));
    Show();
    const QPoint free(view.Window().width() - 12, view.Window().height() - 12);
    const auto shown = [&] { return view.Window().grab().toImage().pixelColor(free); };
    EXPECT_EQ(shown(), QColor(0, 128, 0));
    form.SetBackColor(forms::Rgb(200, 0, 0));
    Settle();
    EXPECT_EQ(shown(), QColor(200, 0, 0));
    // One that hides the colour stays.
    form.SetPicture(OfPixels(1, 1, {0xff102030}));
    Settle();
    EXPECT_EQ(shown(), QColor(0x10, 0x20, 0x30));
    form.SetBackColor(forms::Rgb(0, 128, 0));
    Settle();
    EXPECT_EQ(shown(), QColor(0x10, 0x20, 0x30));
}

}  // namespace
}  // namespace kivu::tests
