#include <QHelpEvent>
#include <QToolTip>

#include "view/shown_form.h"

namespace kivu::tests {
namespace {

// What hands do that no handler expects: a button that comes up unseen, a click for the window.
class HandsTest : public ShownForm {
 protected:
    // A move of which the screen says that no button is down.
    void MoveWithoutButton(QPoint at) {
        QMouseEvent move(QEvent::MouseMove, at, view.Window().mapToGlobal(at), Qt::NoButton,
                         Qt::NoButton, Qt::NoModifier);
        QWidget* under = view.Window().childAt(at);
        QCoreApplication::sendEvent(under ? under : &view.Window(), &move);
    }
    void Activate() {
        view.Window().activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&view.Window()));
    }
    void Deactivate() {
        stranger.show();
        stranger.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&stranger));
    }
    QWidget stranger;
};

TEST_F(HandsTest, LetTheWindowGoWhenTheButtonIsUp) {
    form.onMouseDown = [this](const forms::Mouse&) { form.BeginDrag(); };
    Show();
    const QPoint before = view.Window().pos();
    QTest::mousePress(Native(), Qt::LeftButton, {}, QPoint(700, 500));
    MoveWithoutButton(QPoint(760, 540));
    MoveWithoutButton(QPoint(780, 560));
    EXPECT_EQ(view.Window().pos(), before);
    QTest::mouseRelease(Native(), Qt::LeftButton, {}, QPoint(780, 560));
}

TEST_F(HandsTest, ResizeNothingByAClickOnTheEdge) {
    Show();
    const QRect before = view.Window().geometry();
    const QPoint edge(798, 300);
    QTest::mousePress(Native(), Qt::LeftButton, {}, edge);
    MoveWithoutButton(edge + QPoint(1, 40));
    MoveWithoutButton(QPoint(500, 300));
    EXPECT_EQ(view.Window().geometry(), before);
    QTest::mouseRelease(Native(), Qt::LeftButton, {}, edge);
}

TEST_F(HandsTest, LetAControlGoThatWasTakenBehindTheRelease) {
    form.frame.onMouseDown = [this](const forms::Mouse&) {
        // Press and release have both waited: the handler lets events through.
        QTest::mouseRelease(Native(), Qt::LeftButton, {}, QPoint(700, 100));
        form.frame.StartDrag();
    };
    Show();
    const int left = form.frame.Left();
    QTest::mousePress(Native(), Qt::LeftButton, {}, QPoint(700, 100));
    MoveWithoutButton(QPoint(600, 300));
    MoveWithoutButton(QPoint(500, 400));
    EXPECT_EQ(form.frame.Left(), left);
    EXPECT_EQ(form.Dragged(), nullptr);
    EXPECT_EQ(Find("Frame")->pos(), QPoint(560, 20));
}

TEST_F(HandsTest, MeanTheClickWhoseReleaseABoxHasTaken) {
    form.button.onClick = form.Note("button");
    form.text.onLostFocus = [this] {
        // A box lies over the window by then, and is answered by the mouse.
        form.log.push_back("box");
        stranger.setWindowModality(Qt::ApplicationModal);
        stranger.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&stranger));
        QTest::mouseRelease(stranger.windowHandle(), Qt::LeftButton, {}, QPoint(5, 5));
        stranger.hide();
    };
    Show();
    Activate();
    form.text.SetFocus();
    QTest::mousePress(Native(), Qt::LeftButton, {}, Middle(Find("Button")));
    EXPECT_EQ(form.log, (std::vector<std::string>{"box", "button"}));
    EXPECT_TRUE(form.button.HasFocus());
    // The next one counts once, as ever.
    Click(Middle(Find("Button")));
    EXPECT_EQ(form.log, (std::vector<std::string>{"box", "button", "button"}));
}

TEST_F(HandsTest, FetchTheWindowWithoutClickingWhatCannotBeTakenBack) {
    form.label.onClick = form.Note("label");
    form.label.onMouseDown = [this](const forms::Mouse&) { form.log.push_back("down"); };
    form.label.SetTakesActivatingClick(false);
    form.button.onClick = form.Note("button");
    Show();
    Deactivate();
    Click(Middle(Find("Label")));
    EXPECT_TRUE(form.log.empty());
    // All others take it, as ever.
    Click(Middle(Find("Button")));
    EXPECT_EQ(form.log, std::vector<std::string>{"button"});
    form.log.clear();
    Activate();
    // A while later a click is one. It need not be the first, but it is one whole click.
    ASSERT_TRUE(QTest::qWaitFor([&] {
        Click(Middle(Find("Label")));
        return !form.log.empty();
    }));
    EXPECT_EQ(form.log, (std::vector<std::string>{"down", "label"}));
}

TEST_F(HandsTest, TellWhatTheyHaveLeft) {
    form.frame.onMouseLeave = form.Note("frame");
    form.inner.onMouseLeave = form.Note("inner");
    Show();
    const auto move = [this](QPoint at) { QTest::mouseMove(Native(), at); };
    const QPoint inside = Middle(Find("Inner"));
    move(inside);
    move(Middle(Find("Option(0)")));
    EXPECT_EQ(form.log, std::vector<std::string>{"inner"});
    // Straight onto another control.
    move(inside);
    move(Middle(Find("Button")));
    EXPECT_EQ(form.log, (std::vector<std::string>{"inner", "inner", "frame"}));
    // And out of the window.
    move(inside);
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&view.Window(), &leave);
    EXPECT_EQ(form.log.size(), 5U);
}

TEST_F(HandsTest, AreNotToldByAContainersTipWhatAClickDoes) {
    form.frame.SetToolTipText("The frame");
    Show();
    const auto tip = [this](const char* name) {
        QToolTip::hideText();
        EXPECT_TRUE(QTest::qWaitFor([] { return QToolTip::text().isEmpty(); }));
        QWidget* widget = Find(name);
        const QPoint at = widget->rect().center();
        QHelpEvent event(QEvent::ToolTip, at, widget->mapToGlobal(at));
        QApplication::sendEvent(widget, &event);
        return QToolTip::text();
    };
    EXPECT_EQ(tip("Option(0)"), "The frame");
    form.options[0].onClick = form.Note("click");
    EXPECT_EQ(tip("Option(0)"), "");
    form.options[0].SetToolTipText("Its own");
    EXPECT_EQ(tip("Option(0)"), "Its own");
    QToolTip::hideText();
}

TEST_F(HandsTest, LightLabelsOfOneLineAlone) {
    form.label.onClick = form.Note("click");
    form.label.SetCaption("");
    Show();
    const auto lit = [this] {
        QWidget* label = Find("Label");
        QTest::mouseMove(Native(), QPoint(790, 590));
        const QImage dark = label->grab().toImage();
        QTest::mouseMove(Native(), Middle(label));
        Settle();
        return label->grab().toImage() != dark;
    };
    EXPECT_TRUE(lit());
    form.label.SetHeight(3000);
    EXPECT_FALSE(lit());
}

TEST_F(HandsTest, LightAButtonThatCanBeClicked) {
    Show();
    QWidget* button = Find("Button");
    const auto lit = [&] {
        QTest::mouseMove(Native(), QPoint(790, 590));
        Settle();
        const QImage dark = button->grab().toImage();
        QTest::mouseMove(Native(), Middle(button));
        Settle();
        return button->grab().toImage() != dark;
    };
    EXPECT_TRUE(lit());
    form.button.SetEnabled(false);
    EXPECT_FALSE(lit());
}

// The toolkit tells it nothing.
TEST_F(HandsTest, LightNothingThatHasMovedAwayFromAMouseThatRests) {
    form.label.onClick = form.Note("click");
    Show();
    for (const char* name : {"Label", "Button"}) {
        QWidget* widget = Find(name);
        QTest::mouseMove(Native(), QPoint(790, 590));
        Settle();
        const QImage dark = widget->grab().toImage();
        QTest::mouseMove(Native(), Middle(widget));
        Settle();
        EXPECT_NE(widget->grab().toImage(), dark) << name;
        forms::Control& control =
            form.label.FullName() == name ? static_cast<forms::Control&>(form.label) : form.button;
        control.Move(control.Left(), control.Top() + 1800, control.Width(), control.Height());
        Settle();
        EXPECT_EQ(widget->grab().toImage(), dark) << name;
    }
}

}  // namespace
}  // namespace kivu::tests
