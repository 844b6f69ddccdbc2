#include <QLabel>
#include <QTest>
#include <QTimer>
#include <QWindow>
#include <gmock/gmock.h>

#include "testing/memory_file_system.h"
#include "testing/scripted_host.h"
#include "view/box_fonts.h"
#include "view/form_view.h"
#include "view/screen_windows.h"
#include "view/text_measure.h"
#include "wiring/launcher.h"

namespace kivu::tests {
namespace {

// The set-up of the pad's buttons in real windows, by real keys.
class ButtonSetupView : public ::testing::Test {
 protected:
    ButtonSetupView() {
        files.AddDirectory("/k/Config");
        host.controllers.devices = {{{"Pad", 18}, {}}};
        launcher.Start();
        windows.AdoptView(launcher.MainWindow(), mainView);
        mainView.Show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&mainView.Window(), patience));
    }
    ~ButtonSetupView() override { QCoreApplication::processEvents(); }

    forms::Form& SetupForm() { return *windows.Find("SetJoystickButtons"); }
    // Opens it by a double click on the picture, and lets the user act once it is there.
    void Open(const std::function<void(QWidget& window)>& act) {
        bool acted = false;
        QTimer::singleShot(0, &mainView, [&] {
            ASSERT_NE(windows.Find("SetJoystickButtons"), nullptr);
            QWidget& window = windows.ViewOf(SetupForm())->Window();
            ASSERT_TRUE(QTest::qWaitForWindowActive(&window, patience));
            acted = true;
            act(window);
        });
        auto* icon = mainView.Window().findChild<QWidget*>("JoystickIcon");
        ASSERT_TRUE(icon);
        ASSERT_TRUE(icon->isVisible());
        QTest::mouseDClick(mainView.Window().windowHandle(), Qt::LeftButton, {},
                           icon->mapTo(&mainView.Window(), icon->rect().center()));
        EXPECT_TRUE(acted);
        QCoreApplication::processEvents();
        EXPECT_EQ(windows.Find("SetJoystickButtons"), nullptr);
    }
    static void Key(QWidget& window, Qt::Key key) {
        QTest::keyClick(window.windowHandle(), key);
        QCoreApplication::processEvents();
    }
    // What a timer of the window would do.
    void Tick(const char* timer) {
        ASSERT_TRUE(static_cast<forms::Timer*>(SetupForm().Find(timer))->Tick());
        QCoreApplication::processEvents();
    }

    static constexpr int patience = 20000;  // milliseconds; a busy machine is slow
    kivu::testing::MemoryFileSystem files;
    kivu::testing::ScriptedHost host{files};
    view::TextMeasure measure;
    view::ScreenWindows windows;
    wiring::Launcher launcher{host.Services("/k"), &measure, [] {}, &windows};
    view::FormView mainView{launcher.MainWindow()};
};

TEST_F(ButtonSetupView, KeysSkipButtonsAreTakenAndThePromptFollows) {
    Open([this](QWidget& window) {
        Tick("ShowTimer");
        auto* info = window.findChild<QWidget*>("InfoLabel");
        ASSERT_TRUE(info);
        EXPECT_TRUE(info->isVisible());
        auto* label = static_cast<forms::Label*>(SetupForm().Find("InfoLabel"));
        EXPECT_EQ(label->Caption(), "Press Button 1\r\r Quit Kivu\r\r1 / 12");
        host.controllers.devices[0].state.buttons[4] = true;
        Tick("PollingTimer");
        Key(window, Qt::Key_Space);
        Key(window, Qt::Key_A);
        Tick("ShowTimer");
        EXPECT_EQ(label->Caption(), "Press Button 4\r\r Switch Emulator\r\r4 / 12");
        // No text is cut off.
        EXPECT_LE(label->TextHeight(), label->Height());
        EXPECT_LE(label->TextWidth(), label->Width());
        Key(window, Qt::Key_Escape);
    });
    EXPECT_FALSE(launcher.MainWindow().JoystickButtonSetupModus);
    EXPECT_EQ(files.BytesOf("/k/Config/Kivu.ini").find("Button1=5"), std::string::npos);
}

TEST_F(ButtonSetupView, TwelveKeysStoreThem) {
    Open([](QWidget& window) {
        for (int i = 0; i < 12; ++i)
            Key(window, Qt::Key_Return);
    });
    EXPECT_NE(files.BytesOf("/k/Config/Kivu.ini").find("Button12=-2"), std::string::npos);
}

TEST_F(ButtonSetupView, NoTextIsCutInEitherLanguageAtAnySize) {
    if (FontsAreBoxes()) GTEST_SKIP() << "this host has no fonts";
    for (const int language : {1, 2}) {
        for (const int size : {8, 24, 40}) {
            launcher.MainWindow().CurrentLanguage = language;
            launcher.MainWindow().WIthoutDoubles.SetFontSize(size);
            Open([&](QWidget& window) {
                auto* info = static_cast<forms::Label*>(SetupForm().Find("InfoLabel"));
                auto* hint = static_cast<forms::Label*>(SetupForm().Find("Label1"));
                for (int action = 0; action < 12; ++action) {
                    Tick("ShowTimer");
                    EXPECT_LE(info->TextWidth(), info->Width()) << size << info->Caption();
                    EXPECT_LE(info->TextHeight(), info->Height()) << size << info->Caption();
                    EXPECT_LE(hint->TextWidth(), hint->Width()) << size << hint->Caption();
                    EXPECT_LE(hint->TextHeight(), hint->Height()) << size;
                    if (action < 11) Key(window, Qt::Key_Space);
                }
                Key(window, Qt::Key_Escape);
            });
        }
    }
}

}  // namespace
}  // namespace kivu::tests
