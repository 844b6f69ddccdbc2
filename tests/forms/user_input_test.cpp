#include "forms_testing.h"

namespace kivu::forms {
namespace {

struct Hands : testing::Test {
    Hands() {
        form.SetTabOrder(TabOrder::asCreated);
        list.AddItems({"a", "b", "c"});
        for (Control* control : form.Controls()) {
            const std::string name = control->Name();
            control->onGotFocus = Writes(log, name + " got");
            control->onLostFocus = Writes(log, name + " lost");
            control->onMouseDown = [this, name](const Mouse& mouse) {
                log.push_back(name + " down " + std::to_string(mouse.button));
            };
            control->onMouseUp = Writes(log, name + " up");
            control->onClick = Writes(log, name + " click");
            control->onDblClick = Writes(log, name + " dblclick");
        }
    }
    Form form{"F"};
    UserInput user{form};
    Frame frame{&form, "Frame"};
    ListBox list{&form, "L", ListControl::Order::asAdded};
    TextBox text{&form, "T"};
    Label label{&frame, "Label"};
    CheckBox check{&form, "Check"};
    OptionButton first{&frame, "First"};
    OptionButton second{&frame, "Second"};
    CommandButton button{&form, "Button"};
    Log log;
};

TEST_F(Hands, ClickMovesTheFocusThenMouseDownClickMouseUp) {
    text.SetFocus();
    log.clear();
    user.Click(list, 1);
    EXPECT_THAT(log, ElementsAre("T lost", "L got", "L down 1", "L click", "L up"));
    EXPECT_EQ(list.ListIndex(), 1);
}

TEST_F(Hands, ClickOnTheSelectedRowRunsTheClickHandler) {
    user.Click(list, 1);
    log.clear();
    user.Click(list, 1);
    user.Click(list);
    EXPECT_THAT(log, ElementsAre("L down 1", "L click", "L up", "L down 1", "L click", "L up"));
}

TEST_F(Hands, ClickBesideTheRowsSelectsNothing) {
    user.Click(list);
    user.Click(list, 3);
    EXPECT_EQ(list.ListIndex(), -1);
    EXPECT_THAT(log, ElementsAre("L got", "L down 1", "L up", "L down 1", "L up"));
}

TEST_F(Hands, DoubleClickIsAClickAndThenTheDoubleClick) {
    user.DoubleClick(list, 2);
    EXPECT_THAT(log, ElementsAre("L got", "L down 1", "L click", "L up", "L dblclick"));
}

TEST_F(Hands, RightClickSelectsTheRowBeforeTheMouseGoesDown) {
    user.RightClick(list, 2);
    EXPECT_THAT(log, ElementsAre("L got", "L click", "L down 2", "L up"));
    EXPECT_EQ(list.ListIndex(), 2);
    log.clear();
    user.RightClick(list, 2);
    EXPECT_THAT(log, ElementsAre("L down 2", "L up"));
}

TEST_F(Hands, RightClickWithoutARowLeavesTheSelection) {
    list.SetListIndex(1);
    log.clear();
    user.RightClick(list);
    user.RightClick(list, -1);
    EXPECT_EQ(list.ListIndex(), 1);
    EXPECT_THAT(log, ElementsAre("L got", "L down 2", "L up", "L down 2", "L up"));
}

TEST_F(Hands, ControlThatCannotBeReachedGetsNothing) {
    frame.SetVisible(false);
    list.SetEnabled(false);
    user.Click(label);
    user.DoubleClick(list, 0);
    user.RightClick(list, 0);
    user.MouseDown(label, {});
    user.MouseMove(label, {});
    user.MouseUp(label, {});
    EXPECT_THAT(log, IsEmpty());
    EXPECT_EQ(list.ListIndex(), -1);
}

TEST_F(Hands, ControlThatTakesNoFocusIsClickedWithoutIt) {
    text.SetFocus();
    log.clear();
    user.Click(label);
    EXPECT_THAT(log, ElementsAre("Label down 1", "Label click", "Label up"));
    EXPECT_TRUE(text.HasFocus());
}

TEST_F(Hands, HandlerThatHidesTheControlBeingClickedEndsTheClick) {
    label.onMouseDown = [this](const Mouse&) { label.SetVisible(false); };
    user.DoubleClick(label);
    EXPECT_THAT(log, IsEmpty());

    button.onClick = [this] {
        log.push_back("Button click");
        button.SetVisible(false);
    };
    user.DoubleClick(button);
    EXPECT_THAT(log, ElementsAre("Button got", "Button down 1", "Button click", "Button lost"));
}

TEST_F(Hands, FocusHandlerThatHidesTheControlEndsTheClick) {
    button.onGotFocus = [this] { button.SetVisible(false); };
    user.Click(button);
    button.SetVisible(true);
    user.RightClick(button);
    EXPECT_THAT(log, ElementsAre("Button lost", "Button lost"));
}

TEST_F(Hands, ClickHandlerMayClearTheList) {
    list.onClick = [this] {
        list.Clear();
        text.SetFocus();
    };
    user.DoubleClick(list, 1);
    EXPECT_EQ(list.ListCount(), 0);
    EXPECT_TRUE(text.HasFocus());
}

TEST_F(Hands, ClickTogglesACheckBox) {
    user.Click(check);
    EXPECT_EQ(check.Value(), 1);
    user.Click(check);
    EXPECT_EQ(check.Value(), 0);
    check.SetValue(2);
    user.Click(check);
    EXPECT_EQ(check.Value(), 0);
}

TEST_F(Hands, ClickOnAnOptionButtonRunsItsHandlerAlsoWhenItIsOnAlready) {
    user.Click(first);
    user.Click(second);
    EXPECT_EQ(first.Value(), 0);
    log.clear();
    user.Click(second);
    EXPECT_EQ(second.Value(), 1);
    EXPECT_THAT(log, ElementsAre("Second down 1", "Second click", "Second up"));
}

TEST_F(Hands, TabGoesOverTheReachableControlsInOrderOfCreation) {
    const auto focus = [this] { return form.Focus() ? form.Focus()->Name() : std::string(); };
    Log order;
    for (int i = 0; i < 6; ++i) {
        user.Stroke({keys::tab, 0});
        order.push_back(focus());
    }
    EXPECT_THAT(order, ElementsAre("L", "T", "Check", "First", "Button", "L"));
    text.SetEnabled(false);
    frame.SetVisible(false);
    order.clear();
    for (int i = 0; i < 3; ++i) {
        user.Stroke({keys::tab, 0});
        order.push_back(focus());
    }
    EXPECT_THAT(order, ElementsAre("Check", "Button", "L"));
    user.Stroke({keys::tab, shifts::shift});
    EXPECT_EQ(focus(), "Button");
}

TEST_F(Hands, TabWithNothingToStopAtDoesNothing) {
    for (Control* control : form.Controls())
        control->SetVisible(false);
    log.clear();
    user.FocusNext(true);
    user.FocusNext(false);
    EXPECT_EQ(form.Focus(), nullptr);
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(Hands, BackwardsFromNowhereBeginsAtTheLast) {
    user.FocusNext(false);
    EXPECT_EQ(form.Focus(), &button);
}

TEST_F(Hands, LeavingAControlLeavesWhatHoldsItUnlessThatIsStillUnderTheMouse) {
    for (Control* control : std::vector<Control*>{&form, &frame, &label, &first, &button})
        control->onMouseLeave = Writes(log, control->Name());
    user.MouseLeave(&label, &first);
    EXPECT_THAT(log, ElementsAre("Label"));
    log.clear();
    user.MouseLeave(&label, &button);
    EXPECT_THAT(log, ElementsAre("Label", "Frame"));
    log.clear();
    user.MouseLeave(&frame, &first);
    user.MouseLeave(nullptr, &label);
    EXPECT_THAT(log, IsEmpty());
    user.MouseLeave(&first, nullptr);
    EXPECT_THAT(log, ElementsAre("First", "Frame", "F"));
}

}  // namespace
}  // namespace kivu::forms
