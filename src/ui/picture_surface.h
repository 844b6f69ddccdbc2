#pragma once

#include <memory>

#include "forms/types.h"
#include "png/drawing_target.h"

namespace kivu::ui {

// A picture control without a border for the PNG reader to draw on, away from the window: 15 twips
// a pixel, and no pixels of its own before something is drawn.
class PictureSurface : public png::DrawingTarget {
 public:
    explicit PictureSurface(forms::Color backColor) : backColor(backColor) {}

    int TwipsPerPixel() const override { return forms::twipsPerPixel; }
    png::Extent OuterSize() const override { return size; }
    void SetOuterSize(png::Extent twips) override;
    png::Extent InnerSize() const override { return size; }
    std::uint32_t BackColor() const override { return backColor; }
    void Clear() override { drawn = {}; }
    void Paint(png::Picture picture, int x, int y, png::Extent target) override;
    void ReadPixels(int x, int y, std::span<png::Pixel> pixels) const override;
    void KeepDrawing() override;

    // What was drawn when it was kept last. Null: nothing was.
    std::shared_ptr<const forms::Bitmap> Kept() const { return kept; }

 private:
    png::Extent Pixels() const;
    // In the surface's own size, whatever has been drawn so far.
    png::Picture Canvas() const;

    forms::Color backColor;
    png::Extent size;    // twips
    png::Picture drawn;  // without pixels: all is in the back colour
    std::shared_ptr<const forms::Bitmap> kept;
};

// The picture with that colour wherever it lets something shine through. Null and what lets nothing
// through stay what they are.
std::shared_ptr<const forms::Bitmap> OverColor(std::shared_ptr<const forms::Bitmap> bitmap,
                                               forms::Color backColor);

// A picture that covers what lies below, in a size that no side is longer of: the mean of each
// square of pixels. Null and what is small enough stay what they are.
std::shared_ptr<const forms::Bitmap> Shrunk(std::shared_ptr<const forms::Bitmap> bitmap,
                                            int longestSide);

}  // namespace kivu::ui
