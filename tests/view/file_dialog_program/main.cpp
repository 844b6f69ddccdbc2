// Shows the launcher's window, opens the dialog for files over it, and writes what was chosen:
//
//     kivu-files File|SaveFile|Dir PATH [CAPTION [NAME]]
//
// For the tour and for whoever wants to look at the dialog. Its data lies where the launcher's
// would that stands in the same place.

#include <QApplication>
#include <QScreen>
#include <QTimer>
#include <cstdio>
#include <string>
#include <vector>

#include "app/desktop_host.h"
#include "hosts/qt/compositing_qt.h"
#include "view/fit_into.h"
#include "view/form_view.h"
#include "view/screen_windows.h"
#include "view/style.h"
#include "view/text_measure.h"
#include "wiring/launcher.h"
#include "wiring/routines.h"

namespace {

std::string Ask(kivu::wiring::Launcher& launcher, const std::vector<std::string>& question) {
    kivu::support::FileDialogs& dialogs = launcher.All().windowsBeside.fileDialogs;
    kivu::forms::Form* over = &launcher.MainWindow();
    if (question[0] == "Dir") return dialogs.FileDirSelectDialog(question[1], question[2], over);
    if (question[0] == "SaveFile")
        return dialogs.filesaveDialog(question[1], question[2], question[3], over);
    return dialogs.FileOpenDialog(question[1], question[2], question[3], over);
}

}  // namespace

int main(int argc, char** argv) {
    kivu::app::PrepareToolkit();
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    kivu::view::ApplyStyle();
    std::vector<std::string> question(argv + 1, argv + argc);
    question.resize(4);

    kivu::app::DesktopHost host(1, argv);
    const kivu::view::TextMeasure measure;
    kivu::view::ScreenWindows windows;
    windows.SetCompositing(kivu::hosts::IsComposited);
    kivu::wiring::Launcher launcher(
        host.Services(), &measure, [] {}, &windows);
    if (const QScreen* screen = QApplication::primaryScreen())
        kivu::view::FitInto(launcher.MainWindow(), screen->availableGeometry());
    launcher.Start();
    kivu::view::FormView view(launcher.MainWindow());
    view.SetCompositing(kivu::hosts::IsComposited);
    windows.AdoptView(launcher.MainWindow(), view);
    view.Show();
    QTimer::singleShot(0, &view.Window(), [&] {
        const std::string chosen = Ask(launcher, question);
        std::printf("%s\n", chosen.c_str());
        std::fflush(stdout);
        QApplication::exit();
    });
    return QApplication::exec();
}
