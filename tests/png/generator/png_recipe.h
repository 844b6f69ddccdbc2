#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kivu::png::testing {

using Bytes = std::vector<std::uint8_t>;

enum class Content {
    Noise,
    // Slow gradients with a little noise.
    Photo,
    // Flat areas, lines and text-like specks.
    Screenshot,
};

// Filter types 0 to 4; one drawn for each row; or for each row the one with the least sum of
// differences, which is what most programs do.
inline constexpr int mixedFilters = 5;
inline constexpr int adaptiveFilters = 6;

// What a generated PNG file is to hold.
struct PngRecipe {
    std::uint32_t width = 1;
    std::uint32_t height = 1;
    std::uint8_t colorType = 0;
    std::uint8_t depth = 8;
    bool interlaced = false;
    int filter = 0;
    Content content = Content::Noise;
    std::uint32_t seed = 1;
    // zlib's 0 to 9 and its strategies 0 to 4.
    int level = 6;
    int strategy = 0;
    // Payload bytes of an IDAT chunk; 0 for a single one.
    std::size_t idatBytes = 0;
    // Colours of the palette.
    std::size_t paletteEntries = 256;
    std::optional<Bytes> trns;
    std::optional<Bytes> bkgd;
    // tEXt, zTXt, tIME and gAMA chunks around the others.
    bool ancillary = false;
};

struct ColorKind {
    std::uint8_t colorType;
    std::uint8_t depth;
};

// The fifteen pairs that the format allows.
extern const std::vector<ColorKind> legalKinds;

unsigned ChannelsOf(std::uint8_t colorType);

// A legal tRNS payload for the recipe's kind that hits some of its pixels, if they are few bits.
Bytes SomeTransparency(const PngRecipe& recipe);
// A legal bKGD payload.
Bytes SomeBackground(const PngRecipe& recipe);

Bytes WritePng(const PngRecipe& recipe);

// The pieces, for files that are wrong on purpose.
extern const Bytes pngSignature;
Bytes MakeChunk(std::string_view name, const Bytes& payload);
Bytes MakeHeader(std::uint32_t width, std::uint32_t height, std::uint8_t depth,
                 std::uint8_t colorType, std::uint8_t compression, std::uint8_t interlacing);
// The filtered rows, pass by pass where interlaced.
Bytes MakeRows(const PngRecipe& recipe);
Bytes MakePalette(const PngRecipe& recipe);
Bytes ZlibCompress(const Bytes& raw, int level, int strategy);
void Append(Bytes& to, const Bytes& more);
Bytes BytesOf(std::string_view text);

}  // namespace kivu::png::testing
