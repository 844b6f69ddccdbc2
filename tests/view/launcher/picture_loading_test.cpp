// Pictures on their whole way: from a file through the toolkit's decoder on the worker's thread to
// a control.

#include <QBuffer>
#include <QImage>
#include <QTest>
#include <gtest/gtest.h>
#include <memory>

#include "forms/form.h"
#include "hosts/qt/background_qt.h"
#include "hosts/qt/picture_decoder_qt.h"
#include "testing/memory_file_system.h"
#include "testing/picture_files.h"
#include "testing/scripted_host.h"
#include "ui/picture_loader.h"

namespace kivu::tests {
namespace {

constexpr int patience = 20000;  // milliseconds

// Too many pixels to be decoded at once.
std::string LargeJpeg(QRgb color) {
    QImage image(1200, 1000, QImage::Format_RGB32);
    image.fill(color);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(image.save(&buffer, "jpg", 50));
    return bytes.toStdString();
}

class PictureLoading : public ::testing::Test {
 protected:
    int Red() const {
        const auto& pixels = target.GetPicture().pixels;
        return pixels ? qRed(pixels->pixels.front()) : -1;
    }
    void Load(const std::string& path) {
        loader->Load(path, target, [this](bool) { ++told; });
    }

    testing::MemoryFileSystem files;
    hosts::QtPictureDecoder decoder;
    std::unique_ptr<hosts::QtBackground> background = std::make_unique<hosts::QtBackground>();
    testing::ScriptedDialogs dialogs;
    core::ProgramState program;
    forms::Form form{"Form1"};
    forms::PictureBox target{&form, "GamePicture"};
    std::unique_ptr<ui::PictureLoader> loader = std::make_unique<ui::PictureLoader>(
        program, ui::PictureLoader::Services{files, decoder, *background, dialogs});
    int told = 0;
};

TEST_F(PictureLoading, ComesFromTheWorker) {
    std::string file = LargeJpeg(qRgb(200, 0, 0));
    file.insert(2, testing::ExifSegment(6));
    files.AddFile("/Game.jpg", file);
    Load("/Game.jpg");
    EXPECT_EQ(told, 0);
    ASSERT_TRUE(QTest::qWaitFor([this] { return told == 1; }, patience));
    EXPECT_NEAR(Red(), 200, 4);
    EXPECT_EQ(target.Width(), 1000 * 15);
    EXPECT_EQ(target.Height(), 1200 * 15);
    EXPECT_TRUE(target.GetPicture().pixels->opaque);
}

TEST_F(PictureLoading, ShowsTheLastOfTwoHundred) {
    files.AddFile("/one.jpg", LargeJpeg(qRgb(250, 0, 0)));
    files.AddFile("/last.jpg", LargeJpeg(qRgb(10, 0, 0)));
    for (int i = 0; i < 200; ++i) {
        Load("/one.jpg");
        if (i % 10 == 0) QCoreApplication::processEvents();
    }
    Load("/last.jpg");
    ASSERT_TRUE(QTest::qWaitFor([this] { return Red() >= 0 && Red() < 20; }, patience));
    const int atLast = told;
    QCoreApplication::processEvents();
    EXPECT_EQ(told, atLast);
}

TEST_F(PictureLoading, IsSilentAfterTheLoadersEnd) {
    files.AddFile("/one.jpg", LargeJpeg(qRgb(250, 0, 0)));
    Load("/one.jpg");
    loader.reset();
    background.reset();
    QCoreApplication::processEvents();
    EXPECT_EQ(told, 0);
    EXPECT_EQ(Red(), -1);
}

TEST_F(PictureLoading, GivesUpALargePngThatNobodyWants) {
    files.AddFile("/large.png", testing::PngFile(1500, 1000, 0xff808080));
    files.AddFile("/small.png", testing::PngFile(2, 2, 0xff102030));
    Load("/large.png");
    Load("/small.png");
    EXPECT_EQ(told, 1);
    EXPECT_EQ(Red(), 0x10);
    background.reset();
    QCoreApplication::processEvents();
    EXPECT_EQ(Red(), 0x10);
}

}  // namespace
}  // namespace kivu::tests
