#pragma once

#include <cstddef>
#include <cstdint>

namespace kivu::png {

// More pixels, or a longer side, draw nothing: a header may promise what no memory holds.
inline constexpr std::uint64_t mostPixels = std::uint64_t{1} << 26;
inline constexpr std::uint32_t longestSide = 32767;

enum ColorTypes : std::uint8_t { Grey = 0, Rgb = 2, Palette = 3, GreyAlpha = 4, Rgba = 6 };

// The image header as the file has it; every value may be nonsense.
struct ImageHeader {
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    std::uint8_t bitDepth = 0;
    std::uint8_t colorType = 0;
    std::uint8_t compression = 0;
    std::uint8_t filter = 0;
    std::uint8_t interlacing = 0;
};

// Sides of at least one pixel, and none of the limits above passed.
bool IsWithinLimits(std::uint32_t width, std::uint32_t height);
// Whether the reader can draw it: a known pair of colour type and depth, and a size within limits.
bool IsDrawable(const ImageHeader& header);

// The routines below are for drawable headers.

bool HasAlphaChannel(const ImageHeader& header);
// Whether its samples are indexes of a colour table: grey or palette of up to 8 bits.
bool IsTabled(const ImageHeader& header);
unsigned BitsPerPixel(const ImageHeader& header);
// Bytes of a row of that many pixels, without a filter byte.
std::size_t RowBytes(const ImageHeader& header, std::size_t pixels);
// Bytes that the inflated data should have, filter bytes included; enough for the seven passes of
// an interlaced picture in any case.
std::uint64_t ExpectedBytes(const ImageHeader& header);

// A pass of Adam7: every stepX-th pixel of every stepY-th row, from startX, startY on.
struct Pass {
    unsigned startX;
    unsigned startY;
    unsigned stepX;
    unsigned stepY;

    std::uint32_t Columns(std::uint32_t width) const {
        return (width + stepX - 1 - startX) / stepX;
    }
    std::uint32_t Rows(std::uint32_t height) const { return (height + stepY - 1 - startY) / stepY; }
};

inline constexpr Pass adam7Passes[7] = {{0, 0, 8, 8}, {4, 0, 8, 8}, {0, 4, 4, 8}, {2, 0, 4, 4},
                                        {0, 2, 2, 4}, {1, 0, 2, 2}, {0, 1, 1, 2}};

}  // namespace kivu::png
