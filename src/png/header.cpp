#include "png/header.h"

#include <algorithm>

namespace kivu::png {
namespace {

bool IsKnownDepth(std::uint8_t colorType, unsigned depth) {
    switch (colorType) {
        case ColorTypes::Grey:
            return depth == 1 || depth == 2 || depth == 4 || depth == 8 || depth == 16;
        case ColorTypes::Palette:
            return depth == 1 || depth == 2 || depth == 4 || depth == 8;
        case ColorTypes::Rgb:
        case ColorTypes::GreyAlpha:
        case ColorTypes::Rgba:
            return depth == 8 || depth == 16;
        default:
            return false;
    }
}

unsigned Channels(std::uint8_t colorType) {
    switch (colorType) {
        case ColorTypes::Rgb:
            return 3;
        case ColorTypes::GreyAlpha:
            return 2;
        case ColorTypes::Rgba:
            return 4;
        default:
            return 1;
    }
}

}  // namespace

bool IsWithinLimits(std::uint32_t width, std::uint32_t height) {
    if (width == 0 || height == 0 || width > longestSide || height > longestSide) return false;
    return std::uint64_t{width} * height <= mostPixels;
}

bool IsDrawable(const ImageHeader& header) {
    return IsWithinLimits(header.width, header.height) &&
           IsKnownDepth(header.colorType, header.bitDepth);
}

bool HasAlphaChannel(const ImageHeader& header) {
    return header.colorType == ColorTypes::GreyAlpha || header.colorType == ColorTypes::Rgba;
}

bool IsTabled(const ImageHeader& header) {
    return header.bitDepth <= 8 &&
           (header.colorType == ColorTypes::Grey || header.colorType == ColorTypes::Palette);
}

unsigned BitsPerPixel(const ImageHeader& header) {
    return header.bitDepth * Channels(header.colorType);
}

std::size_t RowBytes(const ImageHeader& header, std::size_t pixels) {
    return (pixels * BitsPerPixel(header) + 7) / 8;
}

std::uint64_t ExpectedBytes(const ImageHeader& header) {
    const std::uint64_t plain = (std::uint64_t{RowBytes(header, header.width)} + 1) * header.height;
    if (header.interlacing != 1) return plain;
    std::uint64_t passes = 0;
    for (const Pass& pass : adam7Passes) {
        const std::uint32_t columns = pass.Columns(header.width);
        if (columns == 0) continue;
        passes += (std::uint64_t{RowBytes(header, columns)} + 1) * pass.Rows(header.height);
    }
    return std::max(plain + header.height, passes);
}

}  // namespace kivu::png
