#include "view/keys.h"

#include <algorithm>
#include <array>
#include <utility>

#include "forms/keys.h"

namespace kivu::view {

namespace {

namespace keys = forms::keys;

constexpr std::array<std::pair<int, int>, 28> named{{
    {Qt::Key_Return, keys::enter},
    {Qt::Key_Enter, keys::enter},
    {Qt::Key_Escape, keys::escape},
    {Qt::Key_Backspace, keys::back},
    {Qt::Key_Tab, keys::tab},
    {Qt::Key_Backtab, keys::tab},
    {Qt::Key_Space, keys::space},
    {Qt::Key_PageUp, keys::pageUp},
    {Qt::Key_PageDown, keys::pageDown},
    {Qt::Key_End, keys::end},
    {Qt::Key_Home, keys::home},
    {Qt::Key_Left, keys::left},
    {Qt::Key_Up, keys::up},
    {Qt::Key_Right, keys::right},
    {Qt::Key_Down, keys::down},
    {Qt::Key_Insert, keys::insert},
    {Qt::Key_Delete, keys::del},
    {Qt::Key_Shift, 16},
    {Qt::Key_Control, 17},
    {Qt::Key_Alt, 18},
    {Qt::Key_Pause, 19},
    {Qt::Key_CapsLock, 20},
    {Qt::Key_Print, 44},
    {Qt::Key_Meta, 91},
    {Qt::Key_Menu, 93},
    {Qt::Key_NumLock, 144},
    {Qt::Key_ScrollLock, 145},
    {Qt::Key_Clear, 12},
}};

constexpr std::array<std::pair<int, int>, 5> keypad{{{Qt::Key_Asterisk, 106},
                                                     {Qt::Key_Plus, 107},
                                                     {Qt::Key_Minus, 109},
                                                     {Qt::Key_Period, 110},
                                                     {Qt::Key_Slash, 111}}};

constexpr int keypadZero = 96;

template <std::size_t n>
int LookUp(const std::array<std::pair<int, int>, n>& table, int key) {
    const auto found = std::find_if(table.begin(), table.end(),
                                    [key](const auto& entry) { return entry.first == key; });
    return found == table.end() ? 0 : found->second;
}

int CodeOf(const QKeyEvent& event) {
    const int key = event.key();
    if (const int code = LookUp(named, key)) return code;
    if (key >= Qt::Key_F1 && key <= Qt::Key_F24) return keys::f1 + (key - Qt::Key_F1);
    if (event.modifiers() & Qt::KeypadModifier) {
        if (key >= Qt::Key_0 && key <= Qt::Key_9) return keypadZero + (key - Qt::Key_0);
        if (const int code = LookUp(keypad, key)) return code;
    }
    if (key > Qt::Key_Space && key < 0x7f) return forms::KeyOf(static_cast<char32_t>(key)).code;
    // A letter of another alphabet, a media key that types nothing, a dead key.
    return event.text().isEmpty() ? 0 : keys::otherCharacter;
}

bool IsControlKey(int code) {
    return code == keys::enter || code == keys::escape || code == keys::back;
}

}  // namespace

int ShiftState(Qt::KeyboardModifiers modifiers) {
    int state = 0;
    if (modifiers & Qt::ShiftModifier) state |= forms::shifts::shift;
    if (modifiers & Qt::ControlModifier) state |= forms::shifts::ctrl;
    if (modifiers & Qt::AltModifier) state |= forms::shifts::alt;
    return state;
}

int ButtonBit(Qt::MouseButton button) {
    switch (button) {
        case Qt::LeftButton:
            return forms::buttons::left;
        case Qt::RightButton:
            return forms::buttons::right;
        case Qt::MiddleButton:
            return forms::buttons::middle;
        default:
            return 0;
    }
}

forms::Key KeyOf(const QKeyEvent& event) {
    return {CodeOf(event), ShiftState(event.modifiers()), event.isAutoRepeat()};
}

std::vector<forms::Character> CharactersOf(const QKeyEvent& event, forms::Key key) {
    const bool alt = (key.shift & forms::shifts::alt) != 0;
    const bool ctrl = (key.shift & forms::shifts::ctrl) != 0;
    if (key.code == keys::tab || key.code == keys::del) return {};
    if (IsControlKey(key.code) || (ctrl && !alt)) {
        const forms::Character one = forms::CharacterOf(key);
        return one.code == 0 ? std::vector<forms::Character>{} : std::vector{one};
    }
    // Ctrl with Alt is how some systems say AltGr, which types.
    if (alt && !ctrl) return {};
    std::vector<forms::Character> characters;
    for (const uint code : event.text().toUcs4()) {
        if (code >= 32 && code != 127) characters.push_back({code});
    }
    return characters;
}

}  // namespace kivu::view
