#include "forms/access_keys.h"

#include "forms_testing.h"

namespace kivu::forms {
namespace {

TEST(AccessKeys, LetterBehindTheSignIsMarked) {
    EXPECT_EQ(AccessKeyOf("&Exit"), 'e');
    EXPECT_EQ(AccessKeyOf("Save && &Go"), 'g');
    EXPECT_EQ(AccessKeyOf("Drive &2"), '2');
    EXPECT_EQ(AccessKeyOf("Rock && Roll"), '\0');
    EXPECT_EQ(AccessKeyOf("End&"), '\0');
    EXPECT_EQ(AccessKeyOf("& Co"), '\0');
    EXPECT_EQ(AccessKeyOf("&Öffnen"), '\0');
}

TEST(AccessKeys, CaptionIsReadWithoutTheSigns) {
    EXPECT_EQ(PlainCaption("Save && &Go"), "Save & Go");
    EXPECT_EQ(PlainCaption("End&"), "End&");
    EXPECT_EQ(PlainCaption("&Öffnen"), "Öffnen");
}

struct AccessKeyPress : testing::Test {
    AccessKeyPress() {
        label.Move(0, 0, 1000, 300);
        path.Move(1200, 0, 1000, path.Height());
        button.Move(0, 600, 1000, 400);
    }
    void Press(int letter) { input.Stroke({letter, shifts::alt}); }

    Form form{"Form1"};
    UserInput input{form};
    Label label{&form, "Label1"};
    TextBox path{&form, "Path"};
    CommandButton button{&form, "Button"};
    Log log;
};

TEST_F(AccessKeyPress, ClicksAButton) {
    button.SetCaption("&Go");
    button.onClick = Writes(log, "go");
    Press('G');
    EXPECT_THAT(log, ElementsAre("go"));
    EXPECT_TRUE(button.HasFocus());
    button.SetEnabled(false);
    Press('G');
    EXPECT_EQ(log.size(), 1U);
}

TEST_F(AccessKeyPress, LeadsFromALabelToTheControlBehindIt) {
    label.SetCaption("&Path");
    Press('P');
    EXPECT_EQ(form.Focus(), nullptr) << "plain unless the label says otherwise";
    label.SetMarksLetter(true);
    Press('P');
    EXPECT_TRUE(path.HasFocus());
    path.SetEnabled(false);
    Press('P');
    EXPECT_TRUE(button.HasFocus());
}

TEST_F(AccessKeyPress, ClicksALink) {
    label.SetCaption("&More");
    label.SetMarksLetter(true);
    label.SetLink(true);
    label.onClick = Writes(log, "more");
    Press('M');
    EXPECT_THAT(log, ElementsAre("more"));
    EXPECT_TRUE(label.HasFocus());
}

TEST_F(AccessKeyPress, MarkedLetterTakesNoRoom) {
    FixedMeasure measure;
    Form measured{"Measured", Toolkit{&measure, nullptr, nullptr, nullptr}};
    Label marked{&measured, "Label1"};
    marked.SetCaption("&Ab && C");
    EXPECT_EQ(marked.TextWidth(), 800);
    marked.SetMarksLetter(true);
    EXPECT_EQ(marked.TextWidth(), 600);
}

TEST_F(AccessKeyPress, LinkActsOnEnterAndSpace) {
    label.SetLink(true);
    label.onClick = Writes(log, "link");
    label.SetFocus();
    input.Stroke({keys::enter});
    input.Stroke({keys::space});
    input.Click(label);
    EXPECT_THAT(log, ElementsAre("link", "link", "link"));
}

TEST_F(AccessKeyPress, EnterAndEscapePressTheFormsButtons) {
    CommandButton cancel{&form, "Cancel"};
    button.onClick = Writes(log, "ok");
    cancel.onClick = Writes(log, "cancel");
    form.SetEnterButton(&button);
    form.SetEscapeButton(&cancel);
    path.SetFocus();
    input.Stroke({keys::enter});
    input.Stroke({keys::escape});
    EXPECT_THAT(log, ElementsAre("ok", "cancel"));
    EXPECT_TRUE(path.HasFocus());
    // The focused button's own Enter comes first.
    cancel.SetFocus();
    input.Stroke({keys::enter});
    EXPECT_EQ(log.back(), "cancel");
    // No key of another window that is still held down.
    log.clear();
    path.SetFocus();
    input.Stroke({keys::enter, 0, true});
    input.Stroke({keys::enter, shifts::ctrl});
    EXPECT_THAT(log, IsEmpty());
    button.SetEnabled(false);
    input.Stroke({keys::enter});
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(AccessKeyPress, HandlersComeBeforeTheFormsButtons) {
    button.onClick = Writes(log, "ok");
    form.SetEnterButton(&button);
    path.onKeyDown = [](Key& key) { key.code = 0; };
    path.SetFocus();
    input.Stroke({keys::enter});
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(AccessKeyPress, EnterBeginsALineInSeveral) {
    button.onClick = Writes(log, "ok");
    form.SetEnterButton(&button);
    path.SetMultiLine(true);
    path.SetFocus();
    input.Type(path, "a\nb");
    EXPECT_EQ(path.Text(), "a\r\nb");
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(AccessKeyPress, ButtonThatTakesNoFocusIsPressedWhereTheFocusStays) {
    button.SetTakesFocus(false);
    button.onClick = Writes(log, "up");
    path.SetFocus();
    input.Click(button);
    EXPECT_THAT(log, ElementsAre("up"));
    EXPECT_TRUE(path.HasFocus());
}

}  // namespace
}  // namespace kivu::forms
