// The arrow key held down over rows that each have a large picture: what the window's thread has to
// do for a row, against the time of a frame.

#include <QApplication>
#include <QBuffer>
#include <QElapsedTimer>
#include <QImage>
#include <QKeyEvent>
#include <QThread>
#include <algorithm>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <stdexcept>

#include "collection.h"
#include "headless_host.h"
#include "hosts/qt/background_qt.h"
#include "hosts/qt/picture_decoder_qt.h"
#include "pictures.h"
#include "ratio/ratio.h"
#include "view/form_view.h"
#include "view/style.h"
#include "view/text_measure.h"
#include "wiring/routines.h"

namespace {

using namespace kivu;

constexpr double frame = 1.0 / 60;     // seconds
constexpr qint64 keyRepeat = 33;       // milliseconds
constexpr qint64 mostPatience = 5000;  // milliseconds for the last picture
constexpr int rows = 500;

void Check(bool held, const char* otherwise) {
    if (!held) throw std::runtime_error(otherwise);
}

// Of this thread alone: what others do on the machine does not count.
double ThreadSeconds(const std::function<void()>& call) {
    const auto now = [] {
        timespec time{};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
    };
    const double before = now();
    call();
    return now() - before;
}

std::string Photo() {
    const bench::Drawing drawing = bench::DrawPhoto(1920, 1080);
    const QImage image(drawing.samples.data(), 1920, 1080, qsizetype{3} * 1920,
                       QImage::Format_RGB888);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    Check(image.save(&buffer, "png"), "the picture could not be made");
    return bytes.toStdString();
}

// A name of its own for each game; the bytes lie on the disk once.
void MakePictures(const std::filesystem::path& directory) {
    std::filesystem::create_directories(directory);
    const std::filesystem::path first = directory / "first";
    std::ofstream(first, std::ios::binary) << Photo();
    for (const std::string& game : bench::CollectionPaths(rows)) {
        auto name = std::filesystem::path(game).filename();
        std::error_code there;
        std::filesystem::create_hard_link(first, directory / name.replace_extension(".png"), there);
    }
    std::filesystem::remove(first);
}

// The two hide those of the host itself.
struct HostWithPictures : platform::Host {
    platform::PictureDecoder& pictureDecoder;
    platform::Background& background;
};

platform::Host WithPictures(const platform::Host& host, platform::PictureDecoder& decoder,
                            platform::Background& background) {
    HostWithPictures parts{host, decoder, background};
    return platform::ServicesOf(parts, host.programDirectory, host.programName, host.commandLine);
}

struct Shares {
    double longest = 0;
    double mean = 0;
};

class Holding {
 public:
    Holding() {
        bench::MakeProgramDirectory(directory.Path(), 2, rows);
        MakePictures(directory.Path() / "Config" / bench::EmulatorName(0) / "Pictures");
        launcher.Start();
        view.Show();
        QCoreApplication::processEvents();
        form.Label3.Click();
        QCoreApplication::processEvents();
        Check(form.UAE_Short.ListCount() == rows, "the list has not been loaded");
        // What the first picture of a run brings with it, readers and fonts, is there once.
        form.UAE_Short.SetListIndex(rows - 1);
        WaitForLast();
        form.UAE_Short.SetListIndex(0);
        QCoreApplication::processEvents();
    }

    Shares Run() {
        Shares shares;
        for (int row = 0; row < rows; ++row) {
            QElapsedTimer sinceKey;
            sinceKey.start();
            double share = 0;
            const auto slice = [&](const std::function<void()>& call) {
                const double seconds = ThreadSeconds(call);
                shares.longest = std::max(shares.longest, seconds);
                share += seconds;
            };
            slice([&] { form.UAE_Short.SetListIndex(row); });
            while (sinceKey.elapsed() < keyRepeat) {
                slice([] { QCoreApplication::processEvents(); });
                QThread::usleep(500);
            }
            shares.mean += share / rows;
        }
        WaitForLast();
        return shares;
    }

 private:
    void WaitForLast() {
        const auto name = std::filesystem::path(form.UAE_FULL.List(rows - 1)).stem().string();
        const auto isThere = [&] {
            const forms::Picture& shown = form.GamePictureVis.GetPicture();
            return shown.pixels && std::filesystem::path(shown.source).stem() == name;
        };
        QElapsedTimer waiting;
        waiting.start();
        while (!isThere() && waiting.elapsed() < mostPatience)
            QCoreApplication::processEvents();
        Check(isThere(), "the last picture is not the last row's");
    }

    bench::TemporaryDirectory directory;
    bench::HeadlessHost host;
    hosts::QtPictureDecoder decoder;
    hosts::QtBackground background;
    view::TextMeasure measure;
    wiring::Launcher launcher{
        WithPictures(host.Services(directory.Path().string()), decoder, background), &measure,
        [] {}};
    core::Form1& form = launcher.MainWindow();
    view::FormView view{form};
};

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    view::ApplyStyle();
    try {
        Holding holding;
        return bench::RunRatios(
            argc, argv,
            {{"arrow key over 500 PNGs of 1920x1080, longest slice / frame", 1,
              [&] { return holding.Run().longest; }, [] { return frame; }, 1, "ms"},
             {"arrow key over 500 PNGs of 1920x1080, mean share / frame", 0.25,
              [&] { return holding.Run().mean; }, [] { return frame; }, 1, "ms"}});
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        return 1;
    }
}
