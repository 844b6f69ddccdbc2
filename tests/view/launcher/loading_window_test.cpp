#include <QAccessible>
#include <QTest>
#include <QWindow>
#include <gmock/gmock.h>

#include "testing/memory_file_system.h"
#include "testing/scripted_host.h"
#include "view/box_fonts.h"
#include "view/form_view.h"
#include "view/screen_windows.h"
#include "view/text_measure.h"
#include "wiring/routines.h"

namespace kivu::tests {
namespace {

// The loading screen in real windows, by real clicks and keys.
class LoadingView : public ::testing::Test {
 protected:
    LoadingView() {
        files.AddDirectory("/k/Config");
        launcher.Start();
        windows.AdoptView(launcher.MainWindow(), mainView);
        mainView.Show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&mainView.Window(), patience));
        launcher.MainWindow().SplashSeconds = 6;
        launcher.MainWindow().CURRENT_PROGRAM_STARTED = "Turrican (1990)(Rainbow)(Disk 1 of 3)";
    }
    ~LoadingView() override { QCoreApplication::processEvents(); }

    void Show() {
        launcher.All().windowsBeside.loading.ShowLoadingInfo(&launcher.MainWindow());
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&Screen(), patience));
    }
    bool IsUp() { return windows.Find("LoadingInfo") != nullptr; }
    launch::LoadingForm& ScreenForm() {
        return dynamic_cast<launch::LoadingForm&>(*windows.Find("LoadingInfo"));
    }
    QWidget& Screen() { return windows.ViewOf(ScreenForm())->Window(); }
    void ClickOn(const char* name) {
        auto* widget = Screen().findChild<QWidget*>(name);
        ASSERT_TRUE(widget) << name;
        ClickAt(widget->mapTo(&Screen(), widget->rect().center()));
    }
    void ClickAt(QPoint place) {
        QTest::mouseClick(Screen().windowHandle(), Qt::LeftButton, {}, place);
        QCoreApplication::processEvents();
    }
    void Key(Qt::Key key) {
        QTest::keyClick(mainView.Window().windowHandle(), key);
        QCoreApplication::processEvents();
    }
    void ExpectFits(const forms::Label& label) {
        int lines = 0;
        for (const std::string_view line : forms::CaptionLines(label.Caption()))
            lines += label.LinesOf(line, label.Width());
        EXPECT_LE(lines * label.ShownLineHeight(), label.Height()) << label.Caption();
    }

    static constexpr int patience = 20000;  // milliseconds; a busy machine is slow
    kivu::testing::MemoryFileSystem files;
    kivu::testing::ScriptedHost host{files};
    view::TextMeasure measure;
    view::ScreenWindows windows;
    wiring::Launcher launcher{host.Services("/k"), &measure, [] {}, &windows};
    view::FormView mainView{launcher.MainWindow()};
};

TEST_F(LoadingView, ClickAnywhereTakesItAway) {
    for (const char* name : {"Label1", "TxtTitle"}) {
        Show();
        ClickOn(name);
        EXPECT_FALSE(IsUp()) << name;
    }
    Show();
    ClickAt(QPoint(Screen().width() / 3, 6));
    EXPECT_FALSE(IsUp());
}

TEST_F(LoadingView, ButtonEndsTheGame) {
    launcher.MainWindow().CurrentRunninApplication = "alpha";
    host.processes.entries.push_back({4711, {"alpha"}, false, false});
    Show();
    ClickOn("Command1");
    EXPECT_FALSE(IsUp());
    EXPECT_EQ(host.processes.entries.size(), 0U);
}

// That the main window keeps the keyboard is for a window manager to show.
TEST_F(LoadingView, KeysInTheMainWindowSkipTheScreen) {
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Space}) {
        Show();
        EXPECT_TRUE(Screen().testAttribute(Qt::WA_ShowWithoutActivating));
        Key(key);
        EXPECT_TRUE(IsUp());
        host.clock.MoveOn(std::chrono::milliseconds(500));
        Key(key);
        EXPECT_FALSE(IsUp());
        EXPECT_TRUE(host.dialogs.shown.empty());
    }
}

TEST_F(LoadingView, ItsTimerTakesItAway) {
    launcher.MainWindow().SplashSeconds = 1;
    Show();
    ScreenForm().Timer1.SetInterval(5);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !IsUp(); }, patience));
}

TEST_F(LoadingView, StandsInTheMiddleOfTheScreen) {
    mainView.Window().move(30, 40);
    Show();
    const QPoint middle = Screen().screen()->availableGeometry().center();
    EXPECT_NEAR(Screen().geometry().center().x(), middle.x(), 2);
    EXPECT_NEAR(Screen().geometry().center().y(), middle.y(), 2);
}

// A click anywhere sends it away: that makes no buttons of what lies on it.
TEST_F(LoadingView, IsToldAsTwoTextsAndAButton) {
    launcher.MainWindow().CurrentLanguage = 2;
    Show();
    ScreenForm().GameImage.SetPicture(
        {"Turrican.png", std::make_shared<const forms::Bitmap>(forms::Bitmap{1, 1, {0}, true})});
    const QAccessibleInterface* window = QAccessible::queryAccessibleInterface(&Screen());
    std::vector<std::string> told;
    for (int i = 0; i < window->childCount(); ++i) {
        const bool text = window->child(i)->role() == QAccessible::StaticText;
        told.push_back((text ? "text " : "") +
                       window->child(i)->text(QAccessible::Name).toStdString());
    }
    EXPECT_THAT(told, ::testing::UnorderedElementsAre(
                          "text Please wait... Loading:", "text Turrican (1990)(Rainbow)(Disk",
                          ScreenForm().Command1.Caption()));
}

TEST_F(LoadingView, NoTextIsCutInEitherLanguageAtAnySize) {
    if (FontsAreBoxes()) GTEST_SKIP() << "this host has no fonts";
    for (const int language : {1, 2}) {
        for (const int size : {8, 24, 40}) {
            launcher.MainWindow().CurrentLanguage = language;
            launcher.MainWindow().UAE_Short.SetFontSize(size);
            Show();
            ExpectFits(ScreenForm().Label1);
            ExpectFits(ScreenForm().TxtTitle);
            ScreenForm().Unload();
        }
    }
}

}  // namespace
}  // namespace kivu::tests
