#pragma once

#include "forms/keys.h"

namespace kivu::forms {

class Control;

// A blank presses buttons, check boxes and option buttons, Enter buttons and links.
bool IsPressedBy(const Control& control, Key key);

// While the handlers of a key let events run, a click may give the focus to another control; null
// for none. A key that was struck on one does not press the other.
bool PressesAnother(const Control* struckOn, const Control* focus, Key key);

}  // namespace kivu::forms
