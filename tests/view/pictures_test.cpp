#include "view/pictures.h"

#include <QTemporaryDir>
#include <filesystem>
#include <fstream>

namespace kivu::tests {
namespace {

using view::PictureCache;

forms::Picture TwoByOne() {
    auto bitmap = std::make_shared<forms::Bitmap>();
    bitmap->width = 2;
    bitmap->height = 1;
    bitmap->pixels = {0xffff0000, 0xff0000ff};
    return {"", bitmap};
}

TEST(Pictures, StretchAControlsPixels) {
    PictureCache cache;
    cache.Set(TwoByOne());
    const QImage image = cache.Scaled(QSize(20, 10)).toImage();
    ASSERT_EQ(image.size(), QSize(20, 10));
    EXPECT_EQ(image.pixelColor(0, 0), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(19, 9), QColor(Qt::blue));
}

TEST(Pictures, AreNullForPixelsThatAreMissing) {
    auto bitmap = std::make_shared<forms::Bitmap>();
    bitmap->width = 1000;
    bitmap->height = 1000;
    bitmap->pixels = {1, 2, 3};
    PictureCache cache;
    cache.Set({"", bitmap});
    EXPECT_TRUE(cache.Scaled(QSize(10, 10)).isNull());
}

TEST(Pictures, AreReadFromAFileWithAnyBytesInItsName) {
    const QTemporaryDir directory;
    const std::string path = directory.path().toStdString() + "/\xe4\xff.png";
    QImage image(3, 2, QImage::Format_RGB32);
    image.fill(Qt::green);
    ASSERT_TRUE(image.save(directory.filePath("plain.png")));
    std::ifstream from(directory.filePath("plain.png").toStdString(), std::ios::binary);
    std::ofstream(path, std::ios::binary) << from.rdbuf();
    EXPECT_EQ(view::LoadPicture(path).size(), QSize(3, 2));
    std::filesystem::remove(path);  // the toolkit could not name it
}

TEST(Pictures, AreNullForWhatIsNone) {
    const QTemporaryDir directory;
    const std::string path = directory.path().toStdString() + "/text.png";
    std::ofstream(path) << "no picture at all";
    EXPECT_TRUE(view::LoadPicture(path).isNull());
    EXPECT_TRUE(view::LoadPicture(directory.path().toStdString()).isNull());
    EXPECT_TRUE(view::LoadPicture(directory.path().toStdString() + "/missing").isNull());
    EXPECT_TRUE(view::LoadPicture(":/missing").isNull());
}

}  // namespace
}  // namespace kivu::tests
