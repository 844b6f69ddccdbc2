#include <QProcess>
#include <QTest>
#include <QTimer>
#include <QWindow>
#include <gtest/gtest.h>

#include "hosts/qt/dialogs_qt.h"
#include "testing/memory_file_system.h"
#include "testing/scripted_host.h"
#include "view/form_view.h"
#include "view/screen_windows.h"
#include "view/text_measure.h"
#include "wiring/routines.h"

namespace kivu::tests {
namespace {

constexpr int patience = 10000;  // milliseconds

// The loading screen under a real window manager.
class X11Loading : public ::testing::Test {
 protected:
    X11Loading() {
        files.AddDirectory("/k/Config");
        launcher.Start();
        windows.AdoptView(launcher.MainWindow(), mainView);
        mainView.Show();
        EXPECT_TRUE(Wait([&] {
            if (!mainView.Window().isActiveWindow()) mainView.Window().activateWindow();
            return mainView.Window().isActiveWindow();
        }));
        launcher.MainWindow().SplashSeconds = 6;
    }
    ~X11Loading() override { QCoreApplication::processEvents(); }

    static bool Wait(const std::function<bool()>& until) {
        return QTest::qWaitFor(until, patience);
    }
    static QByteArray Output(const QString& program, const QStringList& arguments) {
        QProcess process;
        process.start(program, arguments);
        EXPECT_TRUE(Wait([&] { return process.state() == QProcess::NotRunning; }));
        return process.readAllStandardOutput();
    }
    // The server's list begins with the topmost.
    static bool LiesAbove(const QWidget& upper, const QWidget& lower) {
        const QByteArray tree = Output("xwininfo", {"-root", "-tree"});
        const auto placeOf = [&](const QWidget& window) {
            return tree.indexOf("0x" + QByteArray::number(window.winId(), 16));
        };
        return placeOf(upper) >= 0 && placeOf(upper) < placeOf(lower);
    }
    void Show() {
        launcher.All().windowsBeside.loading.ShowLoadingInfo(&launcher.MainWindow());
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&Screen(), patience));
    }
    bool IsUp() { return windows.Find("LoadingInfo") != nullptr; }
    QWidget& Screen() { return windows.ViewOf(*windows.Find("LoadingInfo"))->Window(); }
    void ClickOn(const char* name) {
        const auto* widget = Screen().findChild<QWidget*>(name);
        ASSERT_TRUE(widget) << name;
        const QPoint at = widget->mapToGlobal(widget->rect().center());
        Output("xdotool",
               {"mousemove", QString::number(at.x()), QString::number(at.y()), "click", "1"});
    }

    kivu::testing::MemoryFileSystem files;
    kivu::testing::ScriptedHost host{files};
    view::TextMeasure measure;
    view::ScreenWindows windows;
    wiring::Launcher launcher{host.Services("/k"), &measure, [] {}, &windows};
    view::FormView mainView{launcher.MainWindow()};
};

TEST_F(X11Loading, LiesAboveAFullscreenProgramAndTakesItsClicksAndNotItsKeys) {
    QWidget full;
    full.setWindowFlag(Qt::WindowStaysOnTopHint);
    full.showFullScreen();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&full, patience));
    for (const char* name : {"TxtTitle", "Label1"}) {
        Show();
        EXPECT_TRUE(Wait([&] { return LiesAbove(Screen(), full); }));
        EXPECT_TRUE(full.isActiveWindow());
        ClickOn(name);
        EXPECT_TRUE(Wait([&] { return !IsUp(); })) << name;
        EXPECT_TRUE(full.isActiveWindow());
    }
    launcher.MainWindow().CurrentRunninApplication = "alpha";
    host.processes.entries.push_back({4711, {"alpha"}, false, false});
    Show();
    EXPECT_TRUE(Wait([&] { return LiesAbove(Screen(), full); }));
    ClickOn("Command1");
    EXPECT_TRUE(Wait([&] { return !IsUp(); }));
    EXPECT_TRUE(host.processes.entries.empty());
}

// A box of the launcher's, which must be seen, and which lasts when the screen goes behind it.
TEST_F(X11Loading, BoxesLieAboveIt) {
    Show();
    hosts::QtDialogs dialogs(false);
    bool seen = false, left = false;
    QTimer::singleShot(0, &mainView, [&] {
        ASSERT_TRUE(Wait([] { return QApplication::activeModalWidget() != nullptr; }));
        QWidget& box = *QApplication::activeModalWidget();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&box, patience));
        EXPECT_NE(box.parentWidget(), &Screen());
        seen = Wait([&] { return LiesAbove(box, Screen()); });
        windows.Find("LoadingInfo")->Unload();
        QCoreApplication::processEvents();
        left = box.isVisible();
        Output("xdotool", {"key", "Return"});
    });
    {
        const forms::WindowHost::Question question(windows);
        dialogs.MessageBox("Text", "Title", platform::Buttons::Ok, platform::Icon::None);
    }
    EXPECT_TRUE(seen);
    EXPECT_TRUE(left);
}

TEST_F(X11Loading, ComesBackAboveAFullscreenProgramAfterABox) {
    QWidget full;
    full.setWindowFlag(Qt::WindowStaysOnTopHint);
    full.showFullScreen();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&full, patience));
    Show();
    EXPECT_TRUE(Wait([&] { return LiesAbove(Screen(), full); }));
    {
        const forms::WindowHost::Question question(windows);
        EXPECT_TRUE(Wait([&] { return LiesAbove(full, Screen()); }));
    }
    EXPECT_TRUE(Wait([&] { return LiesAbove(Screen(), full); }));
    EXPECT_TRUE(full.isActiveWindow());
    ClickOn("TxtTitle");
    EXPECT_TRUE(Wait([&] { return !IsUp(); }));
}

}  // namespace
}  // namespace kivu::tests
