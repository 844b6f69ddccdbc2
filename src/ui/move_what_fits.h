#pragma once

#include "forms/control.h"

namespace kivu::ui {

// Moves a control; a negative width or height fails alone, and the rest goes through.
inline void MoveWhatFits(forms::Control& control, int left, int top, int width, int height) {
    control.Move(left, top, width < 0 ? control.Width() : width,
                 height < 0 ? control.Height() : height);
}

}  // namespace kivu::ui
