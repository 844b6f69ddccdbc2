#pragma once

#include <QColor>
#include <QImage>
#include <algorithm>
#include <cmath>
#include <map>

namespace kivu::tests {

// WCAG 2.1
inline double Luminance(const QColor& color) {
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

inline double Contrast(const QColor& a, const QColor& b) {
    const double x = Luminance(a), y = Luminance(b);
    return (std::max(x, y) + 0.05) / (std::min(x, y) + 0.05);
}

struct Inks {
    QRgb ground;    // the commonest colour
    QRgb furthest;  // from it: the writing's or a shape's
};

inline Inks InksOf(const QImage& picture) {
    std::map<QRgb, int> counts;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            ++counts[picture.pixel(x, y)];
    if (counts.empty()) return {};
    QRgb ground = counts.begin()->first;
    for (const auto& [color, count] : counts)
        if (count > counts[ground]) ground = color;
    QRgb furthest = ground;
    const auto contrast = [&](QRgb color) { return Contrast(QColor(color), QColor(ground)); };
    for (const auto& [color, count] : counts)
        if (contrast(color) > contrast(furthest)) furthest = color;
    return {ground, furthest};
}

inline double FurthestContrast(const QImage& picture) {
    const Inks inks = InksOf(picture);
    return Contrast(QColor(inks.ground), QColor(inks.furthest));
}

}  // namespace kivu::tests
