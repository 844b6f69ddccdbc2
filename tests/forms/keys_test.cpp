#include "forms/keys.h"

#include "forms_testing.h"

namespace kivu::forms {
namespace {

TEST(KeyByNameTest, KnowsTheNamedKeys) {
    const std::vector<std::pair<std::string_view, int>> table{
        {"Enter", 13},  {"Return", 13}, {"Escape", 27}, {"Esc", 27},   {"Backspace", 8},
        {"Tab", 9},     {"Space", 32},  {"PageUp", 33}, {"Home", 36},  {"PageDown", 34},
        {"End", 35},    {"Left", 37},   {"Up", 38},     {"Right", 39}, {"Down", 40},
        {"Insert", 45}, {"Delete", 46}, {"F1", 112},    {"F3", 114},   {"F4", 115},
        {"F10", 121},   {"F12", 123},   {"a", 65},      {"z", 90},     {"0", 48}};
    for (const auto& [name, code] : table)
        EXPECT_EQ(KeyByName(name), (Key{code, 0})) << name;
}

TEST(KeyByNameTest, PrefixesSetTheShiftBits) {
    EXPECT_EQ(KeyByName("Ctrl+Enter"), (Key{13, shifts::ctrl}));
    EXPECT_EQ(KeyByName("Alt+F4"), (Key{115, shifts::alt}));
    EXPECT_EQ(KeyByName("Shift+Tab"), (Key{9, shifts::shift}));
    EXPECT_EQ(KeyByName("Alt+Ctrl+Shift+Left"),
              (Key{37, shifts::alt | shifts::ctrl | shifts::shift}));
}

TEST(KeyByNameTest, CapitalLetterIsTypedWithShiftAloneAndNamesTheKeyBehindCtrl) {
    EXPECT_EQ(KeyByName("A"), (Key{65, shifts::shift}));
    EXPECT_EQ(KeyByName("Ctrl+F"), (Key{70, shifts::ctrl}));
    EXPECT_EQ(KeyByName("Ctrl+f"), (Key{70, shifts::ctrl}));
    EXPECT_EQ(KeyByName("Ctrl+Shift+F"), (Key{70, shifts::ctrl | shifts::shift}));
}

TEST(KeyByNameTest, SignsHaveCodesThatNoNamedKeyHas) {
    EXPECT_EQ(KeyByName("."), (Key{190, 0}));
    EXPECT_EQ(KeyByName("+"), (Key{187, shifts::shift}));
    EXPECT_EQ(KeyByName("Ctrl++"), (Key{187, shifts::ctrl | shifts::shift}));
}

TEST(KeyByNameTest, UnknownNamesGiveNothing) {
    for (const char* name : {"", "Ctrl+", "F0", "F13", "F99", "F1x", "F01", "enter", "Entern", "ä",
                             "\x01", " ", "\xff", "Ctrl + F"})
        EXPECT_EQ(KeyByName(name), std::nullopt) << name;
}

TEST(CharacterOfTest, GivesControlCharacters) {
    EXPECT_EQ(CharacterOf({13, 0}).code, 13U);
    EXPECT_EQ(CharacterOf({13, shifts::ctrl}).code, 10U);
    EXPECT_EQ(CharacterOf({'F', shifts::ctrl}).code, 6U);
    EXPECT_EQ(CharacterOf({'A', shifts::ctrl}).code, 1U);
    EXPECT_EQ(CharacterOf({'Z', shifts::ctrl}).code, 26U);
    EXPECT_EQ(CharacterOf({27, 0}).code, 27U);
    EXPECT_EQ(CharacterOf({8, 0}).code, 8U);
    EXPECT_EQ(CharacterOf({'1', shifts::ctrl}).code, 0U);
}

TEST(CharacterOfTest, KeysWithoutACharacterGiveNone) {
    for (const int code : {keys::tab, keys::up, keys::del, keys::insert, keys::home, keys::f1,
                           keys::f12, keys::pageDown, keys::otherCharacter, 0})
        EXPECT_EQ(CharacterOf({code, 0}).code, 0U) << code;
    EXPECT_EQ(CharacterOf({keys::f4, shifts::alt}).code, 0U);
    EXPECT_EQ(CharacterOf({'F', shifts::alt}).code, 0U);
}

TEST(KeyOfTest, EveryPrintableAsciiCharacterComesBackFromItsKey) {
    for (char32_t character = 32; character < 127; ++character) {
        const Key key = KeyOf(character);
        EXPECT_EQ(CharacterOf(key).code, character);
        const bool edits = key.code >= keys::pageUp && key.code <= keys::del;
        const bool function = key.code >= keys::f1 && key.code <= keys::f12;
        EXPECT_FALSE(edits || function) << static_cast<char>(character);
    }
}

TEST(KeyOfTest, LettersHaveOneKeyForBothCases) {
    EXPECT_EQ(KeyOf('q'), (Key{'Q', 0}));
    EXPECT_EQ(KeyOf('Q'), (Key{'Q', shifts::shift}));
    EXPECT_EQ(KeyOf(U'ä'), (Key{keys::otherCharacter, 0}));
    EXPECT_EQ(KeyOf('\n'), (Key{keys::enter, 0}));
}

}  // namespace
}  // namespace kivu::forms
