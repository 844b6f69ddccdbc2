#include "forms/keys.h"

#include <array>
#include <utility>

namespace kivu::forms {

namespace {

struct Cap {
    int code;
    char plain;
    char shifted;
};

constexpr std::array<Cap, 21> caps{{
    {'0', '0', ')'},  {'1', '1', '!'}, {'2', '2', '@'}, {'3', '3', '#'},  {'4', '4', '$'},
    {'5', '5', '%'},  {'6', '6', '^'}, {'7', '7', '&'}, {'8', '8', '*'},  {'9', '9', '('},
    {186, ';', ':'},  {187, '=', '+'}, {188, ',', '<'}, {189, '-', '_'},  {190, '.', '>'},
    {191, '/', '?'},  {192, '`', '~'}, {219, '[', '{'}, {220, '\\', '|'}, {221, ']', '}'},
    {222, '\'', '"'},
}};

constexpr std::array<std::pair<std::string_view, int>, 17> named{{
    {"Enter", keys::enter},
    {"Return", keys::enter},
    {"Escape", keys::escape},
    {"Esc", keys::escape},
    {"Backspace", keys::back},
    {"Tab", keys::tab},
    {"Space", keys::space},
    {"PageUp", keys::pageUp},
    {"PageDown", keys::pageDown},
    {"End", keys::end},
    {"Home", keys::home},
    {"Left", keys::left},
    {"Up", keys::up},
    {"Right", keys::right},
    {"Down", keys::down},
    {"Insert", keys::insert},
    {"Delete", keys::del},
}};

constexpr std::array<std::pair<std::string_view, int>, 3> prefixes{
    {{"Ctrl+", shifts::ctrl}, {"Alt+", shifts::alt}, {"Shift+", shifts::shift}}};

// Takes the prefixes off the name and gives their bits.
int TakePrefixes(std::string_view& name) {
    int bits = 0;
    for (bool again = true; again;) {
        again = false;
        for (const auto& [prefix, bit] : prefixes) {
            if (!name.starts_with(prefix)) continue;
            bits |= bit;
            name.remove_prefix(prefix.size());
            again = true;
        }
    }
    return bits;
}

// 0 for any other name than F1 to F12.
int FunctionKey(std::string_view name) {
    if (name.size() < 2 || name.size() > 3 || name[0] != 'F' || name[1] == '0') return 0;
    int number = 0;
    for (const char digit : name.substr(1)) {
        if (digit < '0' || digit > '9') return 0;
        number = number * 10 + (digit - '0');
    }
    return number <= 12 ? keys::f1 + number - 1 : 0;
}

}  // namespace

std::optional<Key> KeyByName(std::string_view name) {
    const int bits = TakePrefixes(name);
    for (const auto& [text, code] : named) {
        if (name == text) return Key{code, bits};
    }
    if (const int code = FunctionKey(name); code != 0) return Key{code, bits};
    if (name.size() != 1 || name[0] <= ' ' || name[0] > '~') return {};
    Key key = KeyOf(static_cast<unsigned char>(name[0]));
    const bool letter = key.code >= 'A' && key.code <= 'Z';
    if (letter && (bits & (shifts::ctrl | shifts::alt)) != 0) key.shift = 0;
    key.shift |= bits;
    return key;
}

Key KeyOf(char32_t character) {
    if (character == '\n') return {keys::enter, 0};
    for (const int code : {keys::back, keys::tab, keys::enter, keys::escape, keys::space}) {
        if (character == static_cast<char32_t>(code)) return {code, 0};
    }
    if (character >= 'a' && character <= 'z') return {static_cast<int>(character) - 32, 0};
    if (character >= 'A' && character <= 'Z') return {static_cast<int>(character), shifts::shift};
    for (const Cap& cap : caps) {
        if (character == static_cast<unsigned char>(cap.plain)) return {cap.code, 0};
        if (character == static_cast<unsigned char>(cap.shifted)) return {cap.code, shifts::shift};
    }
    return {keys::otherCharacter, 0};
}

Character CharacterOf(Key key) {
    if ((key.shift & shifts::alt) != 0) return {};
    const bool ctrl = (key.shift & shifts::ctrl) != 0;
    const bool shift = (key.shift & shifts::shift) != 0;
    if (key.code == keys::enter) return {ctrl ? U'\n' : U'\r'};
    if (key.code == keys::escape || key.code == keys::back) {
        return {static_cast<char32_t>(key.code)};
    }
    if (key.code >= 'A' && key.code <= 'Z') {
        if (ctrl) return {static_cast<char32_t>(key.code - 'A' + 1)};
        return {static_cast<char32_t>(shift ? key.code : key.code + 32)};
    }
    if (ctrl) return {};
    if (key.code == keys::space) return {U' '};
    for (const Cap& cap : caps) {
        if (key.code == cap.code) return {static_cast<char32_t>(shift ? cap.shifted : cap.plain)};
    }
    return {};
}

}  // namespace kivu::forms
