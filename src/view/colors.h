#pragma once

#include <QColor>

#include "forms/types.h"

namespace kivu::view {

// The one colour that says "here": the selected row, the focus, a mark.
inline const QColor accent(0xff, 0xb8, 0x4d);
inline const QColor onAccent(0x14, 0x1c, 0x2b);

QColor ToQt(forms::Color color);

// `top` laid over `bottom` with an opacity of 0 to 1.
QColor Mix(const QColor& bottom, const QColor& top, double opacity);

// `top` laid over `bottom`, with the least opacity from `opacity` on that gives the contrast, as
// far as there is one.
QColor MixFor(double contrast, const QColor& bottom, const QColor& top, double opacity);

// `wanted`, or black or white where `wanted` has less contrast to `background`.
QColor Readable(const QColor& wanted, const QColor& background, double enough = 2.5);

}  // namespace kivu::view
