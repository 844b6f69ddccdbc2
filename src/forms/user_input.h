#pragma once

#include <optional>
#include <string_view>

#include "forms/form.h"
#include "forms/keys.h"

namespace kivu::forms {

// What a user's hands do to a form, in the order in which a window system tells it: the focus moves
// first, then the handlers run, window-level ones in front. A view feeds it from real events, a
// test from scripted ones.
class UserInput {
 public:
    explicit UserInput(Form& form) : form(form) {}

    // Mouse. A control that cannot be reached gets nothing. Rows count from 0.
    void MouseDown(Control& control, const Mouse& mouse);
    void MouseMove(Control& control, const Mouse& mouse);
    void MouseUp(Control& control, const Mouse& mouse);
    void Click(Control& control, std::optional<int> row = {});
    void DoubleClick(Control& control, std::optional<int> row = {});
    // Selects the row under the mouse, if there is one, before the mouse goes down.
    void RightClick(Control& control, std::optional<int> row = {});

    // Keys go to the control with the focus. Each gives what is left of the key: code 0 when a
    // handler has swallowed it.
    Key KeyDown(Key key);
    Character KeyPress(Character character);
    // What the control itself makes of a key that nobody swallowed: a list moves its selection and
    // clicks, a button is pressed, a slider moves by one, Tab moves on. False: nothing. Text boxes
    // edit on a screen by themselves; for the others see EditKey and EditCharacter.
    bool DefaultKey(Key key);
    // Editing of a text box or of a combo box's field without a screen.
    bool EditKey(Key key);
    bool EditCharacter(Character character);
    // Down, press and default action of a whole key stroke without a screen.
    void Stroke(Key key) { Stroke(key, CharacterOf(key)); }
    // Gives the control the focus, then strokes the keys that type the UTF-8 text; they go on to
    // where the handlers move the focus. No effect on a control that the user cannot type into.
    void Type(Control& control, std::string_view text);

    void FocusNext(bool forward);

    // Rows that fit on the screen, for Page Up and Page Down.
    int pageRows = 10;

 private:
    void Stroke(Key key, Character typed);

    Form& form;
};

}  // namespace kivu::forms
