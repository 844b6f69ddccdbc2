#include <QApplication>
#include <QDialog>
#include <QTest>
#include <gtest/gtest.h>

#include "hosts/qt/close_requests_qt.h"

namespace kivu::tests {
namespace {

// As the system hands it on.
struct Message {
    void* window = nullptr;
    unsigned number = 0;
};
constexpr unsigned closeNumber = 0x10, moveNumber = 0x03;

class CloseRequests : public testing::Test {
 protected:
    CloseRequests() {
        behind.show();
        modal.setModal(true);
        modal.show();
        modal.setWindowState(Qt::WindowMinimized);
        QCoreApplication::processEvents();
        EXPECT_TRUE(modal.isMinimized());
    }
    void Send(unsigned number, const QWidget* to = nullptr) {
        Message message{to ? reinterpret_cast<void*>(to->winId()) : nullptr, number};
        qintptr result = 0;
        EXPECT_FALSE(requests.nativeEventFilter("windows_generic_MSG", &message, &result));
        QCoreApplication::processEvents();
    }

    QWidget behind;
    QDialog modal;
    hosts::CloseRequests requests{*QCoreApplication::instance()};
};

TEST_F(CloseRequests, FetchTheModalWindowThatKeepsThemOff) {
    Send(moveNumber);
    EXPECT_TRUE(modal.isMinimized());
    Send(closeNumber);
    EXPECT_FALSE(modal.isMinimized());
    EXPECT_TRUE(behind.isVisible());
    EXPECT_TRUE(modal.isVisible());
}

TEST_F(CloseRequests, OfTheModalWindowItselfGoTheirOwnWay) {
    Send(closeNumber, &modal);
    EXPECT_TRUE(modal.isMinimized());
    Send(closeNumber, &behind);
    EXPECT_FALSE(modal.isMinimized());
}

TEST_F(CloseRequests, AreNobodysBusinessWithoutOne) {
    modal.reject();
    Send(closeNumber);
    EXPECT_FALSE(modal.isVisible());
    EXPECT_TRUE(behind.isVisible());
}

}  // namespace
}  // namespace kivu::tests
