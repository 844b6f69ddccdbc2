#pragma once

#include "forms/form.h"

namespace kivu::support {

// Flips bits of a window's frame: 1 the sizing frame with its boxes, 2 the tool window, 3 both, any
// other value none. A second call with the same value undoes the first.
void ChangeBorderstyle(forms::Form& window, int Mode);

// The window follows the mouse, as if it were held by its title.
void DragWindow(forms::Form& window);

struct PixelRectangle {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
};

// A window's place in pixels, and back from there in twips.
PixelRectangle WindowGeometry(const forms::Form& window);
void SetWindowGeometry(forms::Form& window, const PixelRectangle& place);

}  // namespace kivu::support
