#include <QAbstractButton>
#include <QCheckBox>
#include <QSlider>

#include "view/geometry.h"
#include "view/shown_form.h"

namespace kivu::tests {
namespace {

using ControlsTest = ShownForm;

TEST_F(ControlsTest, NameEveryWidgetAsItsControl) {
    form.choice.SetVisible(true);
    EXPECT_EQ(view.Window().objectName(), "Sample");
    for (const forms::Control* control : form.Controls()) {
        if (control->GetKind() == forms::Kind::timer) continue;
        const std::string name = control->FullName();
        EXPECT_TRUE(Find(name.c_str())) << name;
    }
    EXPECT_TRUE(Find("Option(1)"));
}

TEST_F(ControlsTest, LieInTheirContainers) {
    EXPECT_EQ(Find("Inner")->parentWidget(), Find("Frame"));
    EXPECT_EQ(Find("Frame")->parentWidget(), &view.Window());
}

TEST_F(ControlsTest, StandAtAFifteenthOfTheirTwips) {
    EXPECT_EQ(Find("List")->geometry(), QRect(20, 20, 300, 300));
}

TEST_F(ControlsTest, TouchOnTheScreenWhereTheyTouchInTheModel) {
    for (int left = 0; left < 60; ++left) {
        form.list.Move(left, 0, 4507, 100);
        form.other.Move(form.list.Right(), 0, 100, 100);
        EXPECT_EQ(Find("List")->geometry().right() + 1, Find("Other")->x()) << left;
    }
}

TEST_F(ControlsTest, NeverWritePixelsBack) {
    form.list.Move(307, 311, 4507, 4511);
    Show();
    EXPECT_EQ(form.list.Left(), 307);
    EXPECT_EQ(form.list.Width(), 4507);
    EXPECT_EQ(form.list.Height(), 4511);
}

TEST_F(ControlsTest, FollowVisibleEnabledAndOrder) {
    Show();
    form.list.SetVisible(false);
    form.text.SetEnabled(false);
    EXPECT_FALSE(Find("List")->isVisible());
    EXPECT_FALSE(Find("Text")->isEnabled());
    form.list.SetVisible(true);
    form.list.Move(0, 0, 3000, 3000);
    form.other.Move(0, 0, 3000, 3000);
    EXPECT_TRUE(Find("Other")->isAncestorOf(view.Window().childAt(100, 100)));
    form.list.BringToFront();
    EXPECT_TRUE(Find("List")->isAncestorOf(view.Window().childAt(100, 100)));
}

TEST_F(ControlsTest, LieOnOneAnotherAsTheyWereStackedBeforeTheWindowWasMade) {
    SampleForm stacked;
    stacked.list.Move(0, 0, 3000, 3000);
    stacked.other.Move(0, 0, 3000, 3000);
    stacked.list.BringToFront();
    view::FormView early(stacked);
    early.Show();
    const auto* list = early.Window().findChild<QWidget*>(QStringLiteral("List"));
    ASSERT_TRUE(list);
    EXPECT_TRUE(list->isAncestorOf(early.Window().childAt(100, 100)));
}

TEST_F(ControlsTest, AListThatIsShownLateLiesWhereItWasStacked) {
    SampleForm hidden;
    hidden.Fill(20);
    hidden.list.SetVisible(false);
    hidden.combo.SetVisible(false);
    hidden.list.Move(0, 0, 3000, 3000);
    hidden.other.Move(0, 0, 1500, 1500);
    view::FormView late(hidden);
    late.Show();
    // Nobody pays for what nobody sees.
    EXPECT_FALSE(late.Window().findChild<QWidget*>(QStringLiteral("List")));
    EXPECT_FALSE(late.Window().findChild<QWidget*>(QStringLiteral("Combo")));
    hidden.list.SetBackColor(forms::Rgb(1, 2, 3));
    hidden.list.SetListIndex(3);
    hidden.list.SetVisible(true);
    hidden.list.SetFocus();
    auto* list = late.Window().findChild<QAbstractItemView*>(QStringLiteral("List"));
    ASSERT_TRUE(list);
    EXPECT_EQ(list->geometry(), QRect(0, 0, 200, 200));
    EXPECT_EQ(list->palette().color(QPalette::Base), QColor(1, 2, 3));
    EXPECT_EQ(list->currentIndex().row(), 3);
    EXPECT_EQ(late.Window().focusWidget(), list);
    EXPECT_FALSE(list->isAncestorOf(late.Window().childAt(50, 50)));
    EXPECT_TRUE(list->isAncestorOf(late.Window().childAt(150, 150)));
    hidden.combo.SetVisible(true);
    EXPECT_TRUE(late.Window().findChild<QComboBox*>(QStringLiteral("Combo"))->isVisible());
}

TEST_F(ControlsTest, AListInAContainerIsMadeWithIt) {
    struct WithInnerList : SampleForm {
        forms::ListBox within{&frame, "Within", forms::ListControl::Order::asAdded};
    } hidden;
    hidden.within.Move(0, 0, 1500, 1500);
    hidden.frame.SetVisible(false);
    view::FormView late(hidden);
    late.Show();
    EXPECT_FALSE(late.Window().findChild<QWidget*>(QStringLiteral("Within")));
    hidden.frame.SetVisible(true);
    auto* within = late.Window().findChild<QWidget*>(QStringLiteral("Within"));
    ASSERT_TRUE(within);
    EXPECT_TRUE(within->isVisible());
}

TEST_F(ControlsTest, KeepTheirOwnFlagInAHiddenContainer) {
    Show();
    form.frame.SetVisible(false);
    form.inner.SetVisible(false);
    form.inner.SetVisible(true);
    form.frame.SetVisible(true);
    EXPECT_TRUE(Find("Inner")->isVisible());
}

TEST_F(ControlsTest, TakeColoursFromTheModel) {
    form.list.SetBackColor(forms::Rgb(0xf6, 0xf7, 0xd2));
    form.list.SetForeColor(forms::Rgb(1, 2, 3));
    const QPalette palette = Find("List")->palette();
    EXPECT_EQ(palette.color(QPalette::Base), QColor(0xf6, 0xf7, 0xd2));
    EXPECT_EQ(palette.color(QPalette::Text), QColor(1, 2, 3));
}

TEST_F(ControlsTest, TakeAToolTipForPlainText) {
    form.list.SetToolTipText("a <b>bold</b> & bad.adf");
    EXPECT_EQ(Find("List")->toolTip(), "<qt>a &lt;b&gt;bold&lt;/b&gt; &amp; bad.adf</qt>");
    form.list.SetToolTipText("plain");
    EXPECT_EQ(Find("List")->toolTip(), "plain");
}

TEST_F(ControlsTest, ClickAButtonWhenItIsReleasedInside) {
    form.button.onClick = form.Note("click");
    form.button.onMouseDown = [this](const forms::Mouse&) { form.log.push_back("down"); };
    form.button.onMouseUp = [this](const forms::Mouse&) { form.log.push_back("up"); };
    Show();
    Click(Middle(Find("Button")));
    const std::vector<std::string> order{"down", "click", "up"};
    EXPECT_EQ(form.log, order);
    EXPECT_FALSE(Find<QAbstractButton>("Button")->isDown());
}

TEST_F(ControlsTest, ForgetAClickThatIsReleasedOutside) {
    form.button.onClick = form.Note("click");
    Show();
    const QPoint at = Middle(Find("Button"));
    QTest::mousePress(Native(), Qt::LeftButton, {}, at);
    EXPECT_TRUE(Find<QAbstractButton>("Button")->isDown());
    QTest::mouseMove(Native(), at + QPoint(300, 0));
    QTest::mouseRelease(Native(), Qt::LeftButton, {}, at + QPoint(300, 0));
    EXPECT_TRUE(form.log.empty());
    EXPECT_FALSE(Find<QAbstractButton>("Button")->isDown());
}

TEST_F(ControlsTest, GiveTheMouseInTwipsFromTheirOwnEdge) {
    forms::Mouse seen;
    form.label.onMouseDown = [&](const forms::Mouse& mouse) { seen = mouse; };
    Show();
    QTest::mouseClick(Native(), Qt::LeftButton, Qt::ControlModifier,
                      Find("Label")->mapTo(&view.Window(), QPoint(10, 5)));
    EXPECT_EQ(seen.x, 150);
    EXPECT_EQ(seen.y, 75);
    EXPECT_EQ(seen.shift, forms::shifts::ctrl);
    EXPECT_EQ(seen.button, forms::buttons::left);
}

TEST_F(ControlsTest, GiveTheMouseOfAClickableLabelFromItsTextsEdge) {
    forms::Mouse seen;
    form.label.onClick = [] {};
    form.label.onMouseDown = [&](const forms::Mouse& mouse) { seen = mouse; };
    Show();
    Click(QPoint(view::ToPixels(form.label.Left()) + 4, view::ToPixels(form.label.Top()) + 2));
    EXPECT_EQ(seen.x, 60);
    EXPECT_EQ(seen.y, 30);
}

TEST_F(ControlsTest, LetAClickThroughWhereNobodyListens) {
    form.onMouseDown = [this](const forms::Mouse& mouse) {
        form.log.push_back(std::to_string(mouse.x));
    };
    Show();
    Click(QPoint(view::ToPixels(form.label.Left()) + 10, view::ToPixels(form.label.Top()) + 5));
    EXPECT_EQ(form.log, std::vector<std::string>{std::to_string(form.label.Left() + 150)});
}

TEST_F(ControlsTest, KeepClicksFromADisabledControl) {
    form.button.onClick = form.Note("click");
    form.button.SetEnabled(false);
    Show();
    Click(Middle(Find("Button")));
    EXPECT_TRUE(form.log.empty());
}

TEST_F(ControlsTest, TickACheckBoxOnceForEachClick) {
    form.check.onClick = form.Note("click");
    Show();
    const QPoint at = Find("Check(0)")->mapTo(&view.Window(), QPoint(10, 10));
    Click(at);
    EXPECT_EQ(form.check.Value(), 1);
    EXPECT_TRUE(Find<QCheckBox>("Check(0)")->isChecked());
    // A quick second click is one more tick, not a double click.
    Click(at);
    EXPECT_EQ(form.check.Value(), 0);
    EXPECT_EQ(form.log.size(), 2U);
    form.check.SetValue(2);
    EXPECT_EQ(Find<QCheckBox>("Check(0)")->checkState(), Qt::PartiallyChecked);
}

TEST_F(ControlsTest, SwitchOptionButtonsThroughTheModel) {
    Show();
    Click(Find("Option(0)")->mapTo(&view.Window(), QPoint(10, 10)));
    Click(Find("Option(1)")->mapTo(&view.Window(), QPoint(10, 10)));
    EXPECT_EQ(form.options[0].Value(), 0);
    EXPECT_EQ(form.options[1].Value(), 1);
    EXPECT_FALSE(Find<QAbstractButton>("Option(0)")->isChecked());
    EXPECT_TRUE(Find<QAbstractButton>("Option(1)")->isChecked());
}

TEST_F(ControlsTest, DoubleClickWhatListensForIt) {
    form.label.onClick = form.Note("click");
    form.label.onDblClick = form.Note("double");
    Show();
    DoubleClick(Middle(Find("Label")));
    const std::vector<std::string> order{"click", "double"};
    EXPECT_EQ(form.log, order);
}

TEST_F(ControlsTest, FollowTheMouseWhenTheirHandlerHandsThemOver) {
    form.label.onMouseDown = [this](const forms::Mouse&) { form.label.StartDrag(); };
    form.label.onClick = form.Note("click");
    form.onDragDrop = [this](forms::Control& source, int x, int y) {
        form.log.push_back(source.FullName());
        source.Move(x, y, source.Width(), source.Height());
    };
    Show();
    const QPoint from = Middle(Find("Label"));
    const QPoint to(600, 500);
    QTest::mousePress(Native(), Qt::LeftButton, {}, from);
    QTest::mouseMove(Native(), from + QPoint(20, 20));
    QTest::mouseMove(Native(), to);
    QTest::mouseRelease(Native(), Qt::LeftButton, {}, to);
    EXPECT_EQ(form.log, std::vector<std::string>{"Label"});
    EXPECT_EQ(form.label.Left(), 600 * 15);
    EXPECT_EQ(form.label.Top(), 500 * 15);
    EXPECT_EQ(Find("Label")->pos() + QPoint(8, 4), to);
}

TEST_F(ControlsTest, MoveASliderBothWays) {
    form.slider.onChange = form.Note("change");
    Show();
    form.slider.SetRange(0, 255);
    form.slider.SetValue(128);
    EXPECT_EQ(Find<QSlider>("Slider")->value(), 128);
    form.log.clear();
    Find<QSlider>("Slider")->setValue(20);  // as its handle does
    EXPECT_EQ(form.slider.Value(), 20);
    EXPECT_EQ(form.log.size(), 1U);
}

TEST_F(ControlsTest, TickWhileTheTimerIsOn) {
    int ticks = 0;
    form.timer.onTimer = [&] {
        if (++ticks == 3) form.timer.SetEnabled(false);
    };
    Show();
    EXPECT_EQ(ticks, 0);
    form.timer.SetEnabled(true);
    ASSERT_TRUE(QTest::qWaitFor([&] { return ticks == 3; }));
    // A timer that is off is off: its next tick would have been long due.
    form.timer.SetInterval(1);
    bool later = false;
    QTimer::singleShot(50, [&] { later = true; });
    ASSERT_TRUE(QTest::qWaitFor([&] { return later; }));
    EXPECT_EQ(ticks, 3);
}

TEST_F(ControlsTest, ShowAListThatATimerFillsWhileAHandlerRunsEvents) {
    form.timer.onTimer = [this] { form.Fill(10); };
    Show();
    form.timer.SetEnabled(true);
    ASSERT_TRUE(QTest::qWaitFor([&] { return form.list.ListCount() >= 30; }));
    form.timer.SetEnabled(false);
    Settle();
    EXPECT_EQ(Find<QAbstractItemView>("List")->model()->rowCount(), form.list.ListCount());
}

}  // namespace
}  // namespace kivu::tests
