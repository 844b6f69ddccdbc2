// From a picture file to the pixels that its place shows, against the toolkit's own reader with its
// smooth scaling; what the window's thread has of it; and the memory that a thousand pictures
// leave.

#include <QApplication>
#include <QBuffer>
#include <QImageReader>
#include <QThread>
#include <algorithm>
#include <atomic>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <memory>
#include <stdexcept>

#include "forms/form.h"
#include "hosts/qt/background_qt.h"
#include "hosts/qt/picture_decoder_qt.h"
#include "pictures.h"
#include "ratio/ratio.h"
#include "ui/picture_file.h"
#include "ui/picture_loader.h"
#include "view/pictures.h"
#include "view/scaling.h"
#ifdef _WIN32
#include "hosts/windows/file_system_windows.h"
using HostFiles = kivu::hosts::WindowsFileSystem;
#else
#include "hosts/linux/file_system_linux.h"
using HostFiles = kivu::hosts::LinuxFileSystem;
#endif

namespace {

using namespace kivu;
using bench::Ratio;

constexpr QSize large(1920, 1080), place(682, 384);
constexpr double frame = 1.0 / 60;  // seconds

void Check(bool held, const char* otherwise) {
    if (!held) throw std::runtime_error(otherwise);
}

QImage Photo() {
    const bench::Drawing drawing = bench::DrawPhoto(large.width(), large.height());
    return QImage(drawing.samples.data(), large.width(), large.height(),
                  qsizetype{3} * large.width(), QImage::Format_RGB888)
        .copy();
}

class Files {
 public:
    Files() {
        directory = std::filesystem::temp_directory_path() / "kivu-bench-pictures";
        std::filesystem::create_directories(directory);
        Save("a.png", Photo(), "png");
        Save("a.jpg", Photo(), "jpg");
    }
    ~Files() {
        std::error_code ignored;
        std::filesystem::remove_all(directory, ignored);
    }
    Files(const Files&) = delete;
    Files& operator=(const Files&) = delete;

    std::string Path(const char* name) const { return (directory / name).string(); }

 private:
    void Save(const char* name, const QImage& image, const char* format) {
        QByteArray bytes;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        Check(image.save(&buffer, format, 90), "a picture could not be made");
        std::ofstream(directory / name, std::ios::binary) << bytes.toStdString();
    }

    std::filesystem::path directory;
};

double ToolkitSeconds(const std::string& path) {
    QImage shown;
    const double seconds = bench::Seconds([&] {
        shown = QImageReader(QString::fromStdString(path))
                    .read()
                    .scaled(place, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    });
    Check(shown.size() == place, "the toolkit has read nothing");
    return seconds;
}

QImage Fitted(const ui::LoadedPicture& loaded) {
    return view::Sharp(view::OverPixels(loaded.bitmap), place);
}

double PngSeconds(const std::string& path) {
    const HostFiles files;
    const std::atomic<bool> cancelled = false;
    QImage shown;
    const double seconds = bench::Seconds([&] {
        ui::PictureFile file(files, path);
        shown = Fitted(ui::LoadOwnPng(file, 0xbc5200, cancelled));
    });
    Check(shown.size() == place, "the PNG file was not read");
    return seconds;
}

double JpegSeconds(const std::string& path) {
    const HostFiles files;
    hosts::QtPictureDecoder decoder;
    const std::atomic<bool> cancelled = false;
    QImage shown;
    const double seconds = bench::Seconds([&] {
        ui::PictureFile file(files, path);
        shown = Fitted(ui::LoadByHost(file, decoder, cancelled));
    });
    Check(shown.size() == place, "the JPEG file was not read");
    return seconds;
}

// The loader as the window has it.
struct Loading {
    HostFiles files;
    hosts::QtPictureDecoder decoder;
    hosts::QtBackground background;
    struct NoDialogs : platform::Dialogs {
        platform::Answer MessageBox(const std::string&, const std::string&, platform::Buttons,
                                    platform::Icon) override {
            return platform::Answer::Ok;
        }
        std::string InputBox(const std::string&, const std::string&, const std::string&) override {
            return {};
        }
    } dialogs;
    core::ProgramState program;
    forms::Form form{"Form1"};
    forms::PictureBox target{&form, "GamePicture"};
    ui::PictureLoader loader{program, {files, decoder, background, dialogs}};

    // Loads, waits, and draws in the place; gives the seconds of this thread alone.
    double Show(const std::string& path) {
        bool there = false;
        double seconds =
            bench::Seconds([&] { loader.Load(path, target, [&](bool is) { there = is; }); });
        while (!there) {
            QThread::usleep(200);
            const double slice = bench::Seconds([] { QCoreApplication::processEvents(); });
            if (there) seconds += slice;
        }
        view::PictureCache cache;
        cache.Set(target.GetPicture());
        QImage screen(place, QImage::Format_RGB32);
        QPainter painter(&screen);
        return seconds + bench::Seconds([&] {
                   cache.Draw(painter, screen.rect(), 1, view::PictureCache::Fit::contain);
               });
    }
};

double ResidentMegabytes() {
    std::ifstream status("/proc/self/statm");
    double pages = 0, resident = 0;
    status >> pages >> resident;
    return resident * 4096 / (1 << 20);
}

// What a thousand pictures leave behind.
double GrowthMegabytes(const Files& files) {
    Loading loading;
    loading.Show(files.Path("a.png"));
    const double before = ResidentMegabytes();
    for (int i = 0; i < 1000; ++i)
        loading.Show(files.Path(i % 2 == 0 ? "a.jpg" : "a.png"));
    return std::max(1.0, ResidentMegabytes() - before);
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    try {
        const Files files;
        const std::string png = files.Path("a.png"), jpeg = files.Path("a.jpg");
        std::vector<Ratio> ratios;
        ratios.push_back({"PNG of 1920x1080, file to pixels at 682x384 / toolkit", 0.9,
                          [&] { return PngSeconds(png); }, [&] { return ToolkitSeconds(png); }, 30,
                          "ms"});
        ratios.push_back({"JPEG of 1920x1080, file to pixels at 682x384 / toolkit", 1.1,
                          [&] { return JpegSeconds(jpeg); }, [&] { return ToolkitSeconds(jpeg); },
                          30, "ms"});
        Loading loading;
        ratios.push_back({"the window's share of a PNG of 1920x1080 / frame", 0.25,
                          [&] { return loading.Show(png); }, [] { return frame; }, 30, "ms"});
        constexpr double bitmap = 1920.0 * 1080 * 4 / (1 << 20);
        ratios.push_back({"memory after 1,000 pictures / two bitmaps and 16 MB", 1,
                          [&] { return GrowthMegabytes(files); }, [] { return 2 * bitmap + 16; }, 1,
                          "MB"});
        return bench::RunRatios(argc, argv, ratios);
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        return 1;
    }
}
