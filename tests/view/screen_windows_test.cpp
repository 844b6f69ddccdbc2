#include "view/screen_windows.h"

#include <QPointer>
#include <QScreen>
#include <QTest>
#include <QTimer>
#include <QWindow>
#include <gmock/gmock.h>

#include "forms/on_demand.h"
#include "view/box_form.h"

namespace kivu::tests {
namespace {

class ScreenWindowsTest : public ::testing::Test {
 protected:
    ScreenWindowsTest() {
        windows.AdoptView(main, mainView);
        mainView.Show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&mainView.Window(), patience));
    }
    ~ScreenWindowsTest() override { Settle(); }

    static void Settle() { QCoreApplication::processEvents(); }
    QWidget& WindowOf(const forms::Form& form) { return windows.ViewOf(form)->Window(); }
    // Shows a modal window, and lets the user act once it is there.
    void Ask(forms::Form& form, const std::function<void(QWidget& window)>& act) {
        bool acted = false;
        QTimer::singleShot(0, &mainView, [&] {
            QWidget& window = WindowOf(form);
            EXPECT_TRUE(QTest::qWaitForWindowActive(&window, patience));
            acted = true;
            act(window);
        });
        windows.ShowModal(form, &main);
        EXPECT_TRUE(acted);
    }
    static void Click(QWidget& window, const char* name) {
        auto* widget = window.findChild<QWidget*>(QString::fromUtf8(name));
        ASSERT_TRUE(widget) << name;
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {},
                          widget->mapTo(&window, widget->rect().center()));
    }

    static constexpr int patience = 20000;  // milliseconds; a busy machine is slow
    view::ScreenWindows windows;
    SampleForm main;
    view::FormView mainView{main};
    forms::OnDemand<BoxForm> box{windows, [this] { return std::make_unique<BoxForm>(windows); }};
};

TEST_F(ScreenWindowsTest, StandsOverItsOwnerInTheMiddleOfIt) {
    windows.Show(box.Get(), &main);
    QWidget& window = WindowOf(box.Get());
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window, patience));
    EXPECT_EQ(window.windowHandle()->transientParent(), mainView.Window().windowHandle());
    EXPECT_FALSE(window.isModal());
    // 800 by 600 pixels at 100, 100.
    EXPECT_EQ(window.geometry(), QRect(350, 300, 300, 200));
    EXPECT_TRUE(box.Get().text.HasFocus());
    EXPECT_EQ(window.focusWidget()->objectName(), "Text");
}

TEST_F(ScreenWindowsTest, IsInsideTheScreenWhereItsOwnerReachesBeyond) {
    main.Move(-6000, -4000, 12000, 9000);
    box.Get().Move(0, 0, 30000, 60000);
    windows.Show(box.Get(), &main);
    const QRect room = mainView.Window().screen()->availableGeometry();
    EXPECT_TRUE(room.contains(WindowOf(box.Get()).geometry()));
}

TEST_F(ScreenWindowsTest, StaysOnTopAsLongAsItsOwnerDoes) {
    main.SetTopmost(true);
    windows.Show(box.Get(), &main);
    const QWindow* native = WindowOf(box.Get()).windowHandle();
    EXPECT_TRUE(native->flags() & Qt::WindowStaysOnTopHint);
    main.SetTopmost(false);
    EXPECT_FALSE(native->flags() & Qt::WindowStaysOnTopHint);
    EXPECT_FALSE(box.Get().IsTopmost());
    main.SetTopmost(true);
    EXPECT_TRUE(native->flags() & Qt::WindowStaysOnTopHint);
    EXPECT_TRUE(WindowOf(box.Get()).isVisible());
}

TEST_F(ScreenWindowsTest, ModalWindowReturnsAfterAClickThatHidesIt) {
    Ask(box.Get(), [&](QWidget& window) {
        EXPECT_TRUE(window.isModal());
        EXPECT_EQ(windows.Questions(), 1);
        Click(window, "Ok");
    });
    EXPECT_EQ(windows.Questions(), 0);
    EXPECT_EQ(box.Get().log, std::vector<std::string>{"ok"});
    EXPECT_FALSE(WindowOf(box.Get()).isVisible());
    ASSERT_TRUE(QTest::qWaitForWindowActive(&mainView.Window(), patience));
}

TEST_F(ScreenWindowsTest, EscapeAndEnterPressTheButtonsForThem) {
    Ask(box.Get(), [](QWidget& window) { QTest::keyClick(window.focusWidget(), Qt::Key_Return); });
    EXPECT_EQ(box.Get().log, std::vector<std::string>{"ok"});
    Ask(box.Get(), [](QWidget& window) { QTest::keyClick(window.focusWidget(), Qt::Key_Escape); });
    EXPECT_EQ(box.Loaded(), nullptr);
}

TEST_F(ScreenWindowsTest, HiddenOneKeepsWhatItHoldsAndUnloadedOneStartsFresh) {
    Ask(box.Get(), [](QWidget& window) {
        QTest::keyClicks(window.focusWidget(), "a.adf");
        Click(window, "Ok");
    });
    Ask(box.Get(), [&](QWidget& window) {
        EXPECT_EQ(box.Get().text.Text(), "a.adf");
        Click(window, "Cancel");
    });
    Ask(box.Get(), [&](QWidget& window) {
        EXPECT_EQ(box.Get().text.Text(), "");
        Click(window, "Cancel");
    });
}

TEST_F(ScreenWindowsTest, WindowAndViewGoOnceTheHandlerIsThrough) {
    windows.Show(box.Get(), &main);
    BoxForm& form = box.Get();
    const QPointer<QWidget> window = &WindowOf(form);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(window, patience));
    bool alive = false;
    form.cancel.onClick = [&] {
        form.Unload();
        QCoreApplication::processEvents();
        alive = window && !window->isVisible() && !form.Visible();
    };
    Click(*window, "Cancel");
    EXPECT_TRUE(alive);
    Settle();
    EXPECT_FALSE(window);
}

TEST_F(ScreenWindowsTest, ClosedByTheWindowManagerItIsUnloadedUnlessItObjects) {
    bool refuse = true;
    box.Get().onQueryClose = [&](bool& cancel) { cancel = refuse; };
    Ask(box.Get(), [&](QWidget& window) {
        EXPECT_FALSE(window.close());
        EXPECT_TRUE(window.isVisible());
        refuse = false;
        window.close();
    });
    EXPECT_EQ(box.Loaded(), nullptr);
}

TEST_F(ScreenWindowsTest, ModalWindowOverAModalWindowEndsFirst) {
    forms::OnDemand<BoxForm> inner{windows, [this] { return std::make_unique<BoxForm>(windows); }};
    std::vector<std::string> log;
    Ask(box.Get(), [&](QWidget& outer) {
        Ask(inner.Get(), [&](QWidget& window) {
            EXPECT_EQ(windows.Questions(), 2);
            EXPECT_TRUE(windows.IsBlocked(box.Get()));
            Click(window, "Ok");
        });
        log.push_back("inner");
        Click(outer, "Ok");
    });
    log.push_back("outer");
    EXPECT_EQ(log, (std::vector<std::string>{"inner", "outer"}));
}

TEST_F(ScreenWindowsTest, OuterModalWindowThatIsHiddenFirstWaitsForTheInnerOne) {
    forms::OnDemand<BoxForm> inner{windows, [this] { return std::make_unique<BoxForm>(windows); }};
    Ask(box.Get(), [&](QWidget&) {
        Ask(inner.Get(), [&](QWidget& window) {
            box.Get().SetVisible(false);
            EXPECT_TRUE(window.isVisible());
            Click(window, "Ok");
        });
    });
    EXPECT_EQ(windows.Questions(), 0);
}

TEST_F(ScreenWindowsTest, OneThatTakesNoFocusAsksTheScreenForThat) {
    box.Get().SetActivates(false);
    windows.Show(box.Get(), &main);
    QWidget& window = WindowOf(box.Get());
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window, patience));
    EXPECT_TRUE(window.testAttribute(Qt::WA_ShowWithoutActivating));
    EXPECT_EQ(box.Get().Focus(), nullptr);
}

TEST_F(ScreenWindowsTest, FixedOneHasNoEdgesToPull) {
    const auto edges = [&] {
        int shown = 0;
        for (QObject* child : WindowOf(box.Get()).children()) {
            auto* widget = qobject_cast<QWidget*>(child);
            shown += widget && widget->objectName().isEmpty() && widget->isVisible();
        }
        return shown;
    };
    windows.Show(box.Get(), &main);
    EXPECT_EQ(edges(), 8);
    box.Get().SetResizable(false);
    EXPECT_EQ(edges(), 0);
}

TEST_F(ScreenWindowsTest, TimersOfAModalWindowGoOn) {
    box.Get().timer.onTimer = [&] { box.Get().SetVisible(false); };
    box.Get().timer.SetEnabled(true);
    windows.ShowModal(box.Get(), &main);
    EXPECT_FALSE(box.Get().Visible());
}

TEST_F(ScreenWindowsTest, RoomIsThatOfTheOwnersScreen) {
    const QSize room = mainView.Window().screen()->availableSize();
    EXPECT_EQ(windows.Room(&main).width, room.width() * forms::twipsPerPixel);
    EXPECT_EQ(windows.Room(nullptr).height, room.height() * forms::twipsPerPixel);
}

TEST_F(ScreenWindowsTest, OneOfOursIsActiveWhileItHasTheKeyboard) {
    using Activity = forms::WindowHost::Activity;
    bool elsewhere = true;
    windows.SetElsewhere([&] { return elsewhere; });
    ASSERT_TRUE(QTest::qWaitForWindowActive(&mainView.Window(), patience));
    // Whatever the system says.
    EXPECT_EQ(windows.ActiveWindow(), Activity::ours);
    Ask(box.Get(), [&](QWidget& window) {
        EXPECT_EQ(windows.ActiveWindow(), Activity::ours);
        Click(window, "Cancel");
    });
    mainView.Window().hide();
    ASSERT_TRUE(QTest::qWaitFor([] { return !QGuiApplication::focusWindow(); }, patience));
    EXPECT_EQ(windows.ActiveWindow(), Activity::others);
    elsewhere = false;
    EXPECT_EQ(windows.ActiveWindow(), Activity::unknown);
    windows.SetElsewhere({});
    EXPECT_EQ(windows.ActiveWindow(), Activity::unknown);
}

}  // namespace
}  // namespace kivu::tests
