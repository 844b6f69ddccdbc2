#include <QApplication>
#include <QIcon>
#include <QTimer>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "app/desktop_host.h"
#include "view/form_view.h"
#include "view/pictures.h"
#include "view/style.h"
#include "view/text_measure.h"
#include "wiring/launcher.h"

namespace {

// The program ends where it stands: routines further up must not go on, and nothing is left to
// write.
void EndAtOnce() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        window->hide();
    }
    QCoreApplication::sendPostedEvents();
    std::fflush(nullptr);
    std::_Exit(EXIT_SUCCESS);
}

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    // Ready when the launcher is.
    kivu::view::PreloadPicture(":/background");
    kivu::view::ApplyStyle();

    kivu::app::DesktopHost host(argc, argv);
    const kivu::view::TextMeasure measure;
    kivu::wiring::Launcher launcher(host.Services(), &measure, EndAtOnce);
    launcher.Start();

    kivu::view::FormView view(launcher.MainWindow());
    view.onClosed = EndAtOnce;
    view.Show();
    host.ListenForInstances([&](const std::string& file) {
        view.Summon();
        if (!file.empty()) launcher.StartHandedFile(file);
    });
    // Behind the first frame.
    QTimer::singleShot(0, &view.Window(),
                       [&view] { view.Window().setWindowIcon(QIcon(QStringLiteral(":/icon"))); });
    return QApplication::exec();
}
