#include <limits>

#include "forms_testing.h"

namespace kivu::forms {
namespace {

struct ControlsTest : testing::Test {
    FixedMeasure measure;
    Form form{"Form1", Toolkit{&measure, nullptr, nullptr}};
    Log log;
};

TEST_F(ControlsTest, TextBoxRunsItsChangeHandlerForADifferentTextOnly) {
    TextBox box(&form, "Text1");
    box.onChange = [&] { log.push_back(box.Text()); };
    box.SetText("a");
    box.SetText("a");
    box.SetText("");
    EXPECT_THAT(log, ElementsAre("a", ""));
}

TEST_F(ControlsTest, TextBoxKeepsItsSelectionWithinTheText) {
    TextBox box(&form, "Text1");
    box.SetText("Käse");
    box.SetSelection(1, std::numeric_limits<int>::max());
    EXPECT_EQ(box.SelStart(), 1);
    EXPECT_EQ(box.SelLength(), 3);
    box.SetSelection(-1, 2);
    box.SetSelection(2, -1);
    EXPECT_EQ(box.SelStart(), 1);
    box.SetText("K");
    EXPECT_EQ(box.SelStart(), 1);
    EXPECT_EQ(box.SelLength(), 0);
}

TEST_F(ControlsTest, TextBoxIsAsHighAsItsFontNeeds) {
    TextBox box(&form, "Text1");
    const int before = box.Height();
    box.SetFontSize(20);
    EXPECT_EQ(box.Height() - before, 200);
}

TEST_F(ControlsTest, ChangeHandlerMayChangeTheValueAgain) {
    TextBox box(&form, "Text1");
    box.onChange = [&] {
        log.push_back("in " + box.Text());
        if (box.Text().size() < 3) box.SetText(box.Text() + "x");
        log.push_back("out " + box.Text());
    };
    box.SetText("x");
    EXPECT_THAT(log, ElementsAre("in x", "in xx", "in xxx", "out xxx", "out xxx", "out xxx"));
}

TEST_F(ControlsTest, ChangeHandlerThatAssignsTheSameValueIsNotEnteredAgain) {
    TextBox box(&form, "Text1");
    box.onChange = [&] {
        log.push_back("change");
        box.SetText("a");
    };
    box.SetText("a");
    EXPECT_THAT(log, ElementsAre("change"));
}

TEST_F(ControlsTest, LabelRunsItsChangeHandlerForADifferentCaptionOnly) {
    Label label(&form, "Label1");
    label.onChange = [&] { log.push_back(label.Caption()); };
    label.SetCaption("");
    label.SetCaption("a");
    label.SetCaption("a");
    EXPECT_THAT(log, ElementsAre("a"));
}

TEST_F(ControlsTest, CaptionLinesEndAtEveryKindOfLineBreak) {
    EXPECT_THAT(CaptionLines(""), ElementsAre(""));
    EXPECT_THAT(CaptionLines("a"), ElementsAre("a"));
    EXPECT_THAT(CaptionLines("a\r\nb\rc\nd"), ElementsAre("a", "b", "c", "d"));
    EXPECT_THAT(CaptionLines("a\r\n"), ElementsAre("a", ""));
    EXPECT_THAT(CaptionLines("\n\r"), ElementsAre("", "", ""));
}

TEST_F(ControlsTest, AutoSizeLabelIsAsWideAsItsLongestLine) {
    Label label(&form, "Label1");
    label.Move(300, 400, 5, 5);
    label.SetCaption("abc\rlonger\rab");
    EXPECT_EQ(label.TextWidth(), 600);
    EXPECT_EQ(label.TextHeight(), 600);
    EXPECT_EQ(label.Width(), 5);
    label.SetAutoSize(true);
    EXPECT_EQ(label.Width(), 600 + 2 * twipsPerPixel);
    EXPECT_EQ(label.Height(), 600);
    EXPECT_EQ(label.Left(), 300);
    label.SetCaption("ab");
    EXPECT_EQ(label.Width(), 200 + 2 * twipsPerPixel);
    label.SetFontSize(20);
    EXPECT_EQ(label.Height(), 400);
    label.SetAutoSize(false);
    label.SetCaption("longer again");
    EXPECT_EQ(label.Height(), 400);
}

TEST_F(ControlsTest, LabelMeasuresAnotherTextInItsFont) {
    Label label(&form, "Label1");
    label.SetFontSize(20);
    EXPECT_EQ(label.WidthOf("ab\nabc"), 600);
    EXPECT_EQ(label.TextWidth(), 0);
}

TEST_F(ControlsTest, AutoSizeLabelHasItsNewSizeWhenTheChangeHandlerRuns) {
    Label label(&form, "Label1");
    label.SetAutoSize(true);
    int seen = 0;
    label.onChange = [&] { seen = label.Width(); };
    label.SetCaption("abcd");
    EXPECT_EQ(seen, 400 + 2 * twipsPerPixel);
}

TEST_F(ControlsTest, EndlessCaptionsInTheLargestFontStayMeasurable) {
    Form plain("Form2");
    Label label(&plain, "Label1");
    label.SetFontSize(largestFont);
    label.SetAutoSize(true);
    label.SetCaption(std::string(1'000'000, 'x'));
    EXPECT_GT(label.TextWidth(), 0);
    label.SetCaption(std::string(1'000'000, '\n'));
    EXPECT_GT(label.Height(), 0);
}

TEST_F(ControlsTest, CheckBoxRunsItsClickHandlerForADifferentValueOnly) {
    CheckBox box(&form, "Check1");
    box.onClick = [&] { log.push_back(std::to_string(box.Value())); };
    box.SetValue(0);
    box.SetValue(1);
    box.SetValue(1);
    box.SetValue(2);
    box.SetValue(0);
    EXPECT_THAT(log, ElementsAre("1", "2", "0"));
}

TEST_F(ControlsTest, CheckBoxTakesNoOtherValueThanZeroToTwo) {
    CheckBox box(&form, "Check1");
    box.SetValue(1);
    for (const int value : {-1, 3, 255})
        box.SetValue(value);
    EXPECT_EQ(box.Value(), 1);
}

TEST_F(ControlsTest, OptionButtonSwitchesTheOthersOfItsContainerOff) {
    Frame frame(&form, "Frame1");
    OptionButton a(&frame, "A"), b(&frame, "B"), elsewhere(&form, "C");
    a.onClick = [&] { log.push_back("A"); };
    b.onClick = [&] { log.push_back("B, A is " + std::to_string(a.Value())); };
    elsewhere.SetValue(1);
    a.SetValue(1);
    b.SetValue(1);
    EXPECT_EQ(a.Value(), 0);
    EXPECT_EQ(b.Value(), 1);
    EXPECT_EQ(elsewhere.Value(), 1);
    EXPECT_THAT(log, ElementsAre("A", "B, A is 0"));
    b.SetValue(1);
    b.SetValue(0);
    EXPECT_THAT(log, ElementsAre("A", "B, A is 0"));
}

TEST_F(ControlsTest, OptionButtonKeepsAHandlerGivenWhileItIsSwitchedOff) {
    OptionButton a(&form, "A"), b(&form, "B");
    a.SetValue(1);
    LoggingObserver observer(log);
    observer.also = [&](Control& control, Aspect) {
        if (&control == &a) a.onClick = [&] { log.push_back("new handler"); };
    };
    form.SetObserver(&observer);
    b.SetValue(1);
    form.SetObserver(nullptr);
    log.clear();
    a.SetValue(1);
    EXPECT_THAT(log, ElementsAre("new handler"));
}

TEST_F(ControlsTest, SliderTakesOnlyValuesOfItsRange) {
    Slider slider(&form, "Slider1");
    slider.SetRange(5, 20);
    EXPECT_EQ(slider.Value(), 5);
    slider.onChange = [&] { log.push_back(std::to_string(slider.Value())); };
    slider.SetValue(4);
    slider.SetValue(21);
    slider.SetValue(20);
    slider.SetValue(20);
    EXPECT_THAT(log, ElementsAre("20"));
}

TEST_F(ControlsTest, SliderRangeMovesTheValueIntoItself) {
    Slider slider(&form, "Slider1");
    slider.SetValue(10);
    slider.onChange = [&] { log.push_back(std::to_string(slider.Value())); };
    slider.SetRange(0, 8);
    slider.SetRange(0, 30);
    slider.SetRange(9, 3);
    EXPECT_EQ(slider.Max(), 30);
    EXPECT_THAT(log, ElementsAre("8"));
}

TEST_F(ControlsTest, TimerTicksOnlyWhileItIsEnabled) {
    Timer timer(&form, "Timer1", 1000, false);
    timer.onTimer = Writes(log, "tick");
    EXPECT_FALSE(timer.Tick());
    timer.SetEnabled(true);
    EXPECT_TRUE(timer.Tick());
    timer.SetEnabled(false);
    EXPECT_FALSE(timer.Tick());
    EXPECT_THAT(log, ElementsAre("tick"));
}

TEST_F(ControlsTest, TimerWithoutAnIntervalDoesNotTick) {
    Timer timer(&form, "Timer1", 0, true);
    Timer negative(&form, "Timer2", -5, true);
    timer.onTimer = Writes(log, "tick");
    negative.onTimer = Writes(log, "tick");
    EXPECT_FALSE(timer.Tick());
    EXPECT_FALSE(negative.Tick());
    timer.SetInterval(-1);
    EXPECT_EQ(timer.Interval(), 0);
    timer.SetInterval(10);
    EXPECT_TRUE(timer.Tick());
    EXPECT_THAT(log, ElementsAre("tick"));
}

TEST_F(ControlsTest, TimerIsNotEnteredAgainBeforeItsHandlerHasReturned) {
    Timer timer(&form, "Timer1", 1000, true);
    timer.onTimer = [&] {
        log.push_back("in");
        EXPECT_TRUE(timer.Tick());
        log.push_back("out");
    };
    timer.Tick();
    timer.Tick();
    EXPECT_THAT(log, ElementsAre("in", "out", "in", "out"));
}

TEST_F(ControlsTest, TimerThatDisablesItselfTicksNoMore) {
    Timer timer(&form, "Timer1", 1000, true);
    timer.onTimer = [&] {
        log.push_back("tick");
        timer.SetEnabled(false);
    };
    EXPECT_TRUE(timer.Tick());
    EXPECT_FALSE(timer.Tick());
    EXPECT_THAT(log, ElementsAre("tick"));
}

TEST_F(ControlsTest, TimerTicksInAHiddenForm) {
    form.SetVisible(false);
    Timer timer(&form, "Timer1", 1000, true);
    EXPECT_TRUE(timer.Tick());
}

}  // namespace
}  // namespace kivu::forms
