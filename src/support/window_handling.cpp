#include "support/window_handling.h"

namespace kivu::support {

void ChangeBorderstyle(forms::Form& window, int Mode) {
    if (Mode == 1 || Mode == 3) window.SetHasFrame(!window.HasFrame());
    if (Mode == 2 || Mode == 3) window.SetToolWindow(!window.IsToolWindow());
}

void DragWindow(forms::Form& window) {
    window.BeginDrag();
}

PixelRectangle WindowGeometry(const forms::Form& window) {
    constexpr int unit = forms::twipsPerPixel;
    return {window.Left() / unit, window.Top() / unit, window.Width() / unit,
            window.Height() / unit};
}

void SetWindowGeometry(forms::Form& window, const PixelRectangle& place) {
    constexpr int unit = forms::twipsPerPixel;
    window.Move(place.left * unit, place.top * unit, place.width * unit, place.height * unit);
}

}  // namespace kivu::support
