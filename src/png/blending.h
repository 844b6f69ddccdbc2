#pragma once

#include <span>

#include "png/drawing_target.h"
#include "png/picture.h"

namespace kivu::png {

// For each channel (image * alpha + background * (255 - alpha) + 255) / 256, a whole number: the
// image itself at alpha 255, the background at 0. The result is opaque.
inline Pixel BlendPixel(Pixel image, Pixel background) {
    constexpr Pixel redBlue = 0x00FF00FF;
    const Pixel alpha = image >> 24;
    const Pixel rest = 255 - alpha;
    const Pixel outer = (image & redBlue) * alpha + (background & redBlue) * rest + redBlue;
    const Pixel green = (image >> 8 & 0xFF) * alpha + (background >> 8 & 0xFF) * rest + 255;
    return opaqueBlack | (outer >> 8 & redBlue) | (green & 0xFF00);
}

// What lies behind a picture with alpha: one colour, or the pixels of a control from x, y on.
class Backdrop {
 public:
    explicit Backdrop(Pixel opaqueColor) : color(opaqueColor) {}
    Backdrop(const DrawingTarget& source, int left, int top) : picture(&source), x(left), y(top) {}

    bool IsUniform() const { return picture == nullptr; }
    Pixel Color() const { return color; }
    // Blends one row of the picture, the rowIndex-th, in place. scratch has at least its length;
    // it is used only where the backdrop is not uniform.
    void BlendRow(std::span<Pixel> row, int rowIndex, std::span<Pixel> scratch) const;

 private:
    Pixel color = opaqueBlack;
    const DrawingTarget* picture = nullptr;
    int x = 0;
    int y = 0;
};

}  // namespace kivu::png
