#include "settings/settings_window.h"

#include <QTest>
#include <QTimer>
#include <QWindow>
#include <gmock/gmock.h>
#include <set>

#include "testing/memory_file_system.h"
#include "testing/scripted_host.h"
#include "view/form_view.h"
#include "view/screen_windows.h"
#include "view/text_measure.h"
#include "wiring/routines.h"

namespace kivu::tests {
namespace {

// The settings in real windows, by the keyboard alone.
class SettingsView : public ::testing::Test {
 protected:
    SettingsView() {
        files.AddFile("/k/Config/Kivu.ini",
                      "[Settings]\r\nLastEmulator=Amiga\r\nUseJoystick=0\r\n");
        files.AddFile("/k/Config/Amiga/Kivu.ini", "[Settings]\r\nEmulatorPath=/e/amiga\r\n");
        files.AddFile("/e/amiga", "x");
        launcher.Start();
        windows.AdoptView(launcher.MainWindow(), mainView);
        mainView.Show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&mainView.Window(), patience));
    }
    ~SettingsView() override { QCoreApplication::processEvents(); }

    settings::SettingsForm& Form() {
        return static_cast<settings::SettingsForm&>(*windows.Find("SettingsForm"));
    }
    // Opens it by the keyboard, and lets the user act once it is there.
    void Open(const std::function<void(QWidget& window)>& act) {
        bool acted = false;
        QTimer::singleShot(0, &mainView, [&] {
            ASSERT_NE(windows.Find("SettingsForm"), nullptr);
            QWidget& window = windows.ViewOf(Form())->Window();
            ASSERT_TRUE(QTest::qWaitForWindowActive(&window, patience));
            acted = true;
            act(window);
        });
        launcher.MainWindow().SettingsBtn.SetFocus();
        QTest::keyClick(mainView.Window().windowHandle(), Qt::Key_Space);
        EXPECT_TRUE(acted);
        QCoreApplication::processEvents();
        EXPECT_EQ(windows.Find("SettingsForm"), nullptr);
    }
    static void Key(QWidget& window, Qt::Key key, Qt::KeyboardModifiers held = Qt::NoModifier) {
        QTest::keyClick(window.windowHandle(), key, held);
        QCoreApplication::processEvents();
    }
    std::string Profile() const { return files.BytesOf("/k/Config/Amiga/Kivu.ini"); }

    static constexpr int patience = 20000;  // milliseconds; a busy machine is slow
    kivu::testing::MemoryFileSystem files;
    kivu::testing::ScriptedHost host{files};
    view::TextMeasure measure;
    view::ScreenWindows windows;
    wiring::Launcher launcher{host.Services("/k"), &measure, [] {}, &windows};
    view::FormView mainView{launcher.MainWindow()};
};

TEST_F(SettingsView, TabGoesThroughItAndAnAccessKeySaves) {
    Open([this](QWidget& window) {
        EXPECT_TRUE(Form().txtWinUAEExe.HasFocus());
        std::set<std::string> seen;
        for (int i = 0; i < 200 && !Form().UAELaunchParaneter.HasFocus(); ++i) {
            ASSERT_NE(Form().Focus(), nullptr);
            seen.insert(Form().Focus()->Name());
            Key(window, Qt::Key_Tab);
        }
        EXPECT_TRUE(seen.contains("TxtRomPath"));
        EXPECT_TRUE(seen.contains("DirBefehleTxt"));
        ASSERT_TRUE(Form().UAELaunchParaneter.HasFocus());
        EXPECT_FALSE(Form().SaveBtn.Enabled());
        Key(window, Qt::Key_X);
        EXPECT_TRUE(Form().SaveBtn.Enabled());
        Key(window, Qt::Key_S, Qt::AltModifier);
        EXPECT_FALSE(Form().SaveBtn.Enabled());
        Key(window, Qt::Key_Escape);
    });
    EXPECT_THAT(Profile(), ::testing::HasSubstr("EmulatorParameter=x\r\n"));
    EXPECT_TRUE(host.dialogs.shown.empty());
    EXPECT_FALSE(launcher.MainWindow().Busy);
}

TEST_F(SettingsView, SavedByCtrlSTheFocusStaysInTheField) {
    Open([this](QWidget& window) {
        Form().UAELaunchParaneter.SetFocus();
        Key(window, Qt::Key_X);
        Key(window, Qt::Key_S, Qt::ControlModifier);
        EXPECT_FALSE(Form().SaveBtn.Enabled());
        EXPECT_TRUE(Form().UAELaunchParaneter.HasFocus());
        Key(window, Qt::Key_Y);
        EXPECT_TRUE(Form().SaveBtn.Enabled());
        host.dialogs.answers = {platform::Answer::Cancel, platform::Answer::Ok};
        Key(window, Qt::Key_Escape);
        EXPECT_NE(windows.Find("SettingsForm"), nullptr);
        Key(window, Qt::Key_Escape);
    });
    EXPECT_EQ(host.dialogs.shown.size(), 2u);
    EXPECT_THAT(Profile(), ::testing::HasSubstr("EmulatorParameter=x\r\n"));
}

TEST_F(SettingsView, AWindowManagerThatClosesItIsTheButton) {
    Open([this](QWidget& window) {
        Form().UAELaunchParaneter.SetFocus();
        Key(window, Qt::Key_X);
        host.dialogs.answers = {platform::Answer::Cancel, platform::Answer::Ok};
        window.close();
        QCoreApplication::processEvents();
        EXPECT_NE(windows.Find("SettingsForm"), nullptr);
        window.close();
    });
    EXPECT_EQ(host.dialogs.shown.size(), 2u);
    EXPECT_TRUE(mainView.Window().isVisible());
}

}  // namespace
}  // namespace kivu::tests
