#include <algorithm>

#include "forms_testing.h"

namespace kivu::forms {
namespace {

struct KeysTest : testing::Test {
    KeysTest() {
        form.onPreviewKeyDown = [this](Key& key) { Pass("window down", key.code); };
        form.onPreviewKeyPress = [this](Character& typed) { Pass("window press", typed.code); };
        for (Control* control : form.Controls()) {
            const std::string name = control->Name();
            control->onKeyDown = [this, name](Key& key) { Pass(name + " down", key.code); };
            control->onKeyPress = [this, name](Character& typed) {
                Pass(name + " press", typed.code);
            };
        }
        list.AddItems({"0", "1", "2", "3", "4", "5", "6"});
        list.onClick = [this] { clicks.push_back(list.ListIndex()); };
        text.onChange = [this] { log.push_back("change " + text.Text()); };
        user.pageRows = 4;
    }
    template <typename Code>
    void Pass(const std::string& stage, Code& code) {
        log.push_back(stage + " " + std::to_string(static_cast<int>(code)));
        if (stage == swallowAt) code = 0;
    }
    void Press(const char* name) { user.Stroke(KeyByName(name).value()); }

    Form form{"F"};
    UserInput user{form};
    ListBox list{&form, "L", ListControl::Order::asAdded};
    TextBox text{&form, "T"};
    ComboBox combo{&form, "C"};
    CheckBox check{&form, "Check"};
    CommandButton button{&form, "Button"};
    Slider slider{&form, "Slider"};
    Log log;
    std::vector<int> clicks;
    std::string swallowAt;
};

TEST_F(KeysTest, WindowGetsKeysAndCharactersBeforeTheControl) {
    list.SetFocus();
    Press("Escape");
    EXPECT_THAT(log, ElementsAre("window down 27", "L down 27", "window press 27", "L press 27"));
}

TEST_F(KeysTest, EscapeSwallowedByTheWindowsKeyDownReachesNothingFurther) {
    swallowAt = "window down";
    list.SetFocus();
    Press("Escape");
    EXPECT_THAT(log, ElementsAre("window down 27"));
}

TEST_F(KeysTest, EscapeSwallowedByTheControlsKeyDownReachesNothingFurther) {
    swallowAt = "L down";
    list.SetFocus();
    Press("Escape");
    EXPECT_THAT(log, ElementsAre("window down 27", "L down 27"));
}

TEST_F(KeysTest, EscapeSwallowedByTheWindowsKeyPressReachesNothingFurther) {
    swallowAt = "window press";
    list.SetFocus();
    Press("Escape");
    EXPECT_THAT(log, ElementsAre("window down 27", "L down 27", "window press 27"));
}

TEST_F(KeysTest, CharacterSwallowedByTheControlsKeyPressIsNotTyped) {
    swallowAt = "T press";
    text.SetFocus();
    Press("a");
    Press("Backspace");
    EXPECT_EQ(text.Text(), "");
    swallowAt.clear();
    Press("a");
    EXPECT_EQ(text.Text(), "a");
}

TEST_F(KeysTest, ArrowSwallowedByAKeyDownMovesNoSelection) {
    swallowAt = "L down";
    list.SetFocus();
    Press("Down");
    EXPECT_EQ(list.ListIndex(), -1);
}

TEST_F(KeysTest, EnterSwallowedByAKeyPressPressesNoButton) {
    int presses = 0;
    button.onClick = [&] { ++presses; };
    button.SetFocus();
    swallowAt = "Button press";
    Press("Enter");
    EXPECT_EQ(presses, 0);
    swallowAt.clear();
    Press("Enter");
    Press("Space");
    EXPECT_EQ(presses, 2);
}

TEST_F(KeysTest, WithoutAFocusTheWindowAloneGetsTheKeys) {
    Press("Enter");
    EXPECT_THAT(log, ElementsAre("window down 13", "window press 13"));
}

TEST_F(KeysTest, KeyGoesToWhereTheWindowsHandlerMovedTheFocus) {
    form.onPreviewKeyDown = [this](Key& key) {
        if (key.code == 'F' && key.shift == shifts::ctrl) text.SetFocus();
    };
    list.SetFocus();
    Press("Ctrl+F");
    EXPECT_THAT(log, ElementsAre("T down 70", "window press 6", "T press 6"));
    EXPECT_EQ(text.Text(), "");
}

TEST_F(KeysTest, HandlerMayTurnAKeyIntoAnother) {
    text.onKeyDown = [](Key& key) { key.code = 'B'; };
    text.SetFocus();
    Press("a");
    EXPECT_EQ(text.Text(), "b");
}

TEST_F(KeysTest, HandlerMayTurnACharacterIntoAnother) {
    text.onKeyPress = [](Character& typed) { typed.code = U'ß'; };
    user.Type(text, "s");
    EXPECT_EQ(text.Text(), "ß");
}

TEST_F(KeysTest, KeysMoveTheSelectionOfAListAndClick) {
    list.SetFocus();
    for (const char* key : {"Down", "Down", "PageDown", "Up", "End", "PageUp", "Home"})
        Press(key);
    EXPECT_EQ(clicks, (std::vector<int>{0, 1, 4, 3, 6, 3, 0}));
}

TEST_F(KeysTest, KeysAtTheEndsOfAListStayAtTheEndsAndClick) {
    list.SetFocus();
    list.SetListIndex(6);
    clicks.clear();
    Press("Down");
    Press("PageDown");
    Press("End");
    list.SetListIndex(0);
    Press("Up");
    Press("PageUp");
    EXPECT_EQ(clicks, (std::vector<int>{6, 6, 6, 0, 0, 0}));
}

TEST_F(KeysTest, KeysWithoutASelectionBeginAtTheFirstRow) {
    list.SetFocus();
    Press("Up");
    EXPECT_EQ(list.ListIndex(), 0);
}

TEST_F(KeysTest, PagesOfOneRowStillMove) {
    user.pageRows = 0;
    list.SetFocus();
    list.SetListIndex(3);
    Press("PageDown");
    EXPECT_EQ(list.ListIndex(), 4);
}

TEST_F(KeysTest, KeysInAnEmptyListDoNothing) {
    list.Clear();
    list.SetFocus();
    for (const char* key : {"Down", "Up", "PageDown", "PageUp", "Home", "End"})
        Press(key);
    EXPECT_EQ(list.ListIndex(), -1);
    EXPECT_TRUE(clicks.empty());
}

TEST_F(KeysTest, KeysWithCtrlOrAltMoveNoSelection) {
    list.SetFocus();
    Press("Alt+Down");
    Press("Ctrl+End");
    EXPECT_EQ(list.ListIndex(), -1);
}

TEST_F(KeysTest, ComboBoxMovesItsRowWithArrowsAndItsCaretWithHomeAndEnd) {
    combo.AddItems({"Amiga", "Atari"});
    combo.SetFocus();
    Press("Down");
    Press("Down");
    EXPECT_EQ(combo.Text(), "Atari");
    Press("Home");
    EXPECT_EQ(combo.ListIndex(), 1);
    user.Type(combo, "x");
    EXPECT_EQ(combo.Text(), "xAtari");
    Press("End");
    Press("Backspace");
    EXPECT_EQ(combo.Text(), "xAtar");
    EXPECT_EQ(combo.ListIndex(), 1);
}

TEST_F(KeysTest, ChoiceTellsOfTypingAndTakesNone) {
    combo.AddItems({"Amiga", "Atari", "C64"});
    combo.SetChoice(true);
    combo.SetText("Select:");
    combo.onChange = [this] { log.push_back("change"); };
    combo.SetFocus();
    Press("End");
    EXPECT_EQ(combo.Text(), "C64");
    Press("Home");
    EXPECT_EQ(combo.Text(), "Amiga");
    log.clear();
    user.Type(combo, "x");
    Press("Backspace");
    Press("Left");
    EXPECT_EQ(combo.Text(), "Amiga");
    EXPECT_THAT(log, ElementsAre("window down 88", "C down 88", "window press 120", "C press 120",
                                 "window down 8", "C down 8", "window press 8", "C press 8",
                                 "window down 37", "C down 37"));
}

TEST_F(KeysTest, DropDownGoesToTheProgramThatShowsTheRowsItself) {
    EXPECT_FALSE(user.DropDown(combo));
    combo.onDropDown = [this] { log.push_back("rows"); };
    EXPECT_TRUE(user.DropDown(combo));
    combo.SetEnabled(false);
    EXPECT_FALSE(user.DropDown(combo));
    EXPECT_THAT(log, ElementsAre("rows"));
}

TEST_F(KeysTest, SpaceTogglesACheckBoxAndEnterDoesNot) {
    check.SetFocus();
    Press("Enter");
    EXPECT_EQ(check.Value(), 0);
    Press("Space");
    EXPECT_EQ(check.Value(), 1);
}

TEST_F(KeysTest, ArrowsMoveASliderWithinItsRange) {
    slider.SetFocus();
    Press("Left");
    EXPECT_EQ(slider.Value(), 0);
    Press("Right");
    Press("Up");
    Press("Down");
    EXPECT_EQ(slider.Value(), 1);
}

TEST_F(KeysTest, TypingGivesKeyPressAndChangeForEachCharacterInBothCases) {
    user.Type(text, "aB");
    EXPECT_THAT(log, ElementsAre("window down 65", "T down 65", "window press 97", "T press 97",
                                 "change a", "window down 66", "T down 66", "window press 66",
                                 "T press 66", "change aB"));
}

TEST_F(KeysTest, TypingAnyTextNeverLooksLikeAnEditingKey) {
    text.onKeyDown = [this](Key& key) {
        const bool edits = key.code >= keys::pageUp && key.code <= keys::del;
        EXPECT_FALSE(edits || key.code >= 256) << key.code;
    };
    const std::string all = "Hello, (World)! \"1.5\" '&' %$#-+ äöü € 😀 {x|y} ~^`[];:<>?@_=*/\\";
    user.Type(text, all);
    EXPECT_EQ(text.Text(), all);
}

TEST_F(KeysTest, TypingGoesOnWhereAHandlerMovesTheFocus) {
    list.onKeyPress = [this](Character& typed) {
        text.SetText(std::string(1, static_cast<char>(typed.code)));
        text.SetFocus();
        text.SetSelection(1, 0);
        typed.code = 0;
    };
    user.Type(list, "tur");
    EXPECT_EQ(text.Text(), "tur");
}

TEST_F(KeysTest, TypingIntoAControlThatCannotBeReachedDoesNothing) {
    text.SetFocus();
    combo.SetVisible(false);
    user.Type(combo, "abc");
    EXPECT_EQ(text.Text(), "");
    EXPECT_EQ(combo.Text(), "");
}

TEST_F(KeysTest, TypingALineBreakIsEnterAndATabMovesOn) {
    user.Type(text, "a\nb\tc");
    EXPECT_EQ(text.Text(), "ab");
    EXPECT_EQ(combo.Text(), "c");
    EXPECT_THAT(log, testing::Contains("T press 13"));
}

TEST_F(KeysTest, TypingBrokenUtf8IsHarmless) {
    user.Type(text, std::string("\xff\xc3") + std::string(80, '\x80') + "\xf0\x9f");
    EXPECT_FALSE(text.Text().empty());
}

TEST_F(KeysTest, ChangeHandlerFindsTextAndCaretBothNew) {
    std::vector<int> carets;
    text.onChange = [&] { carets.push_back(text.SelStart()); };
    user.Type(text, "äb");
    Press("Left");
    Press("Backspace");
    EXPECT_EQ(carets, (std::vector<int>{1, 2, 0}));
    EXPECT_EQ(text.Text(), "b");
}

TEST_F(KeysTest, CaretKeysRunNoChangeHandler) {
    text.SetText("abc");
    text.SetFocus();
    log.clear();
    for (const char* key : {"Home", "Right", "End", "Left"})
        Press(key);
    EXPECT_EQ(text.SelStart(), 2);
    EXPECT_THAT(log, testing::Not(testing::Contains(testing::StartsWith("change"))));
}

TEST_F(KeysTest, KeyHandlerThatHidesItsControlStopsTheTyping) {
    text.onKeyDown = [this](Key&) { text.SetVisible(false); };
    user.Type(text, "ab");
    EXPECT_EQ(text.Text(), "");
    EXPECT_EQ(form.Focus(), nullptr);
}

// A click that comes while the handler lets events run.
TEST_F(KeysTest, KeyPressesNoButtonThatGotTheFocusMeanwhile) {
    for (Control* clicked : std::initializer_list<Control*>{&button, &check}) {
        clicked->onClick = [this] { log.push_back("pressed"); };
        list.onKeyPress = [clicked](Character&) { clicked->SetFocus(); };
        for (const char* key : {"Enter", "Space"}) {
            list.SetFocus();
            log.clear();
            Press(key);
            EXPECT_EQ(form.Focus(), clicked);
            EXPECT_EQ(std::count(log.begin(), log.end(), "pressed"), 0) << key;
        }
        Press("Space");
        EXPECT_EQ(std::count(log.begin(), log.end(), "pressed"), 1);
    }
}

}  // namespace
}  // namespace kivu::forms
