#include "forms/tab_order.h"

#include "forms_testing.h"

namespace kivu::forms {
namespace {

struct TabOrderTest : testing::Test {
    Log Stops() const {
        Log names;
        for (const Control* control : TabStops(form))
            names.push_back(control->FullName());
        return names;
    }
    void Tab(int shift = 0) { input.Stroke({keys::tab, shift}); }

    Form form{"Form1"};
    UserInput input{form};
};

TEST_F(TabOrderTest, GoesLineByLineFromLeftToRight) {
    TextBox below{&form, "Below"}, right{&form, "Right"}, left{&form, "Left"};
    left.Move(0, 20, 1000, 300);
    right.Move(2000, 0, 1000, 300);
    below.Move(0, 400, 1000, 300);
    EXPECT_THAT(Stops(), ElementsAre("Left", "Right", "Below"));
    right.BringToFront();
    left.BringToFront();
    EXPECT_THAT(Stops(), ElementsAre("Left", "Right", "Below"));
}

TEST_F(TabOrderTest, ColumnBesideATallControlComesBehindIt) {
    CommandButton cancel{&form, "Cancel"}, ok{&form, "Ok"};
    ListBox list{&form, "List", ListControl::Order::asAdded};
    list.Move(0, 100, 3000, 6000);
    ok.Move(4000, 100, 1000, 300);
    cancel.Move(4000, 600, 1000, 300);
    EXPECT_THAT(Stops(), ElementsAre("List", "Ok", "Cancel"));
}

TEST_F(TabOrderTest, LinesBesideATallControlStayLines) {
    CommandButton browse2{&form, "Browse2"}, browse1{&form, "Browse1"};
    TextBox path2{&form, "Path2"}, path1{&form, "Path1"}, below{&form, "Below"};
    ListBox list{&form, "List", ListControl::Order::asAdded};
    list.Move(0, 0, 3000, 6000);
    path1.Move(3200, 0, 2000, 400);
    browse1.Move(5400, 30, 400, 400);
    path2.Move(3200, 420, 2000, 400);
    browse2.Move(5400, 450, 400, 400);
    below.Move(0, 6100, 2000, 400);
    EXPECT_THAT(Stops(), ElementsAre("List", "Path1", "Browse1", "Path2", "Browse2", "Below"));
}

TEST_F(TabOrderTest, ContainerIsGoneThroughAtItsPlace) {
    TextBox last{&form, "Last"};
    Frame frame{&form, "Frame1"};
    TextBox second{&frame, "Second"}, first{&frame, "First"};
    TextBox above{&form, "Above"};
    above.Move(0, 0, 1000, 300);
    frame.Move(0, 400, 3000, 2000);
    first.Move(0, 100, 1000, 300);
    second.Move(0, 500, 1000, 300);
    last.Move(0, 2600, 1000, 300);
    EXPECT_THAT(Stops(), ElementsAre("Above", "First", "Second", "Last"));
}

TEST_F(TabOrderTest, CanBeAsTheControlsWereMade) {
    TextBox below{&form, "Below"}, above{&form, "Above"};
    below.Move(0, 400, 1000, 300);
    form.SetTabOrder(TabOrder::asCreated);
    EXPECT_THAT(Stops(), ElementsAre("Below", "Above"));
}

TEST_F(TabOrderTest, PassesOverWhatTakesNoFocus) {
    CommandButton up{&form, "Up"};
    Label plain{&form, "Plain"}, link{&form, "Link"};
    CheckBox off{&form, "Off"};
    off.SetEnabled(false);
    up.SetTakesFocus(false);
    link.SetLink(true);
    EXPECT_THAT(Stops(), ElementsAre("Link"));
}

TEST_F(TabOrderTest, OptionButtonsAreOneStopByContainer) {
    OptionButton a{&form, "A"}, b{&form, "B"};
    Frame frame{&form, "Frame1"};
    OptionButton c{&frame, "C"}, d{&frame, "D"};
    EXPECT_THAT(Stops(), ElementsAre("A", "C"));
    b.SetValue(1);
    d.SetValue(1);
    EXPECT_THAT(Stops(), ElementsAre("B", "D"));
    b.SetFocus();
    Tab();
    EXPECT_EQ(form.Focus(), &d);
    Tab(shifts::shift);
    EXPECT_EQ(form.Focus(), &b);
}

// The focus would not be seen below an open panel.
TEST_F(TabOrderTest, WhatARaisedPanelCoversIsPassedOver) {
    form.SetTabOrder(TabOrder::asCreated);
    TextBox above{&form, "Above"}, below{&form, "Below"}, half{&form, "Half"};
    Frame group{&form, "Group"};
    TextBox inGroup{&group, "InGroup"};
    Frame panel{&form, "Panel"};
    TextBox inPanel{&panel, "InPanel"};
    above.Move(0, 0, 1000, 300);
    below.Move(200, 1100, 600, 300);
    half.Move(800, 1500, 1000, 300);
    group.Move(500, 2000, 1000, 500);
    inGroup.Move(0, 0, 300, 300);
    panel.Move(100, 1000, 1000, 2000);
    EXPECT_THAT(Stops(), ElementsAre("Above", "Below", "Half", "InGroup", "InPanel"));
    panel.SetRaised(true);
    EXPECT_THAT(Stops(), ElementsAre("Above", "Half", "InPanel"));
    panel.SendToBack();
    EXPECT_THAT(Stops(), ElementsAre("Above", "Below", "Half", "InGroup", "InPanel"));
    panel.BringToFront();
    panel.SetVisible(false);
    EXPECT_THAT(Stops(), ElementsAre("Above", "Below", "Half", "InGroup"));
}

TEST_F(TabOrderTest, ArrowsChooseAmongTheOptionsOfAContainer) {
    OptionButton a{&form, "A"}, b{&form, "B"}, off{&form, "Off"}, c{&form, "C"};
    off.SetEnabled(false);
    Log log;
    for (OptionButton* option : {&a, &b, &c})
        option->onClick = Writes(log, option->Name());
    a.SetValue(1);
    a.SetFocus();
    log.clear();
    input.Stroke({keys::down});
    input.Stroke({keys::right});
    input.Stroke({keys::down});
    input.Stroke({keys::up});
    EXPECT_THAT(log, ElementsAre("B", "C", "A", "C"));
    EXPECT_EQ(form.Focus(), &c);
    EXPECT_EQ(c.Value(), 1);
    EXPECT_EQ(a.Value(), 0);
}

TEST_F(TabOrderTest, OneOptionAloneStays) {
    OptionButton a{&form, "A"};
    a.SetFocus();
    input.Stroke({keys::left});
    EXPECT_EQ(form.Focus(), &a);
    EXPECT_EQ(a.Value(), 1);
}

}  // namespace
}  // namespace kivu::forms
