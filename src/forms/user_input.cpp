#include "forms/user_input.h"

#include <algorithm>
#include <array>
#include <utility>

#include "forms/controls.h"

namespace kivu::forms {

void UserInput::MouseDown(Control& control, const Mouse& mouse) {
    if (!control.IsReachable()) return;
    control.SetFocus();
    Control::Run(control.onMouseDown, mouse);
}

void UserInput::MouseMove(Control& control, const Mouse& mouse) {
    if (control.IsReachable()) Control::Run(control.onMouseMove, mouse);
}

void UserInput::MouseUp(Control& control, const Mouse& mouse) {
    if (control.IsReachable()) Control::Run(control.onMouseUp, mouse);
}

void UserInput::Click(Control& control, std::optional<int> row) {
    const Mouse mouse{buttons::left, 0, 0, 0};
    if (!control.IsReachable()) return;
    MouseDown(control, mouse);
    // The focus handler may have put the control away.
    if (!control.IsReachable()) return;
    if (auto* list = dynamic_cast<ListControl*>(&control)) {
        const int clicked = row.value_or(list->ListIndex());
        if (clicked >= 0) list->ClickRow(clicked);
    } else if (auto* box = dynamic_cast<CheckBox*>(&control)) {
        box->SetValue(box->Value() == 0 ? 1 : 0);
    } else if (auto* option = dynamic_cast<OptionButton*>(&control)) {
        option->SetValue(1);
    } else {
        control.Click();
    }
    MouseUp(control, mouse);
}

void UserInput::DoubleClick(Control& control, std::optional<int> row) {
    Click(control, row);
    if (control.IsReachable()) control.DoubleClick();
}

void UserInput::RightClick(Control& control, std::optional<int> row) {
    const Mouse mouse{buttons::right, 0, 0, 0};
    if (!control.IsReachable()) return;
    control.SetFocus();
    if (!control.IsReachable()) return;
    if (auto* list = dynamic_cast<ListControl*>(&control); list && row) list->SetListIndex(*row);
    if (control.IsReachable()) Control::Run(control.onMouseDown, mouse);
    MouseUp(control, mouse);
}

Key UserInput::KeyDown(Key key) {
    Control::Run(form.onPreviewKeyDown, key);
    if (key.code != 0 && form.Focus()) Control::Run(form.Focus()->onKeyDown, key);
    return key;
}

Character UserInput::KeyPress(Character character) {
    Control::Run(form.onPreviewKeyPress, character);
    if (character.code != 0 && form.Focus()) Control::Run(form.Focus()->onKeyPress, character);
    return character;
}

bool UserInput::DefaultKey(Key key) {
    if (key.code == keys::tab && (key.shift & (shifts::ctrl | shifts::alt)) == 0) {
        FocusNext((key.shift & shifts::shift) == 0);
        return true;
    }
    Control* control = form.Focus();
    if (!control || key.shift != 0) return false;
    if (auto* list = dynamic_cast<ListControl*>(control)) return MoveSelection(*list, key);
    const bool pressed = key.code == keys::space ||
                         (key.code == keys::enter && control->GetKind() == Kind::commandButton);
    if (!pressed || control->GetKind() == Kind::textBox) return false;
    if (auto* box = dynamic_cast<CheckBox*>(control)) {
        box->SetValue(box->Value() == 0 ? 1 : 0);
    } else if (auto* option = dynamic_cast<OptionButton*>(control)) {
        option->SetValue(1);
    } else {
        control->Click();
    }
    return true;
}

bool UserInput::MoveSelection(ListControl& list, Key key) {
    const int last = list.ListCount() - 1;
    if (last < 0) return false;
    const int row = list.ListIndex();
    int next = row;
    switch (key.code) {
        case keys::up:
            next = row - 1;
            break;
        case keys::down:
            next = row + 1;
            break;
        case keys::pageUp:
            next = row - std::max(1, pageRows - 1);
            break;
        case keys::pageDown:
            next = row + std::max(1, pageRows - 1);
            break;
        case keys::home:
            next = 0;
            break;
        case keys::end:
            next = last;
            break;
        default:
            return false;
    }
    // In a text field Home and End belong to the caret.
    const bool caret = key.code == keys::home || key.code == keys::end;
    if (caret && list.GetKind() == Kind::comboBox) return false;
    list.ClickRow(std::clamp(next, 0, last));
    return true;
}

namespace {

// Text with a caret, counted in code points, over the UTF-8 of a field.
struct Field {
    std::string text;
    int start;
    int length;
};

std::size_t ByteOf(const std::string& text, int point) {
    std::size_t byte = 0;
    while (byte < text.size() && point > 0) {
        ++byte;
        while (byte < text.size() && (text[byte] & 0xc0) == 0x80)
            ++byte;
        --point;
    }
    return byte;
}

int PointsOf(const std::string& text) {
    return static_cast<int>(
        std::count_if(text.begin(), text.end(), [](char c) { return (c & 0xc0) != 0x80; }));
}

void Replace(Field& field, int start, int length, const std::string& with) {
    const std::size_t from = ByteOf(field.text, start);
    const std::size_t to = ByteOf(field.text, start + length);
    field.text.replace(from, to - from, with);
    field.start = start + PointsOf(with);
    field.length = 0;
}

template <typename Box>
bool Apply(Box& box, bool (*edit)(Field&, int), int code) {
    Field field{box.Text(), std::min(box.SelStart(), PointsOf(box.Text())), box.SelLength()};
    if (!edit(field, code)) return false;
    // The caret first: the change handler may ask for it.
    box.SetSelection(field.start, field.length);
    box.SetText(field.text);
    return true;
}

bool EditWithKey(Field& field, int code) {
    const int count = PointsOf(field.text);
    switch (code) {
        case keys::left:
            field.start = std::max(0, field.start - (field.length > 0 ? 0 : 1));
            break;
        case keys::right:
            field.start = std::min(count, field.start + std::max(1, field.length));
            break;
        case keys::home:
            field.start = 0;
            break;
        case keys::end:
            field.start = count;
            break;
        case keys::back:
            if (field.length > 0) {
                Replace(field, field.start, field.length, "");
            } else if (field.start > 0) {
                Replace(field, field.start - 1, 1, "");
            }
            return true;
        case keys::del:
            Replace(field, field.start, std::max(1, field.length), "");
            return true;
        default:
            return false;
    }
    field.length = 0;
    return true;
}

std::string Utf8(char32_t code) {
    const auto tail = [](char32_t bits) { return static_cast<char>(0x80 | (bits & 0x3f)); };
    if (code < 0x80) return {static_cast<char>(code)};
    if (code < 0x800) return {static_cast<char>(0xc0 | code >> 6), tail(code)};
    if (code < 0x10000) return {static_cast<char>(0xe0 | code >> 12), tail(code >> 6), tail(code)};
    return {static_cast<char>(0xf0 | code >> 18), tail(code >> 12), tail(code >> 6), tail(code)};
}

bool EditWithCharacter(Field& field, int code) {
    Replace(field, field.start, field.length, Utf8(static_cast<char32_t>(code)));
    return true;
}

bool EditFocused(Form& form, bool (*edit)(Field&, int), int code) {
    Control* control = form.Focus();
    if (auto* box = dynamic_cast<TextBox*>(control)) return Apply(*box, edit, code);
    if (auto* combo = dynamic_cast<ComboBox*>(control)) return Apply(*combo, edit, code);
    return false;
}

}  // namespace

bool UserInput::EditKey(Key key) {
    return key.shift == 0 && EditFocused(form, EditWithKey, key.code);
}

bool UserInput::EditCharacter(Character character) {
    if (character.code < 32 || character.code == 127) return false;
    return EditFocused(form, EditWithCharacter, static_cast<int>(character.code));
}

void UserInput::Stroke(Key key) {
    const Key left = KeyDown(key);
    if (left.code == 0) return;
    Character character = CharacterOf(left);
    if (character.code != 0) {
        character = KeyPress(character);
        if (character.code == 0 || EditCharacter(character)) return;
    }
    if (!DefaultKey(left)) EditKey(left);
}

void UserInput::Type(Control& control, std::string_view text) {
    control.SetFocus();
    for (std::size_t i = 0; i < text.size();) {
        std::size_t length = 1;
        while (i + length < text.size() && (text[i + length] & 0xc0) == 0x80)
            ++length;
        const auto lead = static_cast<unsigned char>(text[i]);
        char32_t code = length == 1 ? lead : lead & (0xff >> (length + 1));
        for (std::size_t k = 1; k < length; ++k) {
            code = code << 6 | (static_cast<unsigned char>(text[i + k]) & 0x3f);
        }
        i += length;
        const int upper =
            code >= 'a' && code <= 'z' ? static_cast<int>(code) - 32 : static_cast<int>(code);
        const int shift = code >= 'A' && code <= 'Z' ? shifts::shift : 0;
        if (KeyDown({upper, shift}).code == 0) continue;
        const Character left = KeyPress({code});
        if (left.code != 0 && !EditCharacter(left)) DefaultKey({upper, shift});
    }
}

void UserInput::FocusNext(bool forward) {
    std::vector<Control*> stops;
    for (Control* control : form.Controls()) {
        if (control->TakesFocus() && control->IsReachable()) stops.push_back(control);
    }
    if (stops.empty()) return;
    const auto found = std::find(stops.begin(), stops.end(), form.Focus());
    const auto count = static_cast<std::ptrdiff_t>(stops.size());
    std::ptrdiff_t next = forward ? 0 : count - 1;
    if (found != stops.end()) next = (found - stops.begin() + (forward ? 1 : count - 1)) % count;
    stops[static_cast<std::size_t>(next)]->SetFocus();
}

std::optional<Key> KeyByName(std::string_view name) {
    static constexpr std::array<std::pair<std::string_view, int>, 17> named{{
        {"Enter", keys::enter},
        {"Return", keys::enter},
        {"Escape", keys::escape},
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
        {"Esc", keys::escape},
    }};
    static constexpr std::array<std::pair<std::string_view, int>, 3> prefixes{
        {{"Ctrl+", shifts::ctrl}, {"Alt+", shifts::alt}, {"Shift+", shifts::shift}}};
    Key key;
    for (bool again = true; again;) {
        again = false;
        for (const auto& [prefix, bit] : prefixes) {
            if (!name.starts_with(prefix)) continue;
            key.shift |= bit;
            name.remove_prefix(prefix.size());
            again = true;
        }
    }
    for (const auto& [text, code] : named) {
        if (name == text) return Key{code, key.shift};
    }
    if (name.size() == 1) {
        const char c = name[0];
        key.code = c >= 'a' && c <= 'z' ? c - 32 : c;
        if (c >= 'A' && c <= 'Z') key.shift |= shifts::shift;
        return key;
    }
    if (name.size() < 2 || name.size() > 3 || name[0] != 'F') return {};
    int number = 0;
    for (const char digit : name.substr(1)) {
        if (digit < '0' || digit > '9') return {};
        number = number * 10 + (digit - '0');
    }
    if (number < 1 || number > 12) return {};
    return Key{keys::f1 + number - 1, key.shift};
}

Character CharacterOf(Key key) {
    if ((key.shift & shifts::alt) != 0) return {};
    const bool ctrl = (key.shift & shifts::ctrl) != 0;
    if (key.code == keys::enter) return {static_cast<char32_t>(ctrl ? 10 : 13)};
    if (key.code == keys::escape || key.code == keys::back)
        return {static_cast<char32_t>(key.code)};
    if (ctrl) {
        const bool letter = key.code >= 'A' && key.code <= 'Z';
        return {static_cast<char32_t>(letter ? key.code - 64 : 0)};
    }
    if (key.code == keys::space) return {U' '};
    if (key.code >= 'A' && key.code <= 'Z') {
        const bool upper = (key.shift & shifts::shift) != 0;
        return {static_cast<char32_t>(upper ? key.code : key.code + 32)};
    }
    const bool digit = key.code >= '0' && key.code <= '9';
    return {static_cast<char32_t>(digit ? key.code : 0)};
}

}  // namespace kivu::forms
