#pragma once

#include <cstdint>
#include <span>

#include "png/picture.h"

namespace kivu::png {

struct Extent {
    int width = 0;
    int height = 0;
};

// A picture control, as far as the reader needs one: a surface that can be cleared, sized and
// painted, and whose pixels can be read. No call fails; one that can't be served has no effect.
class DrawingTarget {
 public:
    virtual ~DrawingTarget() = default;

    // Screen twips for one pixel (15 at 96 dpi), above 0.
    virtual int TwipsPerPixel() const = 0;
    // The control with its border, in twips.
    virtual Extent OuterSize() const = 0;
    virtual void SetOuterSize(Extent twips) = 0;
    // The area inside the border, in twips.
    virtual Extent InnerSize() const = 0;

    // Colour number, red in the lowest byte.
    virtual std::uint32_t BackColor() const = 0;
    // Fills the inside with the back colour.
    virtual void Clear() = 0;
    // Paints the picture, stretched to size, with its top left pixel at x, y; x, y and size in
    // pixels of the inside. What lies outside is cut off. The alpha of the pixels is 255. The
    // picture is given away, so that a target of its size may keep it without a copy.
    virtual void Paint(Picture picture, int x, int y, Extent size) = 0;
    // Fills pixels with the opaque ones of the inside from x, y to the right. Outside of it the
    // back colour is read.
    virtual void ReadPixels(int x, int y, std::span<Pixel> pixels) const = 0;
    // Makes what is painted the control's picture, so that it outlives a repaint.
    virtual void KeepDrawing() = 0;
};

}  // namespace kivu::png
