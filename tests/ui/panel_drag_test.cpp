#include "ui/panel_drag.h"

#include <algorithm>
#include <gtest/gtest.h>

#include "core/form1.h"
#include "testing/quiet_ports.h"

namespace kivu::ui {
namespace {

struct Arranging : kivu::testing::QuietLayout {
    void ResizeSettingsWindow() override { ++kept; }
    int kept = 0;
};

struct PanelDragTest : ::testing::Test {
    PanelDragTest() {
        form.Move(600, 300, 14400, 10200);
        form.SettingsSubPicture.Move(9000, 7500, 4560, 480);
        form.SettingsFrame.Move(9433, 6000, 4800, 4000);
        form.VorschauBild.Move(9100, 1300, 5000, 4000);
        form.TopRightPic.Move(10900, 60, 3270, 960);
        form.TimeString.Move(1500, 75, 1290, 420);
        form.UAE_Short.Move(300, 1300, 9033, 8600);
    }
    void Grab(int x, int y) { panel.SettingsSubPicture_MouseDown({forms::buttons::left, 0, x, y}); }
    void Drop(forms::Control& on, int x, int y) {
        for (const PanelDrag::Target& target : panel.Targets()) {
            if (target.control == &on) panel.DragDrop(target, form.SettingsSubPicture, x, y);
        }
    }
    void ExpectPlace(int left, int top) {
        EXPECT_EQ(form.SettingsSubPicture.Left(), left);
        EXPECT_EQ(form.SettingsSubPicture.Top(), top);
        EXPECT_EQ(form.SettingsSubPicture.Width(), 4560);
        EXPECT_EQ(form.SettingsSubPicture.Height(), 480);
    }
    // How far beside the mouse the panel comes to lie: pixels of its place on the screen, taken as
    // twips, 700 less sideways.
    static constexpr int besideX = (9000 + 600) / 15 - 700;
    static constexpr int besideY = (7500 + 300) / 15;

    core::Form1 form{forms::Toolkit{}};
    Arranging layout;
    PanelDrag panel{form, layout};
};

TEST_F(PanelDragTest, PressGivesThePanelToTheMouseAndBringsItForward) {
    Grab(30, 40);
    EXPECT_EQ(form.Dragged(), &form.SettingsSubPicture);
    EXPECT_EQ(form.Children().back(), &form.SettingsSubPicture);
}

TEST_F(PanelDragTest, OtherButtonsDragNothing) {
    panel.SettingsSubPicture_MouseDown({forms::buttons::right, 0, 30, 40});
    EXPECT_EQ(form.Dragged(), nullptr);
}

TEST_F(PanelDragTest, PlaceInTheWindowIsThePlaceItself) {
    Grab(30, 40);
    Drop(form, 5000, 6000);
    ExpectPlace(5000 - 30 + besideX, 6000 - 40 + besideY);
    EXPECT_EQ(layout.kept, 1);
}

TEST_F(PanelDragTest, ListsAndLabelsAddTheirOwnPlace) {
    for (forms::Control* target : {static_cast<forms::Control*>(&form.FavoritenListe),
                                   static_cast<forms::Control*>(&form.UAE_Short),
                                   static_cast<forms::Control*>(&form.WIthoutDoubles),
                                   static_cast<forms::Control*>(&form.TopRightPic),
                                   static_cast<forms::Control*>(&form.MyCaptionLabel),
                                   static_cast<forms::Control*>(&form.LoadingBtn)}) {
        form.SettingsSubPicture.Move(9000, 7500, 4560, 480);
        Grab(0, 0);
        Drop(*target, 100, 200);
        ExpectPlace(target->Left() + 100 + besideX, target->Top() + 200 + besideY);
    }
}

TEST_F(PanelDragTest, WhatLiesInAFrameAddsTheFramesPlaceAlone) {
    form.GamePictureVis.Move(70, 80, 100, 100);
    form.Current_ProgramNameFull.Move(100, 200, 4600, 1000);
    const std::pair<forms::Control*, forms::Control*> pairs[] = {
        {&form.GamePicture, &form.VorschauBild},
        {&form.GamePictureVis, &form.VorschauBild},
        {&form.VorschauBild, &form.VorschauBild},
        {&form.Current_ProgramNameFull, &form.SettingsFrame},
        {&form.SettingsFrame, &form.SettingsFrame}};
    for (const auto& [target, frame] : pairs) {
        form.SettingsSubPicture.Move(9000, 7500, 4560, 480);
        Grab(10, 20);
        Drop(*target, 100, 200);
        ExpectPlace(frame->Left() + 100 - 10 + besideX, frame->Top() + 200 - 20 + besideY);
    }
}

TEST_F(PanelDragTest, ClockAddsItsCornerAndItself) {
    Grab(0, 0);
    Drop(form.TimeString, 5, 6);
    ExpectPlace(10900 + 1500 + 5 + besideX, 60 + 75 + 6 + besideY);
}

TEST_F(PanelDragTest, WindowLeftOfTheScreenCountsByItsDistance) {
    form.SetLeft(-10500);
    form.SettingsSubPicture.SetLeft(3000);
    Grab(0, 0);
    Drop(form, 5000, 6000);
    EXPECT_EQ(form.SettingsSubPicture.Left(), 5000 + 500 - 700);
}

TEST_F(PanelDragTest, OtherControlsThanThePanelMoveNothing) {
    Grab(0, 0);
    const PanelDrag::Target target{&form, {}};
    panel.DragDrop(target, form.TopRightPic, 5, 6);
    panel.DragOver(target, form.TopRightPic, 5, 6);
    ExpectPlace(9000, 7500);
    EXPECT_EQ(layout.kept, 0);
}

TEST_F(PanelDragTest, PanelLiesUnderTheMouseAsItWillWhenItIsDropped) {
    Grab(30, 40);
    const PanelDrag::Target target{&form, {}};
    panel.DragOver(target, form.SettingsSubPicture, 5000, 6000);
    ExpectPlace(5000 - 30 + besideX, 6000 - 40 + besideY);
    panel.DragOver(target, form.SettingsSubPicture, 100, 6000);
    panel.DragDrop(target, form.SettingsSubPicture, 5000, 6000);
    ExpectPlace(5000 - 30 + besideX, 6000 - 40 + besideY);
}

TEST_F(PanelDragTest, EveryTargetIsNamedOnce) {
    std::vector<const forms::Control*> seen;
    for (const PanelDrag::Target& target : panel.Targets())
        seen.push_back(target.control);
    EXPECT_EQ(seen.size(), 13U);
    std::sort(seen.begin(), seen.end());
    EXPECT_EQ(std::unique(seen.begin(), seen.end()), seen.end());
}

}  // namespace
}  // namespace kivu::ui
