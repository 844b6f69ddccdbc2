#pragma once

#include <optional>
#include <string_view>

#include "forms/form.h"
#include "forms/hit_test.h"
#include "forms/keys.h"

namespace kivu::forms {

class ComboBox;
class ListBox;

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
    // The mouse has gone from one control to another, either null for none of this form. Whatever
    // held the first and does not hold the second hears that it has been left.
    void MouseLeave(Control* from, const Control* to);
    // The shift state chooses rows where several can be chosen: Ctrl turns one over, Shift takes
    // all from the row chosen last.
    void Click(Control& control, std::optional<int> row = {}, int shift = 0);
    void DoubleClick(Control& control, std::optional<int> row = {});
    // Drags a control: the mouse goes down at the grip, and comes up over the target at the place,
    // each in twips from its control's edges. A control that its handler has given to the mouse
    // (Control::StartDrag) is dropped on the target; any other gets the movement itself.
    void Drag(Control& control, Point grip, Control& target, Point place);
    // The same by steps, from a mouse that is down. Places are twips from the window's edges, and
    // the target is what lies there behind the dragged control: the control in front that takes
    // drops, or the nearest around it that does; dropped where there is
    // none, or beside the window, the control goes back. Nothing happens while no control is being
    // dragged.
    void DragOver(Point place);
    void Drop(Point place);
    // Puts the dragged control back where it was.
    void CancelDrag();
    // Selects the row under the mouse, if there is one, before the mouse goes down.
    void RightClick(Control& control, std::optional<int> row = {});

    // Keys go to the control with the focus. Each gives what is left of the key: code 0 when a
    // handler has swallowed it.
    Key KeyDown(Key key);
    Character KeyPress(Character character);
    // What the control itself makes of a key that nobody swallowed: a list moves its selection and
    // clicks, a button or a link is pressed, a slider moves by one, the arrow keys go through
    // option buttons, Tab moves on. Where several rows can be chosen, Shift takes all from the row
    // chosen last, Ctrl moves the current row alone, and Space turns that over. Then what the form
    // makes of it: Alt with a letter does what the caption that marks it says, Enter and Escape
    // press the form's buttons for them. False: nothing. Text boxes edit on a screen by themselves;
    // for the others see EditKey and EditCharacter.
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

    // Asks for the rows of a drop-down list. False: its program does not show them itself.
    bool DropDown(ComboBox& box);

    // Rows that fit on the screen, for Page Up and Page Down.
    int pageRows = 10;

 private:
    void Stroke(Key key, Character typed);
    bool UseKey(Control& control, Key key);
    bool UseAccessKey(Key key);
    bool PressFormButton(Key key);
    bool MoveRow(Control& control, Key key);
    bool ChooseRow(ListBox& list, Key key);
    Control* DropTarget(Point place) const;

    Form& form;
};

}  // namespace kivu::forms
