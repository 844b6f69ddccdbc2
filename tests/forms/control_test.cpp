#include <cmath>
#include <limits>

#include "forms_testing.h"

namespace kivu::forms {
namespace {

struct ControlTest : testing::Test {
    Form form{"Form1"};
    Frame frame{&form, "Frame1"};
    Label label{&frame, "Label1"};
    Log log;
};

TEST_F(ControlTest, VisibleIsTheOwnFlagWhateverTheContainerSays) {
    frame.SetVisible(false);
    EXPECT_TRUE(label.Visible());
    label.SetVisible(false);
    frame.SetVisible(true);
    EXPECT_FALSE(label.Visible());
}

TEST_F(ControlTest, ReachableNeedsEveryContainerVisibleAndEnabled) {
    EXPECT_TRUE(label.IsReachable());
    frame.SetVisible(false);
    EXPECT_FALSE(label.IsReachable());
    frame.SetVisible(true);
    frame.SetEnabled(false);
    EXPECT_FALSE(label.IsReachable());
    frame.SetEnabled(true);
    label.SetEnabled(false);
    EXPECT_FALSE(label.IsReachable());
}

TEST_F(ControlTest, FullNameHoldsTheIndexOfAControlArray) {
    CheckBox box(&form, "Check_Dfx", 3);
    EXPECT_EQ(box.FullName(), "Check_Dfx(3)");
    EXPECT_EQ(label.FullName(), "Label1");
}

TEST_F(ControlTest, FindTakesNamesWithoutRegardToCaseAndTheExactIndex) {
    CheckBox box(&form, "Check_Dfx", 3);
    EXPECT_EQ(form.Find("check_DFX", 3), &box);
    EXPECT_EQ(form.Find("Check_Dfx"), nullptr);
    EXPECT_EQ(form.Find("LABEL1"), &label);
    EXPECT_EQ(form.Find("Label"), nullptr);
}

TEST_F(ControlTest, MoveRunsTheResizeHandlerForANewSizeOnly) {
    label.onResize = Writes(log, "resize");
    label.Move(10, 20, 0, 0);
    EXPECT_THAT(log, IsEmpty());
    label.SetWidth(300);
    label.SetWidth(300);
    label.SetHeight(150);
    EXPECT_THAT(log, ElementsAre("resize", "resize"));
    EXPECT_EQ(label.Right(), 310);
    EXPECT_EQ(label.Bottom(), 170);
}

TEST_F(ControlTest, NegativeSizeChangesNothingAtAll) {
    label.Move(10, 20, 300, 150);
    label.Move(1, 2, -1, 150);
    label.Move(1, 2, 300, -5);
    EXPECT_EQ(label.Left(), 10);
    EXPECT_EQ(label.Top(), 20);
    EXPECT_EQ(label.Width(), 300);
}

TEST_F(ControlTest, FontSizesThatAreNoSizeChangeNothing) {
    label.SetFontSize(14);
    for (const double size :
         {0.0, -3.0, std::nan(""), largestFont + 1, std::numeric_limits<double>::infinity()}) {
        label.SetFontSize(size);
        EXPECT_EQ(label.FontSize(), 14) << size;
    }
}

TEST_F(ControlTest, NewControlTakesTheFontOfItsContainer) {
    frame.SetFont({"Sans", 17, true});
    const Label inner(&frame, "Label2");
    EXPECT_EQ(inner.GetFont(), (Font{"Sans", 17, true}));
}

TEST_F(ControlTest, BringToFrontMovesItBehindItsSiblingsInTheListOfChildren) {
    Label other(&frame, "Label2");
    label.BringToFront();
    EXPECT_THAT(frame.Children(), ElementsAre(&other, &label));
}

TEST_F(ControlTest, HandlerThatReplacesItselfRunsToItsEnd) {
    label.onClick = [this, text = std::string(100, 'x')] {
        label.onClick = Writes(log, "second");
        log.push_back(text.substr(0, 1));
    };
    label.Click();
    label.Click();
    EXPECT_THAT(log, ElementsAre("x", "second"));
}

TEST_F(ControlTest, HandlerThatRemovesItselfRunsToItsEnd) {
    label.onClick = [this, text = std::string(100, 'x')] {
        label.onClick = nullptr;
        log.push_back(text.substr(0, 1));
    };
    label.Click();
    label.Click();
    EXPECT_THAT(log, ElementsAre("x"));
}

TEST(ControlOrder, SendToBackPutsItBehindItsSiblings) {
    Log log;
    LoggingObserver observer(log);
    Form form{"Form1"};
    Label a{&form, "A"}, b{&form, "B"}, c{&form, "C"};
    form.SetObserver(&observer);
    c.SendToBack();
    EXPECT_THAT(form.Children(), ElementsAre(&c, &a, &b));
    c.SendToBack();
    EXPECT_THAT(log, ElementsAre("C zOrder"));
    c.BringToFront();
    EXPECT_THAT(form.Children(), ElementsAre(&a, &b, &c));
    form.SetObserver(nullptr);
}

}  // namespace
}  // namespace kivu::forms
