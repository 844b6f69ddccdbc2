#include <QApplication>
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
        server.setArguments({"-displayfd", "1", "-screen", "0", "1280x900x24", "-nolisten", "tcp"});
        server.start();
        if (!server.waitForStarted() || !server.waitForReadyRead(10000)) return false;
        const QByteArray display = ":" + server.readLine().trimmed();
        qputenv("DISPLAY", display);
        qputenv("QT_QPA_PLATFORM", "xcb");
        manager.start("openbox", {});
        return manager.waitForStarted();
    }

    ~OwnDisplay() {
        for (QProcess* process : {&manager, &server}) {
            process->terminate();
            process->waitForFinished(5000);
        }
    }

 private:
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
