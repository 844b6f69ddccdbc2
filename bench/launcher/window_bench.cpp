// What a user does in the window, with all that it draws, against the time of one frame.

#include <QApplication>
#include <QKeyEvent>
#include <cstdio>
#include <stdexcept>

#include "collection.h"
#include "headless_host.h"
#include "library/file_scan_recursive.h"
#include "ratio/ratio.h"
#include "view/form_view.h"
#include "view/style.h"
#include "view/text_measure.h"
#include "wiring/routines.h"

namespace {

using namespace kivu;

constexpr double frame = 1.0 / 60;  // seconds
constexpr int emulators = 100;
constexpr int games = library::FileScanRecursive::limit;

void Check(bool held, const char* otherwise) {
    if (!held) throw std::runtime_error(otherwise);
}

void DrawAll() {
    QCoreApplication::processEvents();
}

// The launcher in its window, which is shown nowhere.
struct Fixture {
    Fixture() {
        bench::MakeProgramDirectory(directory.Path(), emulators, games);
        launcher = std::make_unique<wiring::Launcher>(host.Services(directory.Path().string()),
                                                      &measure, [] {});
        launcher->Start();
        view = std::make_unique<view::FormView>(launcher->MainWindow());
        view->Show();
        DrawAll();
        Check(Form().WIthoutDoubles.ListCount() > games / 4, "the list has not been loaded");
    }

    core::Form1& Form() { return launcher->MainWindow(); }
    void Press(Qt::Key key) {
        QWidget* focus = view->Window().focusWidget();
        Check(focus != nullptr, "nothing has the focus");
        QKeyEvent event(QEvent::KeyPress, key, {});
        QCoreApplication::sendEvent(focus, &event);
    }

    bench::TemporaryDirectory directory;
    bench::HeadlessHost host;
    view::TextMeasure measure;
    std::unique_ptr<wiring::Launcher> launcher;
    std::unique_ptr<view::FormView> view;
};

bench::Ratio FrameRatio(const char* name, double goal, bench::Ratio::Run ours) {
    bench::Ratio ratio;
    ratio.name = name;
    ratio.goal = goal;
    ratio.ours = std::move(ours);
    ratio.yardstick = [] { return frame; };
    ratio.repetitions = 40;
    return ratio;
}

double PressDown(Fixture& fixture) {
    core::Form1& form = fixture.Form();
    form.Label3.Click();
    form.UAE_Short.SetListIndex(games / 2);
    DrawAll();
    const double seconds = bench::Seconds([&] {
        fixture.Press(Qt::Key_Down);
        DrawAll();
    });
    Check(form.UAE_Short.ListIndex() == games / 2 + 1, "the row has not moved");
    return seconds;
}

double SwitchEmulator(Fixture& fixture) {
    core::Form1& form = fixture.Form();
    const int other = 1 - form.CurrentEmuIndex;
    form.EmuListbox.SetListIndex(other);
    DrawAll();
    const double before = fixture.host.SecondsWriting();
    const double whole = bench::Seconds([&] {
        fixture.launcher->All().emulatorSwitch.SelectEmulator(false);
        DrawAll();
    });
    Check(form.CurrentEmuIndex == other, "the emulator has not been switched to");
    return whole - (fixture.host.SecondsWriting() - before);
}

double OpenChoice(Fixture& fixture) {
    core::Form1& form = fixture.Form();
    const double seconds = bench::Seconds([&] {
        form.EmuListbox.SetFocus();
        DrawAll();
    });
    Check(form.EmulatorLongListbox.Visible(), "the choice is not open");
    fixture.Press(Qt::Key_Escape);
    DrawAll();
    Check(!form.EmulatorLongListbox.Visible(), "the choice is still open");
    return seconds;
}

double DragEdge(Fixture& fixture) {
    QWidget& window = fixture.view->Window();
    const int step = window.width() > 1000 ? -40 : 10;
    return bench::Seconds([&] {
        window.resize(window.width() + step, window.height() + step / 2);
        DrawAll();
    });
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    view::ApplyStyle();
    try {
        Fixture fixture;
        const auto of = [&fixture](double (*run)(Fixture&)) {
            return [&fixture, run] { return run(fixture); };
        };
        return bench::RunRatios(
            argc, argv,
            {FrameRatio("Down in 31,999 rows and its repaint, against a frame", 0.25,
                        of(PressDown)),
             FrameRatio("switch to 31,999 games and its repaint, against a frame", 2.5,
                        of(SwitchEmulator)),
             FrameRatio("choice of 100 emulators opened, against a frame", 0.6, of(OpenChoice)),
             FrameRatio("a step of a resize and its repaint, against a frame", 1, of(DragEdge))});
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return EXIT_FAILURE;
    }
}
