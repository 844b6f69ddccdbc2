#include "view/colors.h"

#include <algorithm>
#include <cmath>

namespace kivu::view {

namespace {

// Relative luminance, WCAG 2.1.
double Luminance(const QColor& color) {
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

}  // namespace

double Contrast(const QColor& a, const QColor& b) {
    const double x = Luminance(a);
    const double y = Luminance(b);
    return (std::max(x, y) + 0.05) / (std::min(x, y) + 0.05);
}

bool IsDark(const QColor& color) {
    return qGray(color.rgb()) < 140;
}

QColor InkOn(const QColor& background, int alpha) {
    const int part = IsDark(background) ? 255 : 0;
    return {part, part, part, alpha};
}

QColor ToQt(forms::Color color) {
    return QColor(static_cast<int>(color & 0xff), static_cast<int>(color >> 8 & 0xff),
                  static_cast<int>(color >> 16 & 0xff));
}

QColor Mix(const QColor& bottom, const QColor& top, double opacity) {
    const auto mix = [opacity](int from, int to) {
        return static_cast<int>(std::lround(from + (to - from) * opacity));
    };
    return QColor(mix(bottom.red(), top.red()), mix(bottom.green(), top.green()),
                  mix(bottom.blue(), top.blue()));
}

QColor MixFor(double contrast, const QColor& bottom, const QColor& top, double opacity) {
    QColor mixed = Mix(bottom, top, opacity);
    while (opacity < 1 && Contrast(mixed, bottom) < contrast) {
        opacity = std::min(1.0, opacity + 0.02);
        mixed = Mix(bottom, top, opacity);
    }
    return mixed;
}

QColor Readable(const QColor& wanted, const QColor& background, double enough) {
    if (Contrast(wanted, background) >= enough) return wanted;
    const QColor light(Qt::white);
    if (Contrast(light, background) >= Contrast(Qt::black, background)) return light;
    // Between the two, the softer dark colour may not do.
    return Contrast(onAccent, background) >= enough ? onAccent : QColor(Qt::black);
}

double ShapeContrastOn(const QColor& window) {
    return IsDark(window) ? shapeContrast : shapeContrast * 1.3;
}

QColor AccentOn(const QColor& background) {
    const double enough = ShapeContrastOn(background);
    QColor seen = accent;
    for (double shade = 0.04; Contrast(seen, background) < enough && shade < 1; shade += 0.04)
        seen = Mix(accent, Qt::black, shade);
    return seen;
}

}  // namespace kivu::view
