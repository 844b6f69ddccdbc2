#pragma once

#include <QColor>

#include "forms/types.h"

namespace kivu::view {

// The one colour that says "here": the selected row, the focus, a mark.
inline const QColor accent(0xff, 0xb8, 0x4d);
inline const QColor onAccent(0x14, 0x1c, 0x2b);
// The least contrasts (WCAG 2.1) at which text is read, and at which a shape is seen.
inline constexpr double textContrast = 4.5;
inline constexpr double shapeContrast = 3;

// What a shape needs to be seen everywhere on a window of this colour, which shades towards its
// bottom: dark shapes on a light one lose by that.
double ShapeContrastOn(const QColor& window);

QColor ToQt(forms::Color color);

// `top` laid over `bottom` with an opacity of 0 to 1.
QColor Mix(const QColor& bottom, const QColor& top, double opacity);

// `top` laid over `bottom`, with the least opacity from `opacity` on that gives the contrast, as
// far as there is one.
QColor MixFor(double contrast, const QColor& bottom, const QColor& top, double opacity);

// `wanted`, or a dark colour or white where `wanted` has less contrast to `background`.
QColor Readable(const QColor& wanted, const QColor& background, double enough = textContrast);

// The accent, as much darker as it takes to be seen on a light background.
QColor AccentOn(const QColor& background);

// 1 for two that are the same, 21 for black and white.
double Contrast(const QColor& a, const QColor& b);

bool IsDark(const QColor& color);
// White on dark, black on light: for lines and veils.
QColor InkOn(const QColor& background, int alpha);

}  // namespace kivu::view
