#include "ui/picture_surface.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "png/blending.h"

namespace kivu::ui {

namespace {

// Where a pixel of the target comes from, and -1 outside of it.
int SourceOf(int place, int targetLength, int sourceLength) {
    if (place < 0 || place >= targetLength) return -1;
    return static_cast<int>(std::int64_t{place} * sourceLength / targetLength);
}

std::span<const std::uint32_t> RowOf(const forms::Bitmap& bitmap, int y) {
    const auto width = static_cast<std::size_t>(bitmap.width);
    return std::span(bitmap.pixels).subspan(static_cast<std::size_t>(y) * width, width);
}

// The mean of `factor` rows and columns from x on.
std::uint32_t Mean(const forms::Bitmap& bitmap, int x, int y, int factor) {
    std::uint64_t red = 0, green = 0, blue = 0;
    for (int row = 0; row < factor; ++row) {
        for (const std::uint32_t pixel :
             RowOf(bitmap, y + row)
                 .subspan(static_cast<std::size_t>(x), static_cast<std::size_t>(factor))) {
            red += pixel >> 16 & 0xff;
            green += pixel >> 8 & 0xff;
            blue += pixel & 0xff;
        }
    }
    const auto count = static_cast<std::uint64_t>(factor) * static_cast<std::uint64_t>(factor);
    const auto part = [&](std::uint64_t sum) {
        return static_cast<std::uint32_t>((sum + count / 2) / count);
    };
    return png::opaqueBlack | part(red) << 16 | part(green) << 8 | part(blue);
}

}  // namespace

png::Extent PictureSurface::Pixels() const {
    return {size.width / TwipsPerPixel(), size.height / TwipsPerPixel()};
}

void PictureSurface::SetOuterSize(png::Extent twips) {
    size = {std::max(0, twips.width), std::max(0, twips.height)};
    if (drawn.Width() > 0) drawn = Canvas();
}

png::Picture PictureSurface::Canvas() const {
    const png::Extent pixels = Pixels();
    png::Picture canvas(pixels.width, pixels.height);
    for (int y = 0; y < pixels.height; ++y)
        ReadPixels(0, y, canvas.Row(y));
    return canvas;
}

void PictureSurface::Paint(png::Picture picture, int x, int y, png::Extent target) {
    const png::Extent inside = Pixels();
    const bool plain = target.width == picture.Width() && target.height == picture.Height();
    if (plain && x == 0 && y == 0 && inside.width == picture.Width() &&
        inside.height == picture.Height()) {
        drawn = std::move(picture);
        return;
    }
    if (inside.width == 0 || inside.height == 0) return;
    png::Picture canvas = Canvas();
    for (int row = 0; row < inside.height; ++row) {
        const int from = SourceOf(row - y, target.height, picture.Height());
        if (from < 0) continue;
        const auto source = std::as_const(picture).Row(from);
        const auto pixels = canvas.Row(row);
        for (int column = 0; column < inside.width; ++column) {
            const int at = SourceOf(column - x, target.width, picture.Width());
            if (at >= 0)
                pixels[static_cast<std::size_t>(column)] = source[static_cast<std::size_t>(at)];
        }
    }
    drawn = std::move(canvas);
}

void PictureSurface::ReadPixels(int x, int y, std::span<png::Pixel> pixels) const {
    const png::Extent inside = Pixels();
    const bool row = y >= 0 && y < std::min(drawn.Height(), inside.height);
    const int width = std::min(drawn.Width(), inside.width);
    for (std::size_t i = 0; i < pixels.size(); ++i) {
        const std::int64_t at = std::int64_t{x} + static_cast<std::int64_t>(i);
        pixels[i] = row && at >= 0 && at < width ? drawn.Row(y)[static_cast<std::size_t>(at)]
                                                 : png::PixelOfColor(backColor);
    }
}

void PictureSurface::KeepDrawing() {
    if (drawn.Width() == 0) drawn = Canvas();
    auto bitmap = std::make_shared<forms::Bitmap>();
    bitmap->width = drawn.Width();
    bitmap->height = drawn.Height();
    bitmap->opaque = true;
    bitmap->pixels.reserve(static_cast<std::size_t>(drawn.Width()) *
                           static_cast<std::size_t>(drawn.Height()));
    for (int y = 0; y < drawn.Height(); ++y) {
        const auto row = std::as_const(drawn).Row(y);
        bitmap->pixels.insert(bitmap->pixels.end(), row.begin(), row.end());
    }
    kept = std::move(bitmap);
}

std::shared_ptr<const forms::Bitmap> OverColor(std::shared_ptr<const forms::Bitmap> bitmap,
                                               forms::Color backColor) {
    if (!bitmap || bitmap->opaque) return bitmap;
    auto covering = std::make_shared<forms::Bitmap>();
    covering->width = bitmap->width;
    covering->height = bitmap->height;
    covering->opaque = true;
    covering->pixels.reserve(bitmap->pixels.size());
    const png::Pixel below = png::PixelOfColor(backColor);
    for (const std::uint32_t pixel : bitmap->pixels)
        covering->pixels.push_back(png::BlendPixel(pixel, below));
    return covering;
}

std::shared_ptr<const forms::Bitmap> Shrunk(std::shared_ptr<const forms::Bitmap> bitmap,
                                            int longestSide) {
    if (!bitmap) return bitmap;
    const int longest = std::max(bitmap->width, bitmap->height);
    if (longest <= longestSide) return bitmap;
    const int factor = (longest + longestSide - 1) / longestSide;
    const int width = bitmap->width / factor, height = bitmap->height / factor;
    // A line of a few pixels has no squares.
    if (width == 0 || height == 0) return bitmap;
    auto shrunk = std::make_shared<forms::Bitmap>();
    shrunk->width = width;
    shrunk->height = height;
    shrunk->opaque = true;
    shrunk->pixels.reserve(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x)
            shrunk->pixels.push_back(Mean(*bitmap, x * factor, y * factor, factor));
    }
    return shrunk;
}

}  // namespace kivu::ui
