#include "forms_testing.h"

namespace kivu::forms {
namespace {

struct TextLines : testing::Test {
    TextLines() {
        box.SetMultiLine(true);
        box.Move(0, 0, 3000, 4000);
        box.SetFocus();
    }
    void Press(int code) { input.Stroke({code}); }

    Form form{"Form1"};
    UserInput input{form};
    TextBox box{&form, "Text"};
};

TEST_F(TextLines, EndInCrLfHoweverTheyAreGiven) {
    box.SetText("a\nb\rc\r\nd\n\re");
    EXPECT_EQ(box.Text(), "a\r\nb\r\nc\r\nd\r\n\r\ne");
}

TEST_F(TextLines, SameLinesWithOtherEndsAreNoChange) {
    Log log;
    box.SetText("a\nb");
    box.onChange = Writes(log, "change");
    box.SetText("a\r\nb");
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(TextLines, KeepTheHeightOfTheBox) {
    box.SetFontSize(20);
    EXPECT_EQ(box.Height(), 4000);
    box.SetMultiLine(false);
    EXPECT_NE(box.Height(), 4000);
}

TEST_F(TextLines, CaretStepsOverALineEndAsOverOneCharacter) {
    box.SetText("a\nb");
    box.SetSelection(1, 0);
    Press(keys::right);
    EXPECT_EQ(box.SelStart(), 3);
    Press(keys::left);
    EXPECT_EQ(box.SelStart(), 1);
}

TEST_F(TextLines, BackspaceAndDeleteJoinLines) {
    box.SetText("a\nb\nc");
    box.SetSelection(3, 0);
    Press(keys::back);
    EXPECT_EQ(box.Text(), "ab\r\nc");
    EXPECT_EQ(box.SelStart(), 1);
    box.SetSelection(2, 0);
    Press(keys::del);
    EXPECT_EQ(box.Text(), "abc");
}

TEST_F(TextLines, UpAndDownKeepTheColumnAsFarAsTheLineGoes) {
    box.SetText("ä long\nb\nthird");
    box.SetSelection(4, 0);
    Press(keys::down);
    EXPECT_EQ(box.SelStart(), 9);  // behind "b"
    Press(keys::down);
    EXPECT_EQ(box.SelStart(), 12);
    Press(keys::down);
    EXPECT_EQ(box.SelStart(), 12);
    Press(keys::up);
    Press(keys::up);
    EXPECT_EQ(box.SelStart(), 1);
    Press(keys::up);
    EXPECT_EQ(box.SelStart(), 1);
}

TEST_F(TextLines, HomeAndEndStayInTheLine) {
    box.SetText("a\nlong\nc");
    box.SetSelection(5, 0);
    Press(keys::home);
    EXPECT_EQ(box.SelStart(), 3);
    Press(keys::end);
    EXPECT_EQ(box.SelStart(), 7);
}

TEST_F(TextLines, EnterReplacesTheSelection) {
    box.SetText("abc");
    box.SetSelection(1, 1);
    Press(keys::enter);
    EXPECT_EQ(box.Text(), "a\r\nc");
    EXPECT_EQ(box.SelStart(), 3);
}

}  // namespace
}  // namespace kivu::forms
