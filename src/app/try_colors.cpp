// The colour picker in a window of its own beside the launcher's, until the settings hold it:
//
//     try_colors PROGRAM_DIR

#include <QApplication>
#include <cstdio>
#include <cstdlib>

#include "app/desktop_host.h"
#include "hosts/qt/compositing_qt.h"
#include "ui/color_select.h"
#include "view/form_view.h"
#include "view/screen_windows.h"
#include "view/style.h"
#include "view/text_measure.h"
#include "wiring/routines.h"

namespace {

using namespace kivu;

// Coloured as any window of the launcher.
struct ColorWindow : forms::Form {
    static constexpr int edge = 150;  // twips

    ColorWindow(const forms::Toolkit& toolkit, wiring::Launcher::Routines& all)
        : forms::Form("Colors", toolkit),
          picker(controls, all.form, all.windowColors, {all.dialogs, all.host.systemColors}) {
        SetHasFrame(false);
        SetResizable(false);
        SetCornerRadius(20);
        SetKeepsPlace(true);
        controls.frame.SetLeft(edge);
        controls.frame.SetTop(edge);
        Move(900, 4500, ui::ColorSelectControls::width + 2 * edge,
             ui::ColorSelectControls::height + 2 * edge);
        all.windowColors.SetColors(*this, static_cast<std::int32_t>(all.form.FormBackColor),
                                   static_cast<std::int32_t>(all.form.FormForeColor));
        picker.SetBackColor(static_cast<std::int32_t>(all.form.FormBackColor));
        picker.SetForeColor(static_cast<std::int32_t>(all.form.FormForeColor));
    }

    ui::ColorSelectControls controls{this};
    ui::ColorSelect picker;
};

}  // namespace

int main(int argc, char** argv) {
    app::PrepareToolkit();
    QApplication application(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s PROGRAM_DIR\n", argv[0]);
        return 2;
    }
    view::ApplyStyle();
    app::DesktopHost host(1, argv);
    platform::Host services = host.Services();
    services.programDirectory = argv[1];
    services.programName = "Kivu";
    const view::TextMeasure measure;
    view::ScreenWindows windows;
    windows.SetCompositing(hosts::IsComposited);
    wiring::Launcher launcher(
        services, &measure, [] { std::_Exit(EXIT_SUCCESS); }, &windows);
    launcher.Start();
    view::FormView view(launcher.MainWindow());
    view.SetCompositing(hosts::IsComposited);
    view.onClosed = [] { QApplication::quit(); };
    windows.AdoptView(launcher.MainWindow(), view);
    view.Show();
    ColorWindow colors(launcher.MainWindow().GetToolkit(), launcher.All());
    windows.Show(colors, &launcher.MainWindow());
    return QApplication::exec();
}
