#include "view/shown_form.h"

namespace kivu::tests {
namespace {

using KeyboardTest = ShownForm;
namespace keys = forms::keys;

TEST_F(KeyboardTest, RunsWindowAndControlHandlersInOrder) {
    form.onPreviewKeyDown = [this](forms::Key&) { form.log.push_back("window down"); };
    form.text.onKeyDown = [this](forms::Key&) { form.log.push_back("down"); };
    form.onPreviewKeyPress = [this](forms::Character&) { form.log.push_back("window press"); };
    form.text.onKeyPress = [this](forms::Character&) { form.log.push_back("press"); };
    form.text.onChange = form.Note("change");
    form.text.SetFocus();
    Show();
    Key(Qt::Key_A);
    const std::vector<std::string> order{"window down", "down", "window press", "press", "change"};
    EXPECT_EQ(form.log, order);
    EXPECT_EQ(form.text.Text(), "a");
}

TEST_F(KeyboardTest, TellsOnceOfAKeyThatAFieldMakesNothingOf) {
    form.onPreviewKeyDown = [this](forms::Key&) { form.log.push_back("window down"); };
    form.onPreviewKeyPress = [this](forms::Character&) { form.log.push_back("window press"); };
    form.text.onKeyDown = [this](forms::Key&) { form.log.push_back("down"); };
    form.text.SetFocus();
    Show();
    Key(Qt::Key_F3);
    EXPECT_EQ(form.log, (std::vector<std::string>{"window down", "down"}));
    form.log.clear();
    Key(Qt::Key_Escape);
    EXPECT_EQ(form.log, (std::vector<std::string>{"window down", "down", "window press"}));
}

TEST_F(KeyboardTest, LetsAKeySwallowedByTheWindowGoNoFurther) {
    form.onPreviewKeyDown = [](forms::Key& key) { key.code = 0; };
    form.text.onKeyDown = [this](forms::Key&) { form.log.push_back("down"); };
    form.text.onKeyPress = [this](forms::Character&) { form.log.push_back("press"); };
    form.text.SetFocus();
    Show();
    Key(Qt::Key_A);
    EXPECT_TRUE(form.log.empty());
    EXPECT_EQ(form.text.Text(), "");
}

TEST_F(KeyboardTest, LetsASwallowedCharacterWriteNothing) {
    form.text.onKeyPress = [](forms::Character& character) { character.code = 0; };
    form.text.SetFocus();
    Show();
    Key(Qt::Key_A);
    EXPECT_EQ(form.text.Text(), "");
    EXPECT_EQ(Find<QLineEdit>("Text")->text(), "");
}

TEST_F(KeyboardTest, WritesTheCharacterThatAHandlerPutsInItsPlace) {
    form.text.onKeyPress = [](forms::Character& character) { character.code = U'ß'; };
    form.text.SetFocus();
    Show();
    Key(Qt::Key_A);
    EXPECT_EQ(form.text.Text(), "ß");
    EXPECT_EQ(Find<QLineEdit>("Text")->text(), QString::fromUtf8("ß"));
    EXPECT_EQ(Find<QLineEdit>("Text")->cursorPosition(), 1);
}

TEST_F(KeyboardTest, GoesOnTypingWhereAHandlerMovesTheFocus) {
    form.Fill(3);
    form.list.onKeyPress = [this](forms::Character& character) {
        form.text.SetField(forms::TextField(std::string(1, char(character.code)), 1, 0));
        form.text.SetFocus();
        character.code = 0;
    };
    form.list.SetFocus();
    Show();
    Key(Qt::Key_T);
    Key(Qt::Key_U);
    EXPECT_EQ(form.text.Text(), "tu");
}

TEST_F(KeyboardTest, TellsASwallowedEscapeToNobody) {
    form.combo.onKeyDown = [](forms::Key& key) {
        if (key.code == keys::escape) key.code = 0;
    };
    form.onPreviewKeyPress = [this](forms::Character&) { form.log.push_back("press"); };
    form.combo.SetFocus();
    Show();
    Key(Qt::Key_Escape);
    EXPECT_TRUE(form.log.empty());
}

TEST_F(KeyboardTest, TellsKeysWithoutAFocusToTheWindow) {
    form.onPreviewKeyDown = [this](forms::Key& key) {
        const bool control = key.code == 17;  // the key itself is told too
        if (!control)
            form.log.push_back(std::to_string(key.code) + "/" + std::to_string(key.shift));
    };
    Show();
    Key(Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(form.log, std::vector<std::string>{"70/2"});
}

TEST_F(KeyboardTest, TakesNoSignForTheKeyWithItsNumber) {
    // "%" has the number of the left arrow, "." that of Delete.
    form.onPreviewKeyDown = [this](forms::Key& key) {
        EXPECT_NE(key.code, keys::left);
        EXPECT_NE(key.code, keys::del);
        form.log.push_back("key");
    };
    form.text.SetFocus();
    Show();
    Type("%.");
    EXPECT_EQ(form.log.size(), 2U);
    EXPECT_EQ(form.text.Text(), "%.");
}

TEST_F(KeyboardTest, MovesOnByTabInOrderOfCreation) {
    form.combo.SetFocus();
    Show();
    Key(Qt::Key_Tab);
    EXPECT_TRUE(form.text.HasFocus());
    Key(Qt::Key_Tab);
    EXPECT_TRUE(form.button.HasFocus());
    Key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(form.text.HasFocus());
}

TEST_F(KeyboardTest, PressesTheButtonOfAnAccessKey) {
    form.onPreviewKeyDown = [this](forms::Key& key) {
        if (key.code == 'G') form.log.push_back("window");
    };
    form.button.onClick = form.Note("click");
    Show();
    Key(Qt::Key_G, Qt::AltModifier);
    const std::vector<std::string> order{"window", "click"};
    EXPECT_EQ(form.log, order);
}

TEST_F(KeyboardTest, LeavesASwallowedAccessKeyAlone) {
    form.onPreviewKeyDown = [](forms::Key& key) { key.code = 0; };
    form.button.onClick = form.Note("click");
    Show();
    Key(Qt::Key_G, Qt::AltModifier);
    EXPECT_TRUE(form.log.empty());
}

TEST_F(KeyboardTest, PressesAButtonBySpaceAndEnter) {
    form.button.onClick = form.Note("click");
    form.button.SetFocus();
    Show();
    Key(Qt::Key_Space);
    Key(Qt::Key_Return);
    EXPECT_EQ(form.log.size(), 2U);
}

TEST_F(KeyboardTest, EditsInTheMiddleAndTellsTheCaret) {
    form.text.SetText("abcd");
    form.text.SetSelection(2, 0);
    form.text.SetFocus();
    Show();
    Key(Qt::Key_Backspace);
    EXPECT_EQ(form.text.Text(), "acd");
    EXPECT_EQ(form.text.SelStart(), 1);
    Key(Qt::Key_Home, Qt::ShiftModifier);
    EXPECT_EQ(form.text.SelStart(), 0);
    EXPECT_EQ(form.text.SelLength(), 1);
}

TEST_F(KeyboardTest, GivesTheChangeHandlerTheCaretBehindTheTypedLetter) {
    int caret = -1;
    form.text.onChange = [&] { caret = form.text.SelStart(); };
    form.text.SetFocus();
    Show();
    Key(Qt::Key_X);
    EXPECT_EQ(caret, 1);
}

TEST_F(KeyboardTest, SurvivesAHandlerThatHidesTheFieldItTypesInto) {
    form.text.onChange = [this] { form.text.SetVisible(false); };
    form.text.SetFocus();
    Show();
    Key(Qt::Key_X);
    EXPECT_FALSE(Find("Text")->isVisible());
    EXPECT_EQ(form.text.Text(), "x");
}

TEST_F(KeyboardTest, ShowsATextThatTheChangeHandlerReplaces) {
    form.text.onChange = [this] {
        if (form.text.Text() == "x") form.text.SetText("other");
    };
    form.text.SetFocus();
    Show();
    Key(Qt::Key_X);
    EXPECT_EQ(Find<QLineEdit>("Text")->text(), "other");
}

// A click that comes while the handler lets events run.
TEST_F(KeyboardTest, PressesNoButtonThatGotTheFocusMeanwhile) {
    form.button.onClick = form.Note("pressed");
    form.list.onKeyPress = [this](forms::Character&) { form.button.SetFocus(); };
    form.list.SetFocus();
    Show();
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space}) {
        form.list.SetFocus();
        Key(key);
        EXPECT_EQ(form.Focus(), &form.button);
        EXPECT_TRUE(form.log.empty());
    }
    Key(Qt::Key_Return);
    EXPECT_EQ(form.log, std::vector<std::string>{"pressed"});
}

}  // namespace
}  // namespace kivu::tests
