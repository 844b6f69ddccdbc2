#include "forms/user_input.h"

#include <algorithm>
#include <functional>
#include <utility>
#include <vector>

#include "forms/access_keys.h"
#include "forms/button_keys.h"
#include "forms/controls.h"
#include "forms/directory_controls.h"
#include "forms/list_control.h"
#include "forms/tab_order.h"

namespace kivu::forms {

namespace {

// What a shift state makes of the mouse on a row.
Choice ChoiceOf(int shift) {
    const bool range = (shift & shifts::shift) != 0;
    if ((shift & shifts::ctrl) != 0) return range ? Choice::addRange : Choice::toggle;
    return range ? Choice::extend : Choice::only;
}

// Calls action(list) if the control has rows. False: it has none.
template <typename Action>
bool OnRows(Control& control, Action action) {
    if (auto* list = dynamic_cast<ListControl*>(&control)) return action(*list), true;
    if (auto* list = dynamic_cast<DirectoryControl*>(&control)) return action(*list), true;
    return false;
}

void ClickRow(ListControl& list, int row, int shift) {
    list.ClickRow(row, ChoiceOf(shift));
}

void ClickRow(DirectoryControl& list, int row, int) {
    list.ClickRow(row);
}

void Press(Control& control) {
    if (auto* button = dynamic_cast<ValueButton*>(&control)) {
        button->Press();
    } else {
        control.Click();
    }
}

// The row that a key moves the selection to, which may lie beyond the ends. Empty: it moves
// nothing.
std::optional<int> RowByKey(int code, int row, int last, int page) {
    switch (code) {
        case keys::up:
            return row - 1;
        case keys::down:
            return row + 1;
        case keys::pageUp:
            return row - page;
        case keys::pageDown:
            return row + page;
        case keys::home:
            return 0;
        case keys::end:
            return last;
        default:
            return {};
    }
}

bool MoveSlider(Slider& slider, int code) {
    const bool up = code == keys::right || code == keys::up;
    if (!up && code != keys::left && code != keys::down) return false;
    slider.SetValue(slider.Value() + (up ? 1 : -1));
    return true;
}

// Round in the group, from the one with the focus. False: the key is no arrow.
bool MoveOption(const OptionButton& option, int code) {
    const bool forward = code == keys::right || code == keys::down;
    if (!forward && code != keys::left && code != keys::up) return false;
    const std::vector<OptionButton*> options = OptionsBeside(option);
    const auto at = std::find(options.begin(), options.end(), &option);
    if (at == options.end()) return true;
    const auto place = static_cast<std::size_t>(at - options.begin());
    OptionButton& next = *options[(place + (forward ? 1 : options.size() - 1)) % options.size()];
    next.SetFocus();
    if (next.HasFocus()) next.SetValue(1);
    return true;
}

bool Edit(Control* control, const std::function<bool(TextField&)>& edit) {
    const auto apply = [&](auto& box) {
        TextField field = box.Field();
        if (!edit(field)) return false;
        box.SetField(std::move(field));
        return true;
    };
    if (auto* box = dynamic_cast<TextBox*>(control)) return apply(*box);
    auto* combo = dynamic_cast<ComboBox*>(control);
    return combo && !combo->IsChoice() && apply(*combo);
}

// The code points of UTF-8. A byte that begins none stands for itself.
std::vector<char32_t> CodePoints(std::string_view text) {
    std::vector<char32_t> points;
    for (std::size_t i = 0; i < text.size();) {
        const auto lead = static_cast<unsigned char>(text[i++]);
        const int tails = lead >= 0xf0 && lead < 0xf8 ? 3 : lead >= 0xe0 ? 2 : lead >= 0xc0 ? 1 : 0;
        char32_t code = tails == 0 ? lead : lead & (0x3fU >> tails);
        for (int k = 0; k < tails && i < text.size() && (text[i] & 0xc0) == 0x80; ++k, ++i) {
            code = code << 6 | (static_cast<unsigned char>(text[i]) & 0x3f);
        }
        points.push_back(code);
    }
    return points;
}

}  // namespace

void UserInput::MouseDown(Control& control, const Mouse& mouse) {
    CancelDrag();
    if (!control.IsReachable()) return;
    control.SetFocus();
    // A focus handler may have put the control away.
    if (!control.IsReachable()) return;
    control.Run(control.onMouseDown, mouse);
    const bool surface = control.GetKind() == Kind::form && !control.onMouseDown;
    if (surface && mouse.button == buttons::left) form.BeginDrag();
}

void UserInput::MouseMove(Control& control, const Mouse& mouse) {
    if (control.IsReachable()) control.Run(control.onMouseMove, mouse);
}

void UserInput::MouseUp(Control& control, const Mouse& mouse) {
    CancelDrag();
    if (control.IsReachable()) control.Run(control.onMouseUp, mouse);
}

void UserInput::MouseLeave(Control* from, const Control* to) {
    const auto holds = [](const Control* outer, const Control* inner) {
        while (inner && inner != outer)
            inner = inner->Parent();
        return inner != nullptr;
    };
    for (Control* left = from; left && !holds(left, to); left = left->Parent())
        left->Run(left->onMouseLeave);
}

bool UserInput::DropDown(ComboBox& box) {
    if (!box.onDropDown || !box.IsReachable()) return false;
    box.Run(box.onDropDown);
    return true;
}

void UserInput::Click(Control& control, std::optional<int> row, int shift) {
    const Mouse mouse{buttons::left, shift, 0, 0};
    if (!control.IsReachable()) return;
    MouseDown(control, mouse);
    if (!control.IsReachable()) return;
    const bool rows = OnRows(control, [&](auto& list) {
        const int clicked = row.value_or(list.ListIndex());
        if (clicked >= 0) ClickRow(list, clicked, shift);
    });
    if (!rows) Press(control);
    MouseUp(control, mouse);
}

void UserInput::DoubleClick(Control& control, std::optional<int> row) {
    Click(control, row);
    if (control.IsReachable()) control.DoubleClick();
}

void UserInput::Drag(Control& control, Point grip, Control& target, Point place) {
    MouseDown(control, {buttons::left, 0, grip.x, grip.y});
    if (Control* dragged = form.Dragged()) {
        form.SetDragged(nullptr);
        if (target.IsReachable()) target.Run(target.onDragDrop, *dragged, place.x, place.y);
        return;
    }
    const Point from = CornerInForm(control), to = CornerInForm(target);
    const Mouse up{buttons::left, 0, to.x - from.x + place.x, to.y - from.y + place.y};
    MouseMove(control, up);
    MouseUp(control, up);
}

Control* UserInput::DropTarget(Point place) const {
    const bool inside =
        place.x >= 0 && place.y >= 0 && place.x < form.Width() && place.y < form.Height();
    if (!inside) return nullptr;
    Control* target = &ControlAt(form, place, form.Dragged());
    while (target && !target->onDragDrop)
        target = target->Parent();
    return target && target->IsReachable() ? target : nullptr;
}

void UserInput::DragOver(Point place) {
    Control* target = form.Dragged() ? DropTarget(place) : nullptr;
    if (!target) return;
    const Point corner = CornerInForm(*target);
    target->Run(target->onDragOver, *form.Dragged(), place.x - corner.x, place.y - corner.y);
}

void UserInput::Drop(Point place) {
    Control* dragged = form.Dragged();
    Control* target = dragged ? DropTarget(place) : nullptr;
    if (!target) {
        CancelDrag();
        return;
    }
    form.SetDragged(nullptr);
    const Point corner = CornerInForm(*target);
    target->Run(target->onDragDrop, *dragged, place.x - corner.x, place.y - corner.y);
}

void UserInput::CancelDrag() {
    Control* dragged = form.Dragged();
    form.SetDragged(nullptr);
    if (!dragged) return;
    const Point from = form.DraggedFrom();
    dragged->Move(from.x, from.y, dragged->Width(), dragged->Height());
}

void UserInput::RightClick(Control& control, std::optional<int> row) {
    const Mouse mouse{buttons::right, 0, 0, 0};
    if (!control.IsReachable()) return;
    control.SetFocus();
    if (!control.IsReachable()) return;
    OnRows(control, [&](auto& list) {
        if (row.value_or(-1) >= 0) list.SetListIndex(*row);
    });
    if (control.IsReachable()) control.Run(control.onMouseDown, mouse);
    MouseUp(control, mouse);
}

Key UserInput::KeyDown(Key key) {
    if (form.Dragged() && key.code == keys::escape) {
        CancelDrag();
        return {};
    }
    if (form.IsUnloaded()) return {};
    form.Run(form.onPreviewKeyDown, key);
    if (key.code != 0 && form.Focus()) form.Run(form.Focus()->onKeyDown, key);
    return key;
}

Character UserInput::KeyPress(Character character) {
    if (form.IsUnloaded()) return {};
    form.Run(form.onPreviewKeyPress, character);
    if (character.code != 0 && form.Focus()) form.Run(form.Focus()->onKeyPress, character);
    return character;
}

bool UserInput::DefaultKey(Key key) {
    if (key.code == keys::tab && (key.shift & (shifts::ctrl | shifts::alt)) == 0) {
        FocusNext((key.shift & shifts::shift) == 0);
        return true;
    }
    const bool used = form.Focus() && UseKey(*form.Focus(), key);
    return used || UseAccessKey(key) || PressFormButton(key);
}

bool UserInput::UseKey(Control& control, Key key) {
    auto* list = dynamic_cast<ListBox*>(&control);
    if (list && list->MultiSelect() && ChooseRow(*list, key)) return true;
    if (key.shift != 0) return false;
    if (OnRows(control, [](auto&) {})) return MoveRow(control, key);
    if (auto* slider = dynamic_cast<Slider*>(&control)) return MoveSlider(*slider, key.code);
    auto* option = dynamic_cast<OptionButton*>(&control);
    if (option && MoveOption(*option, key.code)) return true;
    if (!IsPressedBy(control, key)) return false;
    Press(control);
    return true;
}

bool UserInput::UseAccessKey(Key key) {
    const bool capital = key.code >= 'A' && key.code <= 'Z';
    const bool digit = key.code >= '0' && key.code <= '9';
    if (key.shift != shifts::alt || !(capital || digit)) return false;
    const char letter = static_cast<char>(capital ? key.code + 32 : key.code);
    const std::vector<Control*> controls = form.Controls();
    for (Control* control : controls) {
        const std::string* caption = CaptionWithAccessKey(*control);
        if (!caption || !control->IsReachable() || AccessKeyOf(*caption) != letter) continue;
        const bool leads = control->GetKind() == Kind::label && !control->TakesFocus();
        Control* target = leads ? StopBehind(*control) : control;
        if (!target) continue;
        leads ? target->SetFocus() : Click(*target);
        return true;
    }
    return false;
}

bool UserInput::PressFormButton(Key key) {
    const auto* box = dynamic_cast<const TextBox*>(form.Focus());
    const bool newLine = key.code == keys::enter && box && box->IsMultiLine();
    if (key.shift != 0 || newLine) return false;
    CommandButton* button = key.code == keys::enter    ? form.EnterButton()
                            : key.code == keys::escape ? form.EscapeButton()
                                                       : nullptr;
    if (!button || !button->IsReachable()) return false;
    // A window that the key has opened must not take its repeats for an answer.
    if (!key.repeat) button->Click();
    return true;
}

bool UserInput::MoveRow(Control& control, Key key) {
    bool moved = false;
    OnRows(control, [&](auto& list) {
        const int last = list.ListCount() - 1;
        // In a text field Home and End belong to the caret.
        const auto* combo = dynamic_cast<const ComboBox*>(&control);
        const bool caret =
            combo && !combo->IsChoice() && (key.code == keys::home || key.code == keys::end);
        if (last < 0 || caret) return;
        const auto next = RowByKey(key.code, list.ListIndex(), last, std::max(1, pageRows - 1));
        moved = next.has_value();
        if (next) list.ClickRow(std::clamp(*next, 0, last));
    });
    return moved;
}

// The keys that choose several rows. False: the key is none of them.
bool UserInput::ChooseRow(ListBox& list, Key key) {
    if ((key.shift & shifts::alt) != 0 || list.ListCount() == 0) return false;
    if (key.code == keys::space) {
        list.ClickRow(std::max(list.ListIndex(), 0), Choice::toggle);
        return true;
    }
    if (key.shift == 0) return false;
    const int last = list.ListCount() - 1;
    const auto next = RowByKey(key.code, list.ListIndex(), last, std::max(1, pageRows - 1));
    if (!next) return false;
    const int row = std::clamp(*next, 0, last);
    if (key.shift == shifts::ctrl) {
        list.MoveCurrentRow(row);
    } else {
        list.ClickRow(row, ChoiceOf(key.shift));
    }
    return true;
}

bool UserInput::EditKey(Key key) {
    if (key.shift != 0) return false;
    return Edit(form.Focus(), [&](TextField& field) { return field.EditKey(key.code); });
}

bool UserInput::EditCharacter(Character character) {
    if (character.code < 32 || character.code == 127 || character.code > 0x10ffff) return false;
    return Edit(form.Focus(), [&](TextField& field) {
        field.Type(character.code);
        return true;
    });
}

void UserInput::Stroke(Key key, Character typed) {
    const Control* const struckOn = form.Focus();
    const Key left = KeyDown(key);
    if (left.code == 0) return;
    Character character = left == key ? typed : CharacterOf(left);
    if (character.code != 0) {
        character = KeyPress(character);
        if (character.code == 0 || EditCharacter(character)) return;
    }
    if (PressesAnother(struckOn, form.Focus(), left)) return;
    if (!DefaultKey(left)) EditKey(left);
}

void UserInput::Type(Control& control, std::string_view text) {
    if (!control.TakesFocus() || !control.IsReachable()) return;
    control.SetFocus();
    for (const char32_t code : CodePoints(text)) {
        const Key key = KeyOf(code);
        const bool printed = code >= 32 && code != 127;
        Stroke(key, printed ? Character{code} : CharacterOf(key));
    }
}

void UserInput::FocusNext(bool forward) {
    const std::vector<Control*> stops = TabStops(form);
    if (stops.empty()) return;
    const auto found = std::find(stops.begin(), stops.end(), form.Focus());
    const auto count = static_cast<std::ptrdiff_t>(stops.size());
    std::ptrdiff_t next = forward ? 0 : count - 1;
    if (found != stops.end()) next = (found - stops.begin() + (forward ? 1 : count - 1)) % count;
    stops[static_cast<std::size_t>(next)]->SetFocus();
}

}  // namespace kivu::forms
