#include "forms_testing.h"

namespace kivu::forms {
namespace {

struct FormFocus : testing::Test {
    FormFocus() {
        for (Control* control : form.Controls()) {
            control->onGotFocus = Writes(log, control->Name() + " got");
            control->onLostFocus = Writes(log, control->Name() + " lost");
        }
    }

    Form form{"Form1"};
    Frame frame{&form, "Frame1"};
    PictureBox panel{&frame, "Panel"};
    ListBox inner{&panel, "Inner", ListControl::Order::asAdded};
    ListBox a{&form, "A", ListControl::Order::asAdded};
    TextBox b{&form, "B"};
    TextBox c{&form, "C"};
    Label label{&form, "Label1"};
    Log log;
};

TEST_F(FormFocus, OldControlLosesItBeforeTheNewOneGetsIt) {
    a.SetFocus();
    b.SetFocus();
    EXPECT_THAT(log, ElementsAre("A got", "A lost", "B got"));
    EXPECT_TRUE(b.HasFocus());
    EXPECT_FALSE(a.HasFocus());
}

TEST_F(FormFocus, SetFocusOnTheControlThatHasItRunsNothing) {
    a.SetFocus();
    log.clear();
    a.SetFocus();
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(FormFocus, SetFocusHasNoEffectOnAHiddenControl) {
    a.SetFocus();
    b.SetVisible(false);
    b.SetFocus();
    EXPECT_EQ(form.Focus(), &a);
}

TEST_F(FormFocus, SetFocusHasNoEffectOnADisabledControl) {
    a.SetFocus();
    b.SetEnabled(false);
    b.SetFocus();
    EXPECT_EQ(form.Focus(), &a);
}

TEST_F(FormFocus, SetFocusHasNoEffectInAHiddenOrDisabledContainer) {
    a.SetFocus();
    frame.SetVisible(false);
    inner.SetFocus();
    EXPECT_EQ(form.Focus(), &a);
    frame.SetVisible(true);
    frame.SetEnabled(false);
    inner.SetFocus();
    EXPECT_EQ(form.Focus(), &a);
    frame.SetEnabled(true);
    inner.SetFocus();
    EXPECT_EQ(form.Focus(), &inner);
}

TEST_F(FormFocus, SetFocusHasNoEffectOnAControlThatTakesNone) {
    a.SetFocus();
    label.SetFocus();
    EXPECT_EQ(form.Focus(), &a);
}

TEST_F(FormFocus, HidingTheControlWithTheFocusTakesItAwayAndRunsItsHandler) {
    a.SetFocus();
    log.clear();
    a.SetVisible(false);
    EXPECT_EQ(form.Focus(), nullptr);
    EXPECT_THAT(log, ElementsAre("A lost"));
}

TEST_F(FormFocus, DisablingTheControlWithTheFocusTakesItAway) {
    a.SetFocus();
    log.clear();
    a.SetEnabled(false);
    EXPECT_EQ(form.Focus(), nullptr);
    EXPECT_THAT(log, ElementsAre("A lost"));
}

TEST_F(FormFocus, HidingAContainerOfTheContainerTakesItAway) {
    inner.SetFocus();
    log.clear();
    frame.SetVisible(false);
    EXPECT_EQ(form.Focus(), nullptr);
    EXPECT_THAT(log, ElementsAre("Inner lost"));
}

TEST_F(FormFocus, DisablingTheContainerTakesItAway) {
    inner.SetFocus();
    log.clear();
    panel.SetEnabled(false);
    EXPECT_EQ(form.Focus(), nullptr);
    EXPECT_THAT(log, ElementsAre("Inner lost"));
}

TEST_F(FormFocus, HidingAnotherControlLeavesIt) {
    a.SetFocus();
    log.clear();
    frame.SetVisible(false);
    b.SetEnabled(false);
    EXPECT_EQ(form.Focus(), &a);
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(FormFocus, LostFocusHandlerThatMovesItOnLeavesTheControlPassedOverInPeace) {
    a.SetFocus();
    a.onLostFocus = [this] {
        log.push_back("A lost");
        c.SetFocus();
    };
    log.clear();
    b.SetFocus();
    EXPECT_EQ(form.Focus(), &c);
    EXPECT_THAT(log, ElementsAre("A lost", "C got"));
}

TEST_F(FormFocus, LostFocusHandlerThatKeepsItGivesItBack) {
    a.SetFocus();
    a.onLostFocus = [this] {
        log.push_back("A lost");
        a.SetFocus();
    };
    log.clear();
    b.SetFocus();
    EXPECT_EQ(form.Focus(), &a);
    EXPECT_THAT(log, ElementsAre("A lost", "A got"));
}

TEST_F(FormFocus, DetourThatEndsAtTheNewControlRunsItsHandlerOnce) {
    a.SetFocus();
    a.onLostFocus = [this] {
        log.push_back("A lost");
        c.SetFocus();
        b.SetFocus();
    };
    log.clear();
    b.SetFocus();
    EXPECT_EQ(form.Focus(), &b);
    EXPECT_THAT(log, ElementsAre("A lost", "C got", "C lost", "B got"));
}

TEST_F(FormFocus, LostFocusHandlerThatHidesTheNewControlLeavesNoFocus) {
    a.SetFocus();
    a.onLostFocus = [this] {
        log.push_back("A lost");
        b.SetVisible(false);
    };
    log.clear();
    b.SetFocus();
    EXPECT_EQ(form.Focus(), nullptr);
    EXPECT_THAT(log, ElementsAre("A lost"));
}

TEST_F(FormFocus, GotFocusHandlerThatMovesItOnRunsBothPairs) {
    b.onGotFocus = [this] {
        log.push_back("B got");
        c.SetFocus();
        log.push_back("B done");
    };
    b.SetFocus();
    EXPECT_EQ(form.Focus(), &c);
    EXPECT_THAT(log, ElementsAre("B got", "B lost", "C got", "B done"));
}

TEST_F(FormFocus, GotFocusHandlerThatHidesItsControlRunsItsLostFocusHandler) {
    b.onGotFocus = [this] {
        log.push_back("B got");
        b.SetVisible(false);
    };
    b.SetFocus();
    EXPECT_EQ(form.Focus(), nullptr);
    EXPECT_THAT(log, ElementsAre("B got", "B lost"));
}

TEST_F(FormFocus, HidingAControlBeforeItIsShownAgainDoesNotGiveItBack) {
    a.SetFocus();
    a.SetVisible(false);
    a.SetVisible(true);
    EXPECT_EQ(form.Focus(), nullptr);
    log.clear();
    a.SetFocus();
    EXPECT_THAT(log, ElementsAre("A got"));
}

TEST(FormWindow, NewStateRunsTheResizeHandlerOnce) {
    Form form("Form1");
    Log log;
    form.onResize = Writes(log, "resize");
    form.SetState(WindowState::maximized);
    form.SetState(WindowState::maximized);
    EXPECT_THAT(log, ElementsAre("resize"));
}

TEST(FormWindow, CloseRequestCanBeRefused) {
    Form form("Form1");
    EXPECT_TRUE(form.RequestClose());
    form.onQueryClose = [](bool& cancel) { cancel = true; };
    EXPECT_FALSE(form.RequestClose());
}

TEST(FormFrame, TellsOfEachNewFlagOnce) {
    Log log;
    LoggingObserver observer(log);
    Form form{"Form1"};
    form.SetObserver(&observer);
    form.SetActivates(false);
    form.SetAboveAll(true);
    form.SetResizable(false);
    EXPECT_EQ(log.size(), 3U);
    form.SetActivates(false);
    form.SetAboveAll(true);
    form.SetResizable(false);
    EXPECT_THAT(log, ElementsAre("Form1 windowFrame", "Form1 windowFrame", "Form1 windowFrame"));
    form.SetObserver(nullptr);
}

TEST(FormSurface, IsDraggedByAPressThatNobodyListensTo) {
    Log log;
    LoggingObserver observer(log);
    Form form{"Form1"};
    Label label{&form, "Label1"};
    form.SetObserver(&observer);
    UserInput hands(form);
    hands.MouseDown(form, {buttons::left, 0, 10, 10});
    EXPECT_THAT(log, ElementsAre("drag"));
    hands.MouseDown(form, {buttons::right, 0, 10, 10});
    hands.MouseDown(label, {buttons::left, 0, 10, 10});
    form.onMouseDown = Writes(log, "down");
    hands.MouseDown(form, {buttons::left, 0, 10, 10});
    EXPECT_THAT(log, ElementsAre("drag", "down"));
    form.SetObserver(nullptr);
}

}  // namespace
}  // namespace kivu::forms
