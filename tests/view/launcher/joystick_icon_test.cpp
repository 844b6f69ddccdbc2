#include <QTest>
#include <QWindow>
#include <gmock/gmock.h>

#include "testing/memory_file_system.h"
#include "testing/scripted_host.h"
#include "view/form_view.h"
#include "view/geometry.h"
#include "view/screen_windows.h"
#include "view/text_measure.h"
#include "wiring/launcher.h"

namespace kivu::tests {
namespace {

// The picture that shows that controllers are on, in the window with a user's mouse.
class JoystickIconView : public ::testing::Test {
 protected:
    JoystickIconView() {
        files.AddDirectory("/k/Config");
        host.controllers.devices = {{{"Pad", 18}, {}}};
    }
    void Show() {
        launcher.Start();
        windows.AdoptView(launcher.MainWindow(), mainView);
        mainView.Show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&mainView.Window(), patience));
        icon = mainView.Window().findChild<QWidget*>("JoystickIcon");
    }
    ~JoystickIconView() override { QCoreApplication::processEvents(); }

    QRect Place(const char* name) {
        auto* widget = mainView.Window().findChild<QWidget*>(name);
        if (!widget || !widget->isVisible()) return {};
        return {widget->mapTo(&mainView.Window(), QPoint()), widget->size()};
    }
    void Click() {
        QTest::mouseClick(mainView.Window().windowHandle(), Qt::LeftButton, {},
                          Place("JoystickIcon").center());
        QCoreApplication::processEvents();
    }
    void Resize(int width, int height) {
        mainView.Window().resize(width, height);
        QCoreApplication::processEvents();
    }

    static constexpr int patience = 20000;  // milliseconds; a busy machine is slow
    kivu::testing::MemoryFileSystem files;
    kivu::testing::ScriptedHost host{files};
    view::TextMeasure measure;
    view::ScreenWindows windows;
    wiring::Launcher launcher{host.Services("/k"), &measure, [] {}, &windows};
    view::FormView mainView{launcher.MainWindow()};
    QWidget* icon = nullptr;
};

TEST_F(JoystickIconView, IsSeenWithItsToolTipWhileControllersAreOn) {
    Show();
    ASSERT_TRUE(icon);
    EXPECT_TRUE(icon->isVisible());
    EXPECT_EQ(icon->toolTip().toStdString(), launcher.MainWindow().JoystickIcon.ToolTipText());
    EXPECT_FALSE(icon->toolTip().isEmpty());
    EXPECT_EQ(icon->cursor().shape(), Qt::PointingHandCursor);
}

TEST_F(JoystickIconView, LiesInTheWindowAndOnNothing) {
    Show();
    for (const QSize size : {QSize(960, 680), QSize(1024, 768), QSize(1600, 1000)}) {
        Resize(size.width(), size.height());
        const QRect place = Place("JoystickIcon");
        EXPECT_TRUE(mainView.Window().rect().contains(place)) << size.width();
        EXPECT_GE(place.width(), 16);
        EXPECT_EQ(place.width(), place.height());
        for (const char* other : {"FontSizeCombo", "AlwaysOnTop1", "ExitBtn", "SearchDblsTxt"})
            EXPECT_FALSE(place.intersects(Place(other))) << other << " " << size.width();
    }
}

TEST_F(JoystickIconView, AClickOpensTheControllersAnew) {
    Show();
    const int opened = host.controllers.opened, closed = host.controllers.closed;
    Click();
    EXPECT_EQ(host.controllers.opened, opened + 1);
    EXPECT_GT(host.controllers.closed, closed);
    EXPECT_EQ(host.beeper.count, 1);
    EXPECT_TRUE(icon->isVisible());
}

TEST_F(JoystickIconView, IsNotSeenWhileControllersAreOff) {
    files.AddFile("/k/Config/Kivu.ini", "[Settings]\nUseJoystick=0\n");
    Show();
    EXPECT_TRUE(Place("JoystickIcon").isNull());
    EXPECT_EQ(host.controllers.opened, 0);
}

}  // namespace
}  // namespace kivu::tests
