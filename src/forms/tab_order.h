#pragma once

#include <vector>

#include "forms/controls.h"
#include "forms/form.h"

namespace kivu::forms {

// The controls that Tab comes to, in its order. Of the option buttons of a container it is the one
// that is on, or the first.
std::vector<Control*> TabStops(const Form& form);

// The option buttons of a container that can be reached, as the arrow keys go through them.
std::vector<OptionButton*> OptionsBeside(const OptionButton& button);

// The first stop behind a control, null for none: where the letter of a label leads.
Control* StopBehind(const Control& control);

// Gives the focus to the first stop, if there is one.
void FocusFirst(Form& form);

}  // namespace kivu::forms
