#pragma once

#include "forms/form.h"

namespace kivu::forms {

// A control's left top corner in its window.
Point CornerInForm(const Control& control);

// The control in front at a place of the window, the window itself where there is none. `without`
// and what it holds are looked through; null for nothing.
Control& ControlAt(Form& form, Point place, const Control* without = nullptr);

}  // namespace kivu::forms
