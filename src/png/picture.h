#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>

namespace kivu::png {

// One pixel: 0xAARRGGBB.
using Pixel = std::uint32_t;

inline constexpr Pixel opaqueBlack = 0xFF000000;

// A colour number has red in its lowest byte, then green, then blue.
inline constexpr Pixel PixelOfColor(std::uint32_t color) {
    return opaqueBlack | (color & 0xFF) << 16 | (color & 0xFF00) | (color >> 16 & 0xFF);
}

// Rows of pixels without gaps, the top row first. The pixels of a new picture are not set.
class Picture {
 public:
    Picture() = default;
    Picture(int pictureWidth, int pictureHeight)
        : width(pictureWidth),
          height(pictureHeight),
          pixels(std::make_unique_for_overwrite<Pixel[]>(
              static_cast<std::size_t>(pictureWidth) * static_cast<std::size_t>(pictureHeight))) {}

    int Width() const { return width; }
    int Height() const { return height; }
    // y from 0 to Height() - 1.
    std::span<Pixel> Row(int y) { return {pixels.get() + Offset(y), RowLength()}; }
    std::span<const Pixel> Row(int y) const { return {pixels.get() + Offset(y), RowLength()}; }

 private:
    std::size_t RowLength() const { return static_cast<std::size_t>(width); }
    std::size_t Offset(int y) const { return static_cast<std::size_t>(y) * RowLength(); }

    int width = 0;
    int height = 0;
    std::unique_ptr<Pixel[]> pixels;
};

}  // namespace kivu::png
