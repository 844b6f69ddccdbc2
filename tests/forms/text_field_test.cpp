#include "forms/text_field.h"

#include "forms/types.h"
#include "forms_testing.h"

namespace kivu::forms {
namespace {

TEST(TextFieldTest, CountsCodePointsAndNotBytes) {
    TextField field("Käse €", 6, 0);
    EXPECT_EQ(field.Start(), 6);
    EXPECT_TRUE(field.EditKey(keys::back));
    EXPECT_EQ(field.Text(), "Käse ");
    field.Select(1, 1);
    field.Type(U'o');
    EXPECT_EQ(field.Text(), "Kose ");
    EXPECT_EQ(field.Start(), 2);
}

TEST(TextFieldTest, TypesEveryLengthOfCharacter) {
    TextField field;
    for (const char32_t character : U"aä€😀")
        if (character != 0) field.Type(character);
    EXPECT_EQ(field.Text(), "aä€😀");
    EXPECT_EQ(field.Start(), 4);
}

TEST(TextFieldTest, TypingReplacesTheSelection) {
    TextField field("abcdef", 1, 4);
    field.Type(U'X');
    EXPECT_EQ(field, TextField("aXf", 2, 0));
}

TEST(TextFieldTest, BackspaceTakesTheSelectionOrTheCharacterBeforeTheCaret) {
    TextField field("abcdef", 1, 2);
    field.EditKey(keys::back);
    EXPECT_EQ(field, TextField("adef", 1, 0));
    field.EditKey(keys::back);
    EXPECT_EQ(field, TextField("def", 0, 0));
    field.EditKey(keys::back);
    EXPECT_EQ(field, TextField("def", 0, 0));
}

TEST(TextFieldTest, DeleteTakesTheSelectionOrTheCharacterBehindTheCaret) {
    TextField field("abcdef", 4, 1);
    field.EditKey(keys::del);
    EXPECT_EQ(field, TextField("abcdf", 4, 0));
    field.EditKey(keys::del);
    EXPECT_EQ(field, TextField("abcd", 4, 0));
    field.EditKey(keys::del);
    EXPECT_EQ(field, TextField("abcd", 4, 0));
}

TEST(TextFieldTest, ArrowsStopAtTheEndsAndLeaveASelectionOnItsSide) {
    TextField field("äbc", 0, 0);
    field.EditKey(keys::left);
    EXPECT_EQ(field.Start(), 0);
    field.EditKey(keys::end);
    field.EditKey(keys::right);
    EXPECT_EQ(field.Start(), 3);
    field.Select(1, 2);
    field.EditKey(keys::left);
    EXPECT_EQ(field, TextField("äbc", 1, 0));
    field.Select(1, 2);
    field.EditKey(keys::right);
    EXPECT_EQ(field, TextField("äbc", 3, 0));
    field.EditKey(keys::home);
    EXPECT_EQ(field.Start(), 0);
}

TEST(TextFieldTest, OtherKeysEditNothing) {
    TextField field("abc", 1, 1);
    for (const int code : {keys::up, keys::down, keys::enter, keys::escape, keys::f3})
        EXPECT_FALSE(field.EditKey(code)) << code;
    EXPECT_EQ(field, TextField("abc", 1, 1));
}

TEST(TextFieldTest, BrokenUtf8CanBeEditedAway) {
    TextField field("\x80\xbf\xff\xc3", 0, 0);
    for (int i = 0; i < 5; ++i)
        field.EditKey(keys::del);
    EXPECT_EQ(field.Text(), "");
    field = TextField("\x80\xe2\x82", 9, 9);
    for (int i = 0; i < 5; ++i)
        field.EditKey(keys::back);
    EXPECT_EQ(field.Text(), "");
}

}  // namespace
}  // namespace kivu::forms
