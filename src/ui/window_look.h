#pragma once

#include "core/form1.h"
#include "forms/look.h"

namespace kivu::ui {

// The main window's colours and the size of its lists' text, for the windows beside it.
forms::Look LookOf(const core::Form1& form);

}  // namespace kivu::ui
