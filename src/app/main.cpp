#include <QApplication>
#include <QIcon>
#include <QLoggingCategory>
#include <QScreen>
#include <QTimer>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "app/build.h"
#include "app/desktop_host.h"
#include "hosts/qt/active_window_qt.h"
#include "hosts/qt/close_requests_qt.h"
#include "hosts/qt/compositing_qt.h"
#include "view/cover_picture.h"
#include "view/fit_into.h"
#include "view/form_view.h"
#include "view/program_end.h"
#include "view/screen_windows.h"
#include "view/style.h"
#include "view/text_measure.h"
#include "wiring/launcher.h"
#include "wiring/process_exit.h"

namespace {

// What is left to do where the process ends, and whom to ask for it.
kivu::wiring::Launcher* launcherAtExit = nullptr;
kivu::app::DesktopHost* hostAtExit = nullptr;

// The program ends where it stands: routines further up must not go on, and nothing is left to
// write.
void EndAtOnce() {
    hostAtExit->AbandonDownloads();
    for (QWidget* window : QApplication::topLevelWidgets()) {
        window->hide();
    }
    QCoreApplication::sendPostedEvents();
    std::fflush(nullptr);
    std::_Exit(EXIT_SUCCESS);
}

Q_LOGGING_CATEGORY(startStages, "kivu.start", QtWarningMsg)

// For exit(), which the toolkit calls where its display has gone: many a session ends so.
void LeaveAtExit() {
    if (!launcherAtExit) return;
    kivu::wiring::LeaveProcess(*launcherAtExit);
    hostAtExit->AbandonDownloads();
}

// How far the start has come, by the steady clock in nanoseconds, for who has asked for these
// messages.
void Reached(const char* stage) {
    qCDebug(startStages, "%s\t%lld", stage,
            static_cast<long long>(std::chrono::steady_clock::now().time_since_epoch().count()));
}

}  // namespace

int main(int argc, char** argv) {
    if (const auto code = kivu::app::RunOtherJob(argc, argv)) return *code;
    Reached("main");
    kivu::app::PrepareToolkit();
    QApplication application(argc, argv);
    // At once: what has been begun above may still be under way.
    if (const auto code = kivu::app::RunOtherJob(argc, argv)) std::_Exit(*code);
    QApplication::setQuitOnLastWindowClosed(false);
    QGuiApplication::setDesktopFileName(QString::fromLatin1(kivu::app::ApplicationId()));
    // Ready when the launcher is.
    kivu::view::PreloadPicture(":/background");
    kivu::view::ApplyStyle();
    Reached("application");

    kivu::app::DesktopHost host(argc, argv);
    hostAtExit = &host;
    const kivu::view::TextMeasure measure;
    kivu::view::ScreenWindows windows;
    windows.SetCompositing(kivu::hosts::IsComposited);
    windows.SetElsewhere(kivu::hosts::IsAnotherProgramActive);
    const kivu::hosts::CloseRequests closeRequests(application);
    kivu::wiring::Launcher launcher(host.Services(), &measure, EndAtOnce, &windows);
    // A size that the user has left it in comes after this, whatever it is.
    if (const QScreen* screen = QApplication::primaryScreen())
        kivu::view::FitInto(launcher.MainWindow(), screen->availableGeometry());
    launcher.Start();
    Reached("launcher");

    kivu::view::FormView view(launcher.MainWindow());
    view.SetCompositing(kivu::hosts::IsComposited);
    view.SetClock([&clock = host.Services().clock] { return clock.Steady(); });
    view.onClosed = EndAtOnce;
    windows.AdoptView(launcher.MainWindow(), view);
    const kivu::view::ProgramEnd sessionEnd([&] { launcher.SessionEnds(); },
                                            [&] { launcher.EndFromOutside(); });
    host.ListenForEnd([&] { launcher.EndFromOutside(); });
    launcherAtExit = &launcher;
    std::atexit(LeaveAtExit);
    Reached("view");
    view.Show();
    Reached("shown");
    host.ListenForInstances([&](const std::string& file) {
        windows.Raise(launcher.MainWindow());
        if (!file.empty()) launcher.StartHandedFile(file);
    });
    // Behind the first frame.
    QTimer::singleShot(0, &view.Window(), [&] {
        view.Window().setWindowIcon(QIcon(QStringLiteral(":/icon")));
        host.WindowStands();
    });
    const int code = QApplication::exec();
    launcherAtExit = nullptr;
    return code;
}
