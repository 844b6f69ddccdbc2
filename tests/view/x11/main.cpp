#include <QApplication>
#include <QDeadlineTimer>
#include <QProcess>
#include <QStandardPaths>
#include <gtest/gtest.h>
#include <optional>

#include "view/style.h"

namespace {

// A display and a window manager of our own; both end with the program.
class OwnDisplay {
 public:
    bool Start() {
        server.setProgram("Xvfb");
        server.setArguments(
            {"-displayfd", "1", "-screen", "0", "1280x900x24", "-nolisten", "tcp", "-noreset"});
        server.start();
        if (!server.waitForStarted() || !server.waitForReadyRead(10000)) return false;
        const QByteArray display = ":" + server.readLine().trimmed();
        qputenv("DISPLAY", display);
        qputenv("QT_QPA_PLATFORM", "xcb");
        manager.start("openbox", {});
        return manager.waitForStarted() && WaitUntilWindowsAreManaged();
    }

    ~OwnDisplay() {
        for (QProcess* process : {&manager, &server}) {
            process->terminate();
            process->waitForFinished(5000);
        }
    }

 private:
    // A window that is shown before the manager has announced itself would never become active.
    bool WaitUntilWindowsAreManaged() {
        const QDeadlineTimer deadline(30000);
        while (!deadline.hasExpired() && manager.state() == QProcess::Running) {
            QProcess root;
            root.start("xprop", {"-root", "_NET_SUPPORTING_WM_CHECK"});
            if (!root.waitForFinished()) return false;
            if (root.readAllStandardOutput().contains("window id")) return true;
        }
        return false;
    }

    QProcess server;
    QProcess manager;
};

}  // namespace

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (GTEST_FLAG_GET(list_tests)) return RUN_ALL_TESTS();
    OwnDisplay display;
    if (!display.Start()) {
        fprintf(stderr, "Xvfb and openbox are needed\n");
        return 1;
    }
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    kivu::view::ApplyStyle();
    return RUN_ALL_TESTS();
}
