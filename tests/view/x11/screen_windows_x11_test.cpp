#include <QPointer>
#include <QProcess>
#include <QTimer>

#include "forms/on_demand.h"
#include "hosts/qt/active_window_qt.h"
#include "view/box_form.h"
#include "view/screen_windows.h"
#include "view/shown_form.h"

namespace kivu::tests {
namespace {

constexpr int patience = 10000;  // milliseconds

// Windows over one another under a real window manager.
class X11Windows : public ::testing::Test {
 protected:
    void SetUp() override {
        ASSERT_TRUE(Wait([] {
            return Output("xprop", {"-root", "_NET_CLIENT_LIST"}).contains("window id");
        }));
        windows.AdoptView(main, mainView);
        mainView.Show();
        ASSERT_TRUE(Wait([&] {
            if (!mainView.Window().isActiveWindow()) mainView.Window().activateWindow();
            return mainView.Window().isActiveWindow();
        }));
    }
    static QByteArray Output(const QString& program, const QStringList& arguments) {
        QProcess process;
        process.start(program, arguments);
        // Events go on: the program under the mouse is this one.
        EXPECT_TRUE(Wait([&] { return process.state() == QProcess::NotRunning; }));
        return process.readAllStandardOutput();
    }
    static void Xdo(const QStringList& arguments) { Output("xdotool", arguments); }
    static bool Wait(const std::function<bool()>& until) {
        return QTest::qWaitFor(until, patience);
    }
    static QString Id(const QWidget& window) { return QString::number(window.winId()); }
    QWidget& WindowOf(const forms::Form& form) { return windows.ViewOf(form)->Window(); }

    // The server's word, from the bottom to the top.
    static bool LiesAbove(const QWidget& upper, const QWidget& lower) {
        const QByteArray tree = Output("xwininfo", {"-root", "-tree"});
        const auto frameOf = [&](const QWidget& window) {
            return tree.indexOf("0x" + QByteArray::number(window.winId(), 16));
        };
        // The list begins with the topmost.
        return frameOf(upper) >= 0 && frameOf(upper) < frameOf(lower);
    }

    void Ask(forms::Form& form, const std::function<void(QWidget& window)>& act) {
        QTimer::singleShot(0, &mainView, [&] {
            QWidget& window = WindowOf(form);
            EXPECT_TRUE(Wait([&] { return window.isActiveWindow(); }));
            act(window);
        });
        windows.ShowModal(form, &main);
    }

    view::ScreenWindows windows;
    SampleForm main;
    view::FormView mainView{main};
    forms::OnDemand<BoxForm> box{windows, [this] { return std::make_unique<BoxForm>(windows); }};
};

TEST_F(X11Windows, ModalOneTakesTheKeysAndGivesThemBack) {
    main.text.SetFocus();
    Ask(box.Get(), [&](QWidget& window) {
        EXPECT_TRUE(Output("xprop", {"-id", Id(window), "WM_TRANSIENT_FOR"})
                        .contains(QByteArray::number(mainView.Window().winId(), 16)));
        Xdo({"type", "--delay", "5", "a.adf"});
        EXPECT_TRUE(Wait([&] { return box.Get().text.Text() == "a.adf"; }));
        Xdo({"key", "Return"});
    });
    EXPECT_EQ(box.Get().log, std::vector<std::string>{"ok"});
    ASSERT_TRUE(Wait([&] { return mainView.Window().isActiveWindow(); }));
    Xdo({"type", "--delay", "5", "back"});
    EXPECT_TRUE(Wait([&] { return main.text.Text() == "back"; })) << main.text.Text();
}

TEST_F(X11Windows, EscapeClosesIt) {
    Ask(box.Get(), [&](QWidget&) { Xdo({"key", "Escape"}); });
    EXPECT_EQ(box.Loaded(), nullptr);
}

TEST_F(X11Windows, MainWindowHearsNoClickMeanwhile) {
    main.button.onClick = main.Note("button");
    main.button.SetCaption("Go");
    main.Move(1500, 1500, 12000, 9000);
    Ask(box.Get(), [&](QWidget&) {
        const QPoint place = mainView.Window().mapToGlobal(QPoint(20, 580));
        Xdo({"mousemove", QString::number(place.x()), QString::number(place.y()), "click", "1"});
        auto* button = mainView.Window().findChild<QWidget*>("Button");
        const QPoint at = button->mapToGlobal(QPoint(5, 5));
        Xdo({"mousemove", QString::number(at.x()), QString::number(at.y()), "click", "1"});
        Xdo({"key", "Escape"});
    });
    EXPECT_TRUE(main.log.empty());
}

TEST_F(X11Windows, OneOverAMainWindowThatStaysOnTopIsSeen) {
    main.SetTopmost(true);
    windows.Show(box.Get(), &main);
    QWidget& window = WindowOf(box.Get());
    EXPECT_TRUE(Wait([&] { return LiesAbove(window, mainView.Window()); }));
    EXPECT_TRUE(Wait([&] {
        return Output("xprop", {"-id", Id(window), "_NET_WM_STATE"}).contains("STATE_ABOVE");
    }));
    // Summoned together.
    windows.Raise(main);
    EXPECT_TRUE(Wait([&] { return LiesAbove(window, mainView.Window()); }));
}

TEST_F(X11Windows, OneAboveAllLiesOverAFullscreenWindowAndTakesNoFocus) {
    QWidget full;
    full.setWindowFlag(Qt::WindowStaysOnTopHint);
    full.showFullScreen();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&full, patience));
    box.Get().SetAboveAll(true);
    box.Get().SetActivates(false);
    windows.Show(box.Get(), &main);
    QWidget& window = WindowOf(box.Get());
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window, patience));
    EXPECT_TRUE(Wait([&] { return LiesAbove(window, full); }));
    EXPECT_TRUE(full.isActiveWindow());
}

TEST_F(X11Windows, OneThatTakesNoFocusLeavesItWhereItIs) {
    main.text.SetFocus();
    box.Get().SetActivates(false);
    windows.Show(box.Get(), &main);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&WindowOf(box.Get()), patience));
    Xdo({"type", "--delay", "5", "here"});
    EXPECT_TRUE(Wait([&] { return main.text.Text() == "here"; })) << main.text.Text();
}

TEST_F(X11Windows, IsDraggedByItsSurface) {
    windows.Show(box.Get(), &main);
    QWidget& window = WindowOf(box.Get());
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window, patience));
    const int left = box.Get().Left();
    const QPoint from = window.mapToGlobal(QPoint(150, 100));
    // The server's word: a window that is being moved hears of it at the end.
    const auto place = [&] { return Output("xwininfo", {"-id", Id(window)}); };
    const QByteArray before = place();
    Xdo({"mousemove", QString::number(from.x()), QString::number(from.y()), "mousedown", "1"});
    for (int step = 0; step < 10; ++step)
        Xdo({"mousemove_relative", "--sync", "--", "10", "5"});
    EXPECT_TRUE(Wait([&] { return place() != before; }));
    Xdo({"mouseup", "1"});
    EXPECT_TRUE(Wait([&] { return box.Get().Left() >= left + 1200; })) << box.Get().Left();
}

// xev is another program with a window of its own, and openbox gives a new window the keyboard.
TEST_F(X11Windows, AnotherProgramsWindowIsActiveInFrontOfOurs) {
    using Activity = forms::WindowHost::Activity;
    windows.SetElsewhere(hosts::IsAnotherProgramActive);
    EXPECT_EQ(windows.ActiveWindow(), Activity::ours);
    QProcess other;
    other.setStandardOutputFile(QProcess::nullDevice());
    other.start("xev", {"-geometry", "200x100+900+600"});
    EXPECT_TRUE(Wait([&] { return windows.ActiveWindow() == Activity::others; }));
    other.kill();
    EXPECT_TRUE(Wait([&] { return other.state() == QProcess::NotRunning; }));
    EXPECT_TRUE(Wait([&] { return windows.ActiveWindow() == Activity::ours; }));
}

TEST_F(X11Windows, WithoutAnActiveWindowNobodyKnows) {
    using Activity = forms::WindowHost::Activity;
    windows.SetElsewhere(hosts::IsAnotherProgramActive);
    mainView.Window().showMinimized();
    EXPECT_TRUE(Wait([&] { return windows.ActiveWindow() == Activity::unknown; }));
}

}  // namespace
}  // namespace kivu::tests
