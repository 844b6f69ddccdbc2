#include "forms/look.h"

#include "forms_testing.h"

namespace kivu::forms {
namespace {

constexpr Color red = Rgb(200, 0, 0), black = 0, grey = Rgb(99, 99, 99), white = Rgb(255, 255, 255);
constexpr Size wide{100000, 100000};

struct LookTest : testing::Test {
    LookTest() {
        form.Move(700, 800, 3000, 2000);
        frame.Move(100, 200, 1000, 900);
        list.Move(10, 21, 333, 400);
        text.Move(100, 1200, 1000, text.Height());
        big.SetFontSize(15);
        big.SetBackColor(red);
    }

    FixedMeasure measure;
    Form form{"Form1", Toolkit{&measure, nullptr, nullptr, nullptr}};
    Frame frame{&form, "Frame1"};
    ListBox list{&frame, "List", ListControl::Order::asAdded};
    TextBox text{&form, "Text"};
    Label big{&form, "Big"};
};

TEST_F(LookTest, ColoursAreThoseOfTheOtherWindowAndFieldsHaveTheirOwn) {
    TakeLook(form, {10, grey, black, white, red}, wide);
    EXPECT_EQ(form.BackColor(), grey);
    EXPECT_EQ(form.ForeColor(), black);
    EXPECT_EQ(frame.BackColor(), grey);
    EXPECT_EQ(list.BackColor(), white);
    EXPECT_EQ(text.ForeColor(), red);
    EXPECT_EQ(big.BackColor(), red) << "a colour of its own";
}

TEST_F(LookTest, PlacesAndFontsGrowAlike) {
    const int height = text.Height();
    TakeLook(form, {20}, wide);
    EXPECT_EQ(form.FontSize(), 20);
    EXPECT_EQ(big.FontSize(), 30);
    EXPECT_EQ(list.FontSize(), 20);
    EXPECT_EQ(list.Left(), 20);
    EXPECT_EQ(list.Width(), 666);
    EXPECT_EQ(text.Height(), 2 * height);
    EXPECT_EQ(form.Width(), 6000);
    EXPECT_EQ(form.Left(), 700);
}

TEST_F(LookTest, WindowGrowsNoFurtherThanItsRoom) {
    TakeLook(form, {40}, {6000, 3000});
    EXPECT_EQ(form.Width(), 4500);
    EXPECT_EQ(form.Height(), 3000);
    EXPECT_EQ(form.FontSize(), 15);
}

TEST_F(LookTest, WindowThatIsTooLargeShrinks) {
    TakeLook(form, {10}, {1500, 5000});
    EXPECT_EQ(form.Width(), 1500);
    EXPECT_EQ(form.Height(), 1000);
    EXPECT_EQ(form.FontSize(), 5);
}

TEST_F(LookTest, WhatTouchesGoesOnTouching) {
    Label left{&form, "Left"}, right{&form, "Right"};
    left.Move(5, 0, 333, 100);
    right.Move(338, 0, 100, 100);
    TakeLook(form, {13.7}, wide);
    EXPECT_EQ(left.Right(), right.Left());
}

TEST_F(LookTest, SizeThatIsNoneAndNoRoomLeaveTheDesign) {
    TakeLook(form, {0}, wide);
    EXPECT_EQ(form.Width(), 3000);
    TakeLook(form, {20}, {0, 0});
    EXPECT_EQ(form.Width(), 3000);
}

}  // namespace
}  // namespace kivu::forms
