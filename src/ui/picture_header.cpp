#include "ui/picture_header.h"

#include <cstdint>
#include <limits>

#include "png/header.h"
#include "ui/byte_view.h"
#include "ui/jpeg_header.h"

namespace kivu::ui {

namespace {

using Sides = std::optional<PictureSides>;

Sides PngSides(const ByteView& file) {
    const bool header = file.From(12).StartsWith("IHDR");
    return header ? Sides({file.Big32(16), file.Big32(20)}) : std::nullopt;
}

// Behind the head stand blocks; one that begins with a comma is a frame.
Sides FirstGifFrame(const ByteView& file) {
    const auto tableBytes = [](std::uint32_t flags) -> std::size_t {
        return flags & 0x80 ? std::size_t{3} << ((flags & 7) + 1) : 0;
    };
    std::size_t at = 13 + tableBytes(file.Byte(10));
    while (at < file.Size() && file.Byte(at) == '!') {
        at += 2;
        while (file.Byte(at) != 0)
            at += file.Byte(at) + 1;
        ++at;
    }
    if (file.Byte(at) != ',') return std::nullopt;
    return PictureSides{file.Little16(at + 1) + file.Little16(at + 5),
                        file.Little16(at + 3) + file.Little16(at + 7)};
}

// The screen that frames are drawn on; one without a size is as large as the first frame wants it.
Sides GifSides(const ByteView& file) {
    const PictureSides screen{file.Little16(6), file.Little16(8)};
    if (screen.width != 0 && screen.height != 0) return screen;
    return FirstGifFrame(file);
}

// A bitmap's own head: the old one has 16 bits for each side, and a negative height means rows from
// the top.
Sides DibSides(const ByteView& dib) {
    constexpr std::uint32_t oldHead = 12;
    if (dib.Little32(0) == oldHead) return PictureSides{dib.Little16(4), dib.Little16(6)};
    const auto height = static_cast<std::int32_t>(dib.Little32(8));
    if (height == std::numeric_limits<std::int32_t>::min()) return std::nullopt;
    return PictureSides{dib.Little32(4), static_cast<std::uint32_t>(height < 0 ? -height : height)};
}

// Of the pictures in the file the largest counts, and of several the one with the most colours. It
// is a PNG file, or a bitmap with the rows of its mask below.
Sides IcoSides(const ByteView& file) {
    constexpr std::size_t head = 6, entry = 16;
    const auto side = [&](std::size_t at) { return file.Byte(at) == 0 ? 256 : file.Byte(at); };
    std::uint32_t best = 0;
    std::size_t bestAt = 0;
    for (std::size_t i = 0; i < file.Little16(4) && head + i * entry < file.Size(); ++i) {
        const std::size_t at = head + i * entry;
        const std::uint32_t worth = side(at) * side(at + 1) << 8 | (file.Little16(at + 6) & 0xff);
        if (worth <= best) continue;
        best = worth;
        bestAt = at;
    }
    if (bestAt == 0) return std::nullopt;
    const ByteView picture = file.From(file.Little32(bestAt + 12));
    if (picture.StartsWith("\x89PNG\r\n\x1a\n")) return PngSides(picture);
    const Sides dib = DibSides(picture);
    return dib ? Sides({dib->width, dib->height / 2}) : std::nullopt;
}

Sides WebpSides(const ByteView& file) {
    constexpr std::size_t chunk = 12, payload = 20;
    const ByteView name = file.From(chunk);
    if (name.StartsWith("VP8X"))
        return PictureSides{file.Little24(payload + 4) + 1, file.Little24(payload + 7) + 1};
    if (name.StartsWith("VP8L") && file.Byte(payload) == 0x2f) {
        const std::uint32_t bits = file.Little32(payload + 1);
        return PictureSides{(bits & 0x3fff) + 1, (bits >> 14 & 0x3fff) + 1};
    }
    const bool frame = file.From(payload + 3).StartsWith("\x9d\x01\x2a");
    if (!name.StartsWith("VP8 ") || !frame) return std::nullopt;
    return PictureSides{file.Little16(payload + 6) & 0x3fff, file.Little16(payload + 8) & 0x3fff};
}

Sides SidesOf(PictureFormat format, const ByteView& file) {
    switch (format) {
        case PictureFormat::png:
            return PngSides(file);
        case PictureFormat::jpeg:
            return JpegSides(file);
        case PictureFormat::gif:
            return GifSides(file);
        case PictureFormat::bmp:
            return DibSides(file.From(14));
        case PictureFormat::ico:
            return IcoSides(file);
        case PictureFormat::webp:
            return WebpSides(file);
    }
    return std::nullopt;
}

}  // namespace

std::optional<PictureHeader> ReadPictureHeader(std::string_view bytes) {
    const auto format = text::PictureFormatOf(bytes);
    if (!format) return std::nullopt;
    const Sides sides = SidesOf(*format, ByteView(bytes));
    if (!sides || !png::IsWithinLimits(sides->width, sides->height)) return std::nullopt;
    return PictureHeader{*format, static_cast<int>(sides->width), static_cast<int>(sides->height),
                         sides->progressive};
}

bool MayTellMore(std::string_view bytes) {
    return text::PictureFormatOf(bytes) == PictureFormat::jpeg;
}

}  // namespace kivu::ui
