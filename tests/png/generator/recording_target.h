#pragma once

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "png/drawing_target.h"

namespace kivu::png::testing {

// A picture control in memory that remembers what was asked of it.
class RecordingTarget : public DrawingTarget {
 public:
    static constexpr int twips = 15;

    explicit RecordingTarget(Extent outer = {300, 150}, int borderPixels = 0)
        : outerSize(outer), border(borderPixels) {}

    int TwipsPerPixel() const override { return twips; }
    Extent OuterSize() const override { return outerSize; }
    void SetOuterSize(Extent size) override {
        outerSize = size;
        calls.push_back("size " + std::to_string(size.width) + "x" + std::to_string(size.height));
    }
    Extent InnerSize() const override {
        return {outerSize.width - 2 * border * twips, outerSize.height - 2 * border * twips};
    }
    std::uint32_t BackColor() const override { return backColor; }
    void Clear() override { calls.push_back("clear"); }
    void Paint(Picture picture, int x, int y, Extent size) override {
        calls.push_back("paint");
        painted = std::move(picture);
        paintedX = x;
        paintedY = y;
        paintedSize = size;
    }
    // The surface that blending reads; outside of it is the back colour.
    void ReadPixels(int x, int y, std::span<Pixel> pixels) const override {
        ++reads;
        for (std::size_t i = 0; i < pixels.size(); ++i) {
            const std::int64_t column = std::int64_t{x} + static_cast<std::int64_t>(i);
            const bool inside = surface && y >= 0 && y < surface->Height() && column >= 0 &&
                                column < surface->Width();
            pixels[i] = inside ? surface->Row(y)[static_cast<std::size_t>(column)]
                               : PixelOfColor(backColor);
        }
    }
    void KeepDrawing() override { calls.push_back("keep"); }

    bool WasTouched() const { return !calls.empty(); }

    Extent outerSize;
    int border;
    std::uint32_t backColor = 0;
    std::optional<Picture> surface;

    std::vector<std::string> calls;
    std::optional<Picture> painted;
    int paintedX = -1;
    int paintedY = -1;
    Extent paintedSize;
    mutable int reads = 0;
};

}  // namespace kivu::png::testing
