#include "ui/color_select.h"

#include <gtest/gtest.h>

#include "core/form1.h"
#include "testing/memory_file_system.h"
#include "testing/scripted_host.h"
#include "ui/window_colors.h"

namespace kivu::ui {
namespace {

struct ColorSelectTest : ::testing::Test {
    ColorSelectTest() {
        picker.onChange = [this] { ++changes; };
    }
    std::vector<int> Sliders() const {
        std::vector<int> values;
        for (const forms::Slider& slider : controls.ColSlider1)
            values.push_back(slider.Value());
        return values;
    }
    using Values = std::vector<int>;

    kivu::testing::MemoryFileSystem files;
    kivu::testing::ScriptedDialogs dialogs;
    kivu::testing::ScriptedColors system;
    profile::Ini ini{files};
    core::Form1 main{forms::Toolkit{}};
    WindowColors windowColors{main, ini};
    forms::Form window{"Window"};
    ColorSelectControls controls{&window};
    ColorSelect picker{controls, main, windowColors, {dialogs, system}};
    int changes = 0;
};

TEST_F(ColorSelectTest, ColourFromTheProgramStandsOnTheSlidersAndChangesNothing) {
    const forms::Color before = main.BackColor();
    picker.SetBackColor(33023);
    EXPECT_EQ(Sliders(), (Values{255, 128, 0}));
    EXPECT_EQ(controls.BackGroundPix.BackColor(), 33023u);
    EXPECT_EQ(controls.Option1.BackColor(), 33023u);
    EXPECT_EQ(controls.Option2.BackColor(), 33023u);
    EXPECT_EQ(picker.GetBackColor(), 33023);
    EXPECT_EQ(changes, 0);
    EXPECT_EQ(main.BackColor(), before);
    // The other colour does not come onto the sliders, and is not painted over this one.
    picker.SetForeColor(0xffffff);
    EXPECT_EQ(Sliders(), (Values{255, 128, 0}));
    EXPECT_EQ(picker.GetBackColor(), 33023);
    EXPECT_EQ(picker.GetForeColor(), 0xffffff);
    EXPECT_EQ(changes, 0);
    EXPECT_EQ(main.BackColor(), before);
}

TEST_F(ColorSelectTest, SliderPicksAndTheMainWindowShowsIt) {
    picker.SetBackColor(33023);
    picker.SetForeColor(0x000000);
    controls.ColSlider1[2].SetValue(64);
    EXPECT_EQ(picker.GetBackColor(), 4227327);
    EXPECT_EQ(picker.GetForeColor(), 0);
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(main.BackColor(), 4227327u);
    EXPECT_EQ(main.FormBackColor, 4227327u);
    EXPECT_EQ(main.Label2.BackColor(), 4227327u);
    EXPECT_EQ(main.Label2.ForeColor(), 0u);
    EXPECT_EQ(controls.SkinLines.Text(), "BackColor=#FF8040\r\nFontColor=#000000");
    // Where it stands already it changes nothing.
    controls.ColSlider1[2].SetValue(64);
    EXPECT_EQ(changes, 1);
}

TEST_F(ColorSelectTest, ChosenOptionPutsItsColourOnTheSliders) {
    picker.SetBackColor(33023);
    picker.SetForeColor(0x030201);
    controls.Option2.Press();
    EXPECT_EQ(Sliders(), (Values{1, 2, 3}));
    EXPECT_EQ(changes, 0);
    controls.ColSlider1[0].SetValue(255);
    EXPECT_EQ(picker.GetForeColor(), 0x0302ff);
    EXPECT_EQ(picker.GetBackColor(), 33023);
    EXPECT_EQ(main.ForeColor(), 0x0302ffu);
    EXPECT_EQ(changes, 1);
    controls.Option1.Press();
    EXPECT_EQ(Sliders(), (Values{255, 128, 0}));
    EXPECT_EQ(changes, 1);
}

TEST_F(ColorSelectTest, DoubleClickAsksForTheColour) {
    picker.SetBackColor(4227327);
    dialogs.inputs = {"#01#02#03"};
    controls.Option1.DoubleClick();
    ASSERT_EQ(dialogs.shown.size(), 1U);
    EXPECT_EQ(dialogs.shown[0].text, "#FF8040 - Format: #FFFFFFFF");
    EXPECT_EQ(picker.GetBackColor(), 0x030201);
    EXPECT_EQ(main.BackColor(), 0x030201u);
    EXPECT_EQ(Sliders(), (Values{1, 2, 3}));
    EXPECT_EQ(changes, 1);
}

TEST_F(ColorSelectTest, DoubleClickChoosesItsOptionFirst) {
    picker.SetBackColor(0);
    picker.SetForeColor(0xffffff);
    dialogs.onShow = [this] { EXPECT_EQ(Sliders(), (Values{255, 255, 255})); };
    dialogs.inputs = {"#FF8000FF"};
    controls.Option2.DoubleClick();
    EXPECT_EQ(dialogs.shown[0].text, "#FFFFFF - Format: #FFFFFFFF");
    EXPECT_EQ(picker.GetForeColor(), 33023);
    EXPECT_EQ(picker.GetBackColor(), 0);
    EXPECT_EQ(controls.Option2.Value(), 1);
    EXPECT_EQ(changes, 1);
}

TEST_F(ColorSelectTest, KeyAsksForTheColourOfItsOption) {
    constexpr int f2 = forms::keys::f1 + 1;
    picker.SetForeColor(0);
    dialogs.inputs = {"#01#02#03"};
    forms::Key key{f2};
    controls.Option2.onKeyDown(key);
    EXPECT_EQ(key.code, 0);
    ASSERT_EQ(dialogs.shown.size(), 1U);
    EXPECT_EQ(picker.GetForeColor(), 0x030201);
    EXPECT_EQ(controls.Option2.Value(), 1);
    EXPECT_EQ(changes, 1);
    // Neither with a shift key, nor held down, nor any other.
    for (forms::Key other :
         {forms::Key{f2, forms::shifts::ctrl}, forms::Key{f2, 0, true}, forms::Key{f2 + 1}}) {
        controls.Option2.onKeyDown(other);
        EXPECT_EQ(dialogs.shown.size(), 1U);
    }
}

TEST_F(ColorSelectTest, EmptyAnswerChangesNothing) {
    picker.SetBackColor(33023);
    controls.Option1.DoubleClick();
    EXPECT_EQ(picker.GetBackColor(), 33023);
    EXPECT_EQ(changes, 0);
}

TEST_F(ColorSelectTest, AnswerWithHalfAPartLeavesItOut) {
    dialogs.inputs = {"#FFF", "red"};
    controls.Option1.DoubleClick();
    EXPECT_EQ(picker.GetBackColor(), 255);
    controls.Option1.DoubleClick();
    EXPECT_EQ(picker.GetBackColor(), 0);
}

TEST_F(ColorSelectTest, SystemColourIsTakenByItsMeaning) {
    picker.SetBackColor(-2147483633);
    EXPECT_EQ(picker.GetBackColor(), 0xc0c0c0);
    EXPECT_EQ(Sliders(), (Values{192, 192, 192}));
}

TEST_F(ColorSelectTest, BeginsWithTheMainWindowsColours) {
    EXPECT_EQ(picker.GetBackColor(), 12341760);
    EXPECT_EQ(picker.GetForeColor(), 0xffffff);
    EXPECT_EQ(Sliders(), (Values{0x00, 0x52, 0xbc}));
    EXPECT_EQ(controls.Option1.Value(), 1);
}

TEST_F(ColorSelectTest, WhatItIsMadeOfKeepsItsColoursWhenItsWindowIsColoured) {
    picker.SetBackColor(33023);
    windowColors.SetColors(window, 0x102030, 0x405060);
    EXPECT_EQ(window.BackColor(), 0x102030u);
    EXPECT_EQ(controls.frame.BackColor(), 0x102030u);
    EXPECT_EQ(controls.BackGroundPix.BackColor(), 33023u);
    EXPECT_EQ(controls.SampleText.BackColor(), 33023u);
    EXPECT_EQ(controls.Option1.BackColor(), 33023u);
    // Shown anew, it fits into its window.
    picker.SetBackColor(33023);
    EXPECT_EQ(controls.SliderName[0].ForeColor(), 0x405060u);
    EXPECT_EQ(controls.SkinLines.BackColor(), 0x405060u);
}

TEST_F(ColorSelectTest, ControlsGoByTheirNames) {
    EXPECT_EQ(window.Find("colslider1", 2), &controls.ColSlider1[2]);
    EXPECT_EQ(window.Find("Option2"), &controls.Option2);
    EXPECT_EQ(window.Find("ColorSelect1"), &controls.frame);
}

}  // namespace
}  // namespace kivu::ui
