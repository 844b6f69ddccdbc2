#include "forms_testing.h"

namespace kivu::forms {
namespace {

struct ObserverTest : testing::Test {
    ObserverTest() { form.SetObserver(&observer); }
    Form form{"F"};
    ListBox list{&form, "L", ListControl::Order::asAdded};
    TextBox text{&form, "T"};
    ComboBox combo{&form, "C"};
    CheckBox box{&form, "B"};
    Label label{&form, "Label"};
    Timer timer{&form, "Timer", 100, false};
    Log log;
    LoggingObserver observer{log};
};

TEST_F(ObserverTest, IsToldAfterTheChangeAndBeforeTheHandlers) {
    observer.also = [this](Control&, Aspect) {
        log.push_back(text.Text() + std::to_string(box.Value()) + label.Caption());
    };
    text.onChange = Writes(log, "change");
    box.onClick = Writes(log, "click");
    label.onChange = Writes(log, "change");
    text.SetText("a");
    box.SetValue(1);
    label.SetCaption("z");
    EXPECT_THAT(log, ElementsAre("T text", "a0", "change", "B text", "a1", "click", "Label text",
                                 "a1z", "change"));
}

TEST_F(ObserverTest, IsToldOfRowsAndSelection) {
    list.onClick = Writes(log, "click");
    list.AddItem("a");
    list.SetListIndex(0);
    list.SetList(0, "b");
    list.RemoveItem(0);
    list.AddItems({});
    EXPECT_THAT(log,
                ElementsAre("L rows", "L selection", "click", "L rows", "L rows", "L selection"));
}

TEST_F(ObserverTest, IsToldWhenClearTakesTheSelection) {
    list.AddItem("a");
    list.SetListIndex(0);
    log.clear();
    list.Clear();
    list.Clear();
    EXPECT_THAT(log, ElementsAre("L rows", "L selection"));
}

TEST_F(ObserverTest, FindsTextAndRowOfAComboBoxBothNew) {
    combo.AddItem("Amiga");
    log.clear();
    observer.also = [this](Control&, Aspect) {
        log.push_back(combo.Text() + std::to_string(combo.ListIndex()));
    };
    combo.onClick = Writes(log, "click");
    combo.SetListIndex(0);
    EXPECT_THAT(log, ElementsAre("C text", "Amiga0", "C selection", "Amiga0", "click"));
}

TEST_F(ObserverTest, FindsTextAndCaretBothNew) {
    observer.also = [this](Control&, Aspect) {
        log.push_back(text.Text() + std::to_string(text.SelStart()));
    };
    text.onChange = Writes(log, "change");
    text.SetField(TextField("ab", 2, 0));
    EXPECT_THAT(log, ElementsAre("T text", "ab2", "T selection", "ab2", "change"));
}

TEST_F(ObserverTest, IsToldOfTheFocusBeforeTheFocusHandlers) {
    list.onLostFocus = Writes(log, "lost");
    text.onGotFocus = Writes(log, "got");
    list.SetFocus();
    log.clear();
    text.SetFocus();
    EXPECT_THAT(log, ElementsAre("F focus", "lost", "got"));
}

TEST_F(ObserverTest, IsToldOfHidingBeforeTheFocusGoes) {
    list.SetFocus();
    list.onLostFocus = Writes(log, "lost");
    log.clear();
    list.SetVisible(false);
    EXPECT_THAT(log, ElementsAre("L visible", "F focus", "lost"));
}

TEST_F(ObserverTest, IsToldNothingWhenAValueStaysTheSame) {
    label.SetAlignment(Alignment::right);
    label.SetOpaque(true);
    label.SetToolTipText("t");
    label.SetForeColor(Rgb(1, 2, 3));
    form.SetCornerRadius(30);
    log.clear();
    label.SetAlignment(Alignment::right);
    label.SetOpaque(true);
    label.SetToolTipText("t");
    label.SetForeColor(Rgb(1, 2, 3));
    label.SetBackColor(label.BackColor());
    label.SetVisible(true);
    label.SetEnabled(true);
    label.SetPicture({});
    label.SetFont(label.GetFont());
    label.BringToFront();
    label.BringToFront();
    timer.SetInterval(100);
    form.SetCornerRadius(30);
    form.SetCaption("");
    form.SetTopmost(false);
    EXPECT_THAT(log, ElementsAre("Label zOrder"));
}

TEST_F(ObserverTest, IsToldOfGeometryBeforeTheResizeHandler) {
    label.onResize = Writes(log, "resize");
    label.SetWidth(100);
    EXPECT_THAT(log, ElementsAre("Label geometry", "resize"));
}

TEST_F(ObserverTest, IsToldOfTheWindowAndItsDrag) {
    form.SetCaption("Kivu");
    form.SetState(WindowState::maximized);
    form.SetHasFrame(false);
    form.BeginDrag();
    EXPECT_THAT(log, ElementsAre("F text", "F windowState", "F windowFrame", "drag"));
}

TEST_F(ObserverTest, IsToldOfTimers) {
    timer.SetEnabled(true);
    timer.SetInterval(50);
    EXPECT_THAT(log, ElementsAre("Timer enabled", "Timer timer"));
}

}  // namespace
}  // namespace kivu::forms
