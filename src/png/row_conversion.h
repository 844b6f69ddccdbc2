#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

#include "png/header.h"
#include "png/picture.h"

namespace kivu::png {

// Colours, and alpha values, of the indexes of a pixel of up to 8 bits.
using PixelTable = std::array<Pixel, 256>;

// The one colour of a picture that is wholly transparent, each sample in the picture's own depth.
// Grey has it in the first one.
struct ColorKey {
    std::array<std::uint16_t, 3> samples{};
};

// Packed indexes of 1, 2, 4 or 8 bits, the first one in the high bits of a byte.
void ConvertIndexes(unsigned bits, const std::uint8_t* row, const PixelTable& table,
                    std::span<Pixel> pixels);
// Three bytes a pixel, blue first.
void ConvertBgr(const std::uint8_t* row, std::span<Pixel> pixels);
// Four bytes a pixel, blue first, the fourth ignored.
void ConvertBgrx(const std::uint8_t* row, std::span<Pixel> pixels);
// Two bytes a pixel, five bits each for red, green and blue, blue in the low bits.
void ConvertRgb555(const std::uint8_t* row, std::span<Pixel> pixels);

// Turns rows as the file has them, without their filter bytes, into pixels with alpha. Of 16-bit
// samples the high bytes are kept.
class RowConverter {
 public:
    // table: for grey and palette pictures of up to 8 bits; it must outlive the converter.
    // key: for the others; one with a sample beyond the depth's range matches nothing.
    RowConverter(const ImageHeader& header, const PixelTable& table,
                 const std::optional<ColorKey>& key);
    void Convert(const std::uint8_t* row, std::span<Pixel> pixels) const;

 private:
    void ConvertDeep(const std::uint8_t* row, std::span<Pixel> pixels) const;
    void ApplyKey(const std::uint8_t* row, std::span<Pixel> pixels) const;

    ImageHeader header;
    const PixelTable& table;
    // Set where a key applies; the bytes that a transparent pixel has in the file.
    std::array<std::uint8_t, 6> keyBytes{};
    std::size_t keyLength = 0;
};

}  // namespace kivu::png
