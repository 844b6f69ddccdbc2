// Skins and colours in a window of 1920 x 1080, with all that it draws.

#include <QApplication>
#include <cstdio>
#include <filesystem>
#include <stdexcept>

#include "collection.h"
#include "headless_host.h"
#include "ratio/ratio.h"
#include "ui/color_select.h"
#include "view/form_view.h"
#include "view/style.h"
#include "view/text_measure.h"
#include "wiring/routines.h"

namespace {

using namespace kivu;
namespace fs = std::filesystem;

constexpr double frame = 1.0 / 60;  // seconds
constexpr int games = 2000;

void Check(bool held, const char* otherwise) {
    if (!held) throw std::runtime_error(otherwise);
}

void DrawAll() {
    QCoreApplication::processEvents();
}

enum class Skin { none, shipped };

struct Fixture {
    explicit Fixture(Skin skin) {
        bench::MakeProgramDirectory(directory.Path(), 2, games);
        if (skin == Skin::shipped) {
            const fs::path shipped = KIVU_SKINS;
            Dress(0, shipped / "Nachtwald");
            Dress(1, shipped / "Papier");
        }
        launcher = std::make_unique<wiring::Launcher>(host.Services(directory.Path().string()),
                                                      &measure, [] {});
        host.HoldBackground();
        launcher->Start();
        Form().Move(0, 0, 28800, 16200);
        view = std::make_unique<view::FormView>(Form());
        view->Show();
        DrawAll();
    }
    void Dress(int emulator, const fs::path& skin) const {
        fs::copy(skin, directory.Path() / "Config" / bench::EmulatorName(emulator) / "Skin",
                 fs::copy_options::recursive);
    }
    core::Form1& Form() { return launcher->MainWindow(); }
    wiring::Launcher::Routines& All() { return launcher->All(); }

    bench::TemporaryDirectory directory;
    bench::HeadlessHost host;
    view::TextMeasure measure;
    std::unique_ptr<wiring::Launcher> launcher;
    std::unique_ptr<view::FormView> view;
};

// The picker beside the window, over a picture that lets the colour through.
struct Picker {
    explicit Picker(Fixture& fixture)
        : fixture(fixture),
          picker(controls, fixture.Form(), fixture.All().windowColors,
                 {fixture.All().dialogs, fixture.All().host.systemColors}) {
        auto veil = std::make_shared<forms::Bitmap>();
        veil->width = 1920;
        veil->height = 1080;
        veil->pixels.assign(std::size_t{1920} * 1080, 0x40000000u);
        fixture.Form().SetPicture({"", veil});
        DrawAll();
    }
    double Move() {
        forms::Slider& slider = controls.ColSlider1[0];
        const int next = (slider.Value() + 1) % 256;
        const double seconds = bench::Seconds([&] {
            slider.SetValue(next);
            DrawAll();
        });
        Check(static_cast<int>(fixture.Form().BackColor() & 0xff) == next,
              "the window has another colour");
        return seconds;
    }

    Fixture& fixture;
    forms::Form window{"Colors"};
    ui::ColorSelectControls controls{&window};
    ui::ColorSelect picker;
};

double SwitchEmulator(Fixture& fixture) {
    core::Form1& form = fixture.Form();
    const int other = form.CurrentEmuIndex == 0 ? 1 : 0;
    form.EmuListbox.SetListIndex(other);
    DrawAll();
    const double before = fixture.host.SecondsWriting();
    const double whole = bench::Seconds([&] {
        fixture.All().emulatorSwitch.SelectEmulator(false);
        DrawAll();
    });
    Check(form.CurrentEmuIndex == other, "the emulator has not been switched to");
    // Large pictures come from the worker's thread, which the switch does not wait for.
    fixture.host.ServeBackground();
    DrawAll();
    return whole - (fixture.host.SecondsWriting() - before);
}

bench::Ratio Against(const char* name, double goal, bench::Ratio::Run ours,
                     bench::Ratio::Run yardstick) {
    bench::Ratio ratio;
    ratio.name = name;
    ratio.goal = goal;
    ratio.ours = std::move(ours);
    ratio.yardstick = std::move(yardstick);
    ratio.repetitions = 30;
    return ratio;
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    view::ApplyStyle();
    try {
        Fixture plain(Skin::none), dressed(Skin::shipped), tried(Skin::none);
        Picker picker(tried);
        return bench::RunRatios(
            argc, argv,
            {Against(
                 "a slider's step over a 1080p window, against a frame", 1,
                 [&] { return picker.Move(); }, [] { return frame; }),
             Against(
                 "switch to an emulator with a skin, against one without", 1.1,
                 [&] { return SwitchEmulator(dressed); }, [&] { return SwitchEmulator(plain); })});
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return EXIT_FAILURE;
    }
}
