#pragma once

#include <QRect>

#include "forms/control.h"

namespace kivu::view {

// Logical pixels; on a dense screen the toolkit multiplies them. The edges are rounded and not the
// size, so that controls that touch in the model touch on the screen.
inline int ToPixels(int twips) {
    // Nothing in a window is a million pixels away; the toolkit's own limit is not far above.
    constexpr int limit = 1'000'000;
    return qRound(qBound(-limit, twips, limit) / double(forms::twipsPerPixel));
}

inline int ToTwips(int pixels) {
    return pixels * forms::twipsPerPixel;
}

inline QRect ToPixels(int left, int top, int width, int height) {
    const QPoint from(ToPixels(left), ToPixels(top));
    return QRect(from, QSize(ToPixels(left + width) - from.x(), ToPixels(top + height) - from.y()));
}

inline QRect PixelRect(const forms::Control& control) {
    return ToPixels(control.Left(), control.Top(), control.Width(), control.Height());
}

}  // namespace kivu::view
