#include "view/shown_form.h"

namespace kivu::tests {
namespace {

// Counts the pictures of a widget.
class Pictures : public QObject {
 public:
    explicit Pictures(QWidget* widget) { widget->installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override {
        count += event->type() == QEvent::Paint;
        return false;
    }
    int count = 0;
};

using RepaintTest = ShownForm;

TEST_F(RepaintTest, RestsWhileAHandlerLetsEventsThrough) {
    form.list.SetFocus();
    int within = -1;
    Show();
    Pictures pictures(Find("Label"));
    form.list.onKeyDown = [&](forms::Key&) {
        form.label.SetCaption("half way");
        Settle();
        form.label.SetCaption("there");
        Settle();
        within = pictures.count;
    };
    Key(Qt::Key_Down);
    EXPECT_EQ(within, 0);
    ASSERT_TRUE(QTest::qWaitFor([&] { return pictures.count > 0; }));
    Settle();
    EXPECT_EQ(pictures.count, 1);
}

TEST_F(RepaintTest, ShowsTheProgressOfALongHandler) {
    form.list.SetFocus();
    Show();
    Pictures pictures(Find("Label"));
    int step = 0;
    bool shown = false, again = false;
    form.list.onKeyDown = [&](forms::Key&) {
        const auto work = [&] {
            form.label.SetCaption("step " + std::to_string(++step));
            return pictures.count > 0;
        };
        shown = QTest::qWaitFor(work);
        const int before = pictures.count;
        form.label.SetCaption("and on");
        Settle();
        again = pictures.count > before;
    };
    Key(Qt::Key_Down);
    EXPECT_TRUE(shown);
    // The time is taken once and not anew for each step.
    EXPECT_TRUE(again);
}

TEST_F(RepaintTest, RestsInTheTickOfATimerToo) {
    Show();
    Pictures pictures(Find("Label"));
    int within = -1;
    form.timer.onTimer = [&] {
        form.timer.SetEnabled(false);
        form.label.SetCaption("half way");
        Settle();
        within = pictures.count;
        form.label.SetCaption("there");
    };
    form.timer.SetEnabled(true);
    ASSERT_TRUE(QTest::qWaitFor([&] { return pictures.count > 0; }));
    EXPECT_EQ(within, 0);
}

}  // namespace
}  // namespace kivu::tests
