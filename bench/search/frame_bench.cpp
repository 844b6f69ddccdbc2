// One key press in the search box with all that it draws, against the time of one frame.

#include <QApplication>
#include <cstdio>
#include <fstream>
#include <stdexcept>

#include "collection.h"
#include "headless_host.h"
#include "library/list_cache.h"
#include "library/short_names.h"
#include "ratio/ratio.h"
#include "view/form_view.h"
#include "view/style.h"
#include "view/text_measure.h"
#include "wiring/routines.h"

namespace {

using namespace kivu;

constexpr double frame = 1.0 / 60;  // seconds

// Titles that all differ; a word that few of them have.
void WriteCache(const std::filesystem::path& home) {
    std::filesystem::create_directories(home);
    std::ofstream file(home / "Kivu_Cache.txt", std::ios::binary);
    int number = 0;
    for (const std::string& path : bench::CollectionPaths(library::FileScanRecursive::limit)) {
        ++number;
        const std::string title = std::to_string(number) + (number % 4000 == 7 ? " Zzyzx " : " ") +
                                  library::CutShortName(path, ")", true);
        std::string lines;
        library::AppendCacheEntry(lines, path, title);
        file << lines;
    }
}

bench::Ratio FrameRatio(core::Form1& form, const std::string& name, const std::string& text) {
    bench::Ratio ratio;
    ratio.name = name;
    ratio.goal = 1;
    ratio.ours = [&form, text] {
        forms::UserInput hands(form);
        form.SearchDblsTxt.SetFocus();
        form.SearchDblsTxt.SetField({text, static_cast<int>(text.size()), 0});
        hands.Stroke({forms::keys::back, 0});
        QCoreApplication::processEvents();
        const forms::Key last = forms::KeyOf(static_cast<unsigned char>(text.back()));
        const double seconds = bench::Seconds([&] {
            hands.Stroke(last);
            QCoreApplication::processEvents();
        });
        if (form.SuchErgList.ListCount() == 0) throw std::runtime_error("nothing found");
        return seconds;
    };
    ratio.yardstick = [] { return frame; };
    return ratio;
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    view::ApplyStyle();
    try {
        const bench::TemporaryDirectory directory;
        WriteCache(directory.Path() / "Config" / "Many");
        std::ofstream(directory.Path() / "Config" / "Kivu.ini")
            << "[Settings]\r\nLastEmulator=Many\r\n";
        bench::HeadlessHost host;
        const view::TextMeasure measure;
        wiring::Launcher launcher(host.Services(directory.Path().string()), &measure, [] {});
        launcher.Start();
        core::Form1& form = launcher.MainWindow();
        view::FormView view(form);
        view.Show();
        QCoreApplication::processEvents();
        return bench::RunRatios(
            argc, argv,
            {FrameRatio(form, "key in the search box and its repaint, few hits, against a frame",
                        "zzyzx 1"),
             FrameRatio(form,
                        "key in the search box and its repaint, all rows hit, against a frame",
                        "19 (")});
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}
