#pragma once

#include <QRect>

#include "forms/form.h"

namespace kivu::view {

// Makes a window no larger than the room that a screen has, and brings it into it.
void FitInto(forms::Form& form, const QRect& room);

}  // namespace kivu::view
