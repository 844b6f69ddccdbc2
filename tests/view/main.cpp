#include <QApplication>
#include <gtest/gtest.h>
#include <optional>

#include "view/style.h"

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    std::optional<QApplication> application;
    if (!GTEST_FLAG_GET(list_tests)) {
        application.emplace(argc, argv);
        QApplication::setQuitOnLastWindowClosed(false);
        kivu::view::ApplyStyle();
    }
    return RUN_ALL_TESTS();
}
