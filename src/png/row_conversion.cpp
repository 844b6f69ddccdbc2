#include "png/row_conversion.h"

#include <cstring>

#include "png/bytes.h"

namespace kivu::png {
namespace {

template <unsigned Bits>
void ConvertPacked(const std::uint8_t* row, const PixelTable& table, std::span<Pixel> pixels) {
    constexpr std::size_t perByte = 8 / Bits;
    constexpr unsigned mask = (1U << Bits) - 1;
    Pixel* to = pixels.data();
    for (std::size_t whole = pixels.size() / perByte; whole != 0; --whole, ++row) {
        for (std::size_t i = 0; i < perByte; ++i) {
            *to++ = table[*row >> (8 - Bits * (i + 1)) & mask];
        }
    }
    for (std::size_t i = 0; i < pixels.size() % perByte; ++i) {
        *to++ = table[*row >> (8 - Bits * (i + 1)) & mask];
    }
}

inline Pixel SwapRedBlue(std::uint32_t pixel) {
    return (pixel & 0xFF00FF00) | (pixel & 0xFF) << 16 | (pixel >> 16 & 0xFF);
}

inline Pixel GreyPixel(unsigned grey, unsigned alpha) {
    return alpha << 24 | grey * 0x010101;
}

void ConvertRgb(const std::uint8_t* row, std::span<Pixel> pixels) {
    if (pixels.empty()) return;
    // Four bytes at once, of which the last belongs to the next pixel; the last pixel has no next.
    const std::size_t last = pixels.size() - 1;
    for (std::size_t i = 0; i < last; ++i) {
        pixels[i] = opaqueBlack | SwapRedBlue(LoadWord<std::uint32_t>(row + i * 3));
    }
    const std::uint8_t* end = row + last * 3;
    pixels[last] = opaqueBlack | Pixel{end[0]} << 16 | Pixel{end[1]} << 8 | end[2];
}

void ConvertRgba(const std::uint8_t* row, std::span<Pixel> pixels) {
    for (std::size_t i = 0; i < pixels.size(); ++i) {
        pixels[i] = SwapRedBlue(LoadWord<std::uint32_t>(row + i * 4));
    }
}

void ConvertGreyAlpha(const std::uint8_t* row, std::span<Pixel> pixels) {
    for (std::size_t i = 0; i < pixels.size(); ++i) {
        pixels[i] = GreyPixel(row[i * 2], row[i * 2 + 1]);
    }
}

template <std::size_t Length>
void ClearMatches(const std::uint8_t* row, const std::uint8_t* key, std::span<Pixel> pixels) {
    for (Pixel& pixel : pixels) {
        if (std::memcmp(row, key, Length) == 0) pixel &= ~opaqueBlack;
        row += Length;
    }
}

}  // namespace

void ConvertIndexes(unsigned bits, const std::uint8_t* row, const PixelTable& table,
                    std::span<Pixel> pixels) {
    switch (bits) {
        case 1:
            return ConvertPacked<1>(row, table, pixels);
        case 2:
            return ConvertPacked<2>(row, table, pixels);
        case 4:
            return ConvertPacked<4>(row, table, pixels);
        default:
            return ConvertPacked<8>(row, table, pixels);
    }
}

void ConvertBgr(const std::uint8_t* row, std::span<Pixel> pixels) {
    for (Pixel& pixel : pixels) {
        pixel = opaqueBlack | Pixel{row[2]} << 16 | Pixel{row[1]} << 8 | row[0];
        row += 3;
    }
}

void ConvertBgrx(const std::uint8_t* row, std::span<Pixel> pixels) {
    for (Pixel& pixel : pixels) {
        pixel = opaqueBlack | LoadWord<std::uint32_t>(row);
        row += 4;
    }
}

void ConvertRgb555(const std::uint8_t* row, std::span<Pixel> pixels) {
    const auto widen = [](unsigned five) { return Pixel{(five << 3 | five >> 2) & 0xFF}; };
    for (Pixel& pixel : pixels) {
        const unsigned packed = LoadWord<std::uint16_t>(row);
        pixel = opaqueBlack | widen(packed >> 10 & 31) << 16 | widen(packed >> 5 & 31) << 8 |
                widen(packed & 31);
        row += 2;
    }
}

RowConverter::RowConverter(const ImageHeader& imageHeader, const PixelTable& pixelTable,
                           const std::optional<ColorKey>& key)
    : header(imageHeader), table(pixelTable) {
    const bool rgb = header.colorType == ColorTypes::Rgb;
    const bool deepGrey = header.colorType == ColorTypes::Grey && header.bitDepth == 16;
    if (!key || !(rgb || deepGrey)) return;
    const std::size_t samples = rgb ? 3 : 1;
    for (std::size_t i = 0; i < samples; ++i) {
        if (key->samples[i] >> header.bitDepth != 0) return;
    }
    for (std::size_t i = 0; i < samples; ++i) {
        const std::uint16_t sample = key->samples[i];
        if (header.bitDepth == 16) keyBytes[keyLength++] = static_cast<std::uint8_t>(sample >> 8);
        keyBytes[keyLength++] = static_cast<std::uint8_t>(sample);
    }
}

void RowConverter::Convert(const std::uint8_t* row, std::span<Pixel> pixels) const {
    if (header.bitDepth == 16) {
        ConvertDeep(row, pixels);
    } else if (header.colorType == ColorTypes::Rgb) {
        ConvertRgb(row, pixels);
    } else if (header.colorType == ColorTypes::Rgba) {
        ConvertRgba(row, pixels);
    } else if (header.colorType == ColorTypes::GreyAlpha) {
        ConvertGreyAlpha(row, pixels);
    } else {
        ConvertIndexes(header.bitDepth, row, table, pixels);
    }
    if (keyLength != 0) ApplyKey(row, pixels);
}

void RowConverter::ConvertDeep(const std::uint8_t* row, std::span<Pixel> pixels) const {
    switch (header.colorType) {
        case ColorTypes::Grey:
            for (Pixel& pixel : pixels) {
                pixel = GreyPixel(row[0], 255);
                row += 2;
            }
            return;
        case ColorTypes::GreyAlpha:
            for (Pixel& pixel : pixels) {
                pixel = GreyPixel(row[0], row[2]);
                row += 4;
            }
            return;
        case ColorTypes::Rgb:
            for (Pixel& pixel : pixels) {
                pixel = opaqueBlack | Pixel{row[0]} << 16 | Pixel{row[2]} << 8 | row[4];
                row += 6;
            }
            return;
        default:
            for (Pixel& pixel : pixels) {
                pixel = Pixel{row[6]} << 24 | Pixel{row[0]} << 16 | Pixel{row[2]} << 8 | row[4];
                row += 8;
            }
            return;
    }
}

// Whole samples are compared, before their low bytes are gone.
void RowConverter::ApplyKey(const std::uint8_t* row, std::span<Pixel> pixels) const {
    switch (keyLength) {
        case 2:
            return ClearMatches<2>(row, keyBytes.data(), pixels);
        case 3:
            return ClearMatches<3>(row, keyBytes.data(), pixels);
        default:
            return ClearMatches<6>(row, keyBytes.data(), pixels);
    }
}

}  // namespace kivu::png
