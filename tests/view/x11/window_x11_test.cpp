#include <QProcess>
#include <QStyleHints>

#include "view/shown_form.h"

namespace kivu::tests {
namespace {

constexpr int patience = 10000;  // milliseconds

// Real mouse and keys on a real display.
class X11Test : public ShownForm {
 protected:
    void SetUp() override {
        // The window manager may still be on its way up.
        ASSERT_TRUE(QTest::qWaitFor(
            [] {
                return Output("xprop", {"-root", "_NET_CLIENT_LIST"}).contains("window id");
            },
            patience));
    }

    static QByteArray Output(const QString& program, const QStringList& arguments) {
        QProcess process;
        process.start(program, arguments);
        // Events go on: the program under the mouse is this one.
        EXPECT_TRUE(
            QTest::qWaitFor([&] { return process.state() == QProcess::NotRunning; }, patience));
        return process.readAllStandardOutput();
    }
    static void Xdo(const QStringList& arguments) { Output("xdotool", arguments); }

    QStringList At(QPoint inWindow) {
        const QPoint place = view.Window().mapToGlobal(inWindow);
        return {"mousemove", QString::number(place.x()), QString::number(place.y())};
    }
    bool Wait(const std::function<bool()>& until) { return QTest::qWaitFor(until, patience); }
    QString Id() { return QString::number(view.Window().winId()); }

    void Drag(QPoint from, QPoint by) {
        // The server's word: a window that is being moved hears of it at the end.
        const auto place = [this] { return Output("xwininfo", {"-id", Id()}); };
        const QByteArray before = place();
        Xdo(At(from));
        Xdo({"mousedown", "1"});
        for (int step = 1; step <= 10; ++step) {
            Xdo({"mousemove_relative", "--sync", "--", QString::number(by.x() / 10),
                 QString::number(by.y() / 10)});
        }
        // The window manager must have taken the mouse before it lets go.
        EXPECT_TRUE(Wait([&] { return place() != before; }));
        Xdo({"mouseup", "1"});
    }
};

TEST_F(X11Test, TypesIntoTheFocusedField) {
    form.text.SetFocus();
    Show();
    Xdo({"type", "--delay", "5", "Turrican 2!"});
    EXPECT_TRUE(Wait([&] { return form.text.Text() == "Turrican 2!"; })) << form.text.Text();
}

TEST_F(X11Test, MovesByItsSurfaceAndClicksAfterwards) {
    form.onMouseDown = [this](const forms::Mouse&) { form.BeginDrag(); };
    form.onClick = form.Note("click");
    form.button.onClick = form.Note("button");
    Show();
    const int left = form.Left();
    const int width = form.Width();
    Drag(QPoint(700, 520), QPoint(100, 50));
    // The way to the distance of a drag is not made up for.
    EXPECT_TRUE(Wait([&] { return form.Left() >= left + 1200; })) << form.Left();
    EXPECT_LE(form.Left(), left + 1500);
    EXPECT_EQ(form.Width(), width);
    EXPECT_TRUE(form.log.empty());
    Xdo(At(Middle(Find("Button"))));
    Xdo({"click", "1"});
    EXPECT_TRUE(Wait([&] { return !form.log.empty(); }));
    EXPECT_EQ(form.log, std::vector<std::string>{"button"});
}

TEST_F(X11Test, ResizesByItsEdge) {
    form.onResize = form.Note("resize");
    Show();
    const int height = form.Height();
    Drag(QPoint(798, 300), QPoint(100, 0));
    // The way of the first move, which tells a drag from a click, is not made up for.
    EXPECT_TRUE(Wait([&] { return form.Width() >= 13200; })) << form.Width();
    EXPECT_LE(form.Width(), 13500);
    EXPECT_EQ(form.Height(), height);
    EXPECT_FALSE(form.log.empty());
}

TEST_F(X11Test, TakesADoubleClickOnTheSurface) {
    form.onMouseDown = [this](const forms::Mouse&) { form.BeginDrag(); };
    form.onDblClick = form.Note("double");
    Show();
    Xdo(At(QPoint(700, 520)));
    Xdo({"click", "--repeat", "2", "--delay", "30", "1"});
    EXPECT_TRUE(Wait([&] { return !form.log.empty(); }));
}

TEST_F(X11Test, StaysOnTopAndBack) {
    Show();
    const auto above = [this] {
        return Output("xprop", {"-id", Id(), "_NET_WM_STATE"}).contains("_NET_WM_STATE_ABOVE");
    };
    EXPECT_FALSE(above());
    form.SetTopmost(true);
    EXPECT_TRUE(Wait(above));
    EXPECT_TRUE(view.Window().isVisible());
    form.SetTopmost(false);
    EXPECT_TRUE(Wait([&] { return !above(); }));
}

TEST_F(X11Test, MaximisesToTheScreenAndComesBackAsItWas) {
    form.Move(1507, 1511, 12007, 9011);
    Show();
    form.SetState(forms::WindowState::maximized);
    EXPECT_TRUE(Wait([&] { return form.Width() == 1280 * 15; })) << form.Width();
    form.SetState(forms::WindowState::normal);
    EXPECT_TRUE(Wait([&] { return form.Width() == 12007; })) << form.Width();
    EXPECT_EQ(form.Left(), 1507);
    EXPECT_EQ(form.Height(), 9011);
}

TEST_F(X11Test, MinimisesAndIsSummonedBack) {
    Show();
    form.SetState(forms::WindowState::minimized);
    ASSERT_TRUE(Wait([&] { return view.Window().isMinimized(); }));
    view.Summon();
    EXPECT_TRUE(Wait([&] { return form.State() == forms::WindowState::normal; }));
    EXPECT_EQ(form.Width(), 12000);
}

TEST_F(X11Test, FollowsQuickChangesOfSizeWithoutAnEcho) {
    Show();
    for (int width = 12000; width <= 14000; width += 200) {
        form.SetWidth(width);
        Settle();
        ASSERT_EQ(form.Width(), width);
    }
    EXPECT_TRUE(Wait([&] { return view.Window().width() == 933; }));
    bool later = false;
    QTimer::singleShot(600, [&] { later = true; });
    ASSERT_TRUE(Wait([&] { return later; }));
    EXPECT_EQ(form.Width(), 14000);
}

TEST_F(X11Test, AsksBeforeTheWindowManagerClosesIt) {
    form.onQueryClose = [this](bool& cancel) {
        form.log.push_back("close");
        cancel = true;
    };
    Show();
    Xdo({"key", "alt+F4"});
    EXPECT_TRUE(Wait([&] { return form.log.size() == 1; }));
    EXPECT_TRUE(view.Window().isVisible());
}

TEST_F(X11Test, ChoosesARowOfTheComboBoxByTheMouse) {
    for (const char* row : {"Amiga", "Atari", "C64"}) {
        form.combo.AddItem(row);
    }
    form.combo.onClick = form.Note("click");
    Show();
    QComboBox* combo = Find<QComboBox>("Combo");
    Xdo(At(combo->mapTo(&view.Window(), QPoint(combo->width() - 10, combo->height() / 2))));
    Xdo({"click", "1"});
    ASSERT_TRUE(Wait([&] { return combo->view()->isVisible(); }));
    EXPECT_TRUE(form.combo.HasFocus());
    Xdo({"key", "Down"});
    Xdo({"key", "Down"});
    Xdo({"key", "Return"});
    EXPECT_TRUE(Wait([&] { return !form.log.empty(); }));
    EXPECT_GE(form.combo.ListIndex(), 1);
    EXPECT_TRUE(form.combo.HasFocus());
}

}  // namespace
}  // namespace kivu::tests
