#include <algorithm>

#include "png/load_png.h"

namespace kivu::png {
namespace {

// Rows of device bitmaps are padded to 4 bytes.
std::size_t DeviceStride(unsigned bits, int width) {
    return (std::size_t{bits} * static_cast<std::size_t>(width) + 31) / 32 * 4;
}

Pixel PaletteEntry(std::span<const std::uint8_t> colors, std::size_t index) {
    const std::uint8_t* entry = &colors[index * 3];
    return opaqueBlack | Pixel{entry[0]} << 16 | Pixel{entry[1]} << 8 | entry[2];
}

void CopyPalette(PixelTable& table, std::span<const std::uint8_t> colors, std::size_t most) {
    table.fill(opaqueBlack);
    const std::size_t count = std::min(colors.size() / 3, most);
    for (std::size_t i = 0; i < count; ++i) {
        table[i] = PaletteEntry(colors, i);
    }
}

// Fills the picture from device rows; convert(row, pixels) serves one of them.
template <typename Convert>
void ConvertDeviceRows(std::span<const std::uint8_t> data, unsigned bits, bool topDown,
                       Picture& picture, Convert convert) {
    const std::size_t stride = DeviceStride(bits, picture.Width());
    std::vector<std::uint8_t> shortRow;
    for (int i = 0; i < picture.Height(); ++i) {
        const std::span<Pixel> pixels = picture.Row(topDown ? i : picture.Height() - 1 - i);
        const std::span<const std::uint8_t> row = data.first(std::min(stride, data.size()));
        data = data.subspan(row.size());
        if (row.size() == stride) {
            convert(row.data(), pixels);
        } else {
            shortRow.assign(row.begin(), row.end());
            shortRow.resize(stride);
            convert(shortRow.data(), pixels);
        }
    }
}

}  // namespace

std::vector<std::uint8_t> LoadPNG::InitColorTable_Grey(int bits) {
    if (bits != 1 && bits != 2 && bits != 4 && bits != 8) return {};
    colorTable.fill(opaqueBlack);
    const unsigned last = (1U << bits) - 1;
    std::vector<std::uint8_t> colors;
    colors.reserve((std::size_t{last} + 1) * 3);
    for (unsigned i = 0; i <= last; ++i) {
        const unsigned grey = i * 255 / last;
        colorTable[i] |= grey * 0x010101;
        colors.insert(colors.end(), 3, static_cast<std::uint8_t>(grey));
    }
    return colors;
}

void LoadPNG::InitColorTable_1(int mode) {
    constexpr Pixel white = 0xFFFFFFFF;
    colorTable.fill(opaqueBlack);
    colorTable[mode == 0 ? 0 : 1] = white;
}

void LoadPNG::InitColorTable_1Palette(std::span<const std::uint8_t> colors) {
    constexpr std::size_t oneColor = 3;
    constexpr std::size_t twoColors = 6;
    if (colors.size() != oneColor && colors.size() != twoColors) return InitColorTable_1(1);
    CopyPalette(colorTable, colors, 2);
}

void LoadPNG::InitColorTable_8(std::span<const std::uint8_t> colors) {
    CopyPalette(colorTable, colors, 256);
}

void LoadPNG::InitColorTable_4(std::span<const std::uint8_t> colors) {
    CopyPalette(colorTable, colors, 16);
}

bool LoadPNG::BeginBitmap(int width, int height) {
    bitmap.reset();
    if (width <= 0 || height <= 0 ||
        !IsWithinLimits(static_cast<std::uint32_t>(width), static_cast<std::uint32_t>(height))) {
        return false;
    }
    bitmap.emplace(width, height);
    return true;
}

void LoadPNG::CreateIndexed(unsigned bits, std::span<const std::uint8_t> data, int width,
                            int height, bool topDown, int usedColors) {
    if (!BeginBitmap(width, height)) return;
    PixelTable used = colorTable;
    if (usedColors > 0 && static_cast<std::size_t>(usedColors) < used.size()) {
        std::fill(used.begin() + usedColors, used.end(), opaqueBlack);
    }
    ConvertDeviceRows(data, bits, topDown, *bitmap,
                      [&](const std::uint8_t* row, std::span<Pixel> pixels) {
                          ConvertIndexes(bits, row, used, pixels);
                      });
}

void LoadPNG::CreateBitmap_1(std::span<const std::uint8_t> data, int width, int height,
                             bool topDown, int usedColors) {
    CreateIndexed(1, data, width, height, topDown, usedColors);
}

void LoadPNG::CreateBitmap_2(std::span<const std::uint8_t> data, int width, int height,
                             bool topDown, int usedColors) {
    CreateIndexed(2, data, width, height, topDown, usedColors);
}

void LoadPNG::CreateBitmap_4(std::span<const std::uint8_t> data, int width, int height,
                             bool topDown, int usedColors) {
    CreateIndexed(4, data, width, height, topDown, usedColors);
}

void LoadPNG::CreateBitmap_8(std::span<const std::uint8_t> data, int width, int height,
                             bool topDown, int usedColors) {
    CreateIndexed(8, data, width, height, topDown, usedColors);
}

// Pixels that name their colour themselves have no use for a table.
void LoadPNG::CreateBitmap_24(std::span<const std::uint8_t> data, int width, int height,
                              bool topDown, int /*usedColors*/, int bitsPerPixel) {
    if (!BeginBitmap(width, height)) return;
    if (bitsPerPixel == 32) {
        ConvertDeviceRows(data, 32, topDown, *bitmap, ConvertBgrx);
    } else {
        ConvertDeviceRows(data, 24, topDown, *bitmap, ConvertBgr);
    }
}

void LoadPNG::CreateBitmap_16(std::span<const std::uint8_t> data, int width, int height,
                              bool topDown, int /*usedColors*/) {
    if (!BeginBitmap(width, height)) return;
    ConvertDeviceRows(data, 16, topDown, *bitmap, ConvertRgb555);
}

void LoadPNG::DrawBitmap(int width, int height, DrawingTarget* newPicBox, bool Scalierung, int x,
                         int y, bool setToBkgrnd) {
    if (newPicBox == nullptr) return;
    newPicBox->Clear();
    const int twips = newPicBox->TwipsPerPixel();
    Extent target{width, height};
    if (!setToBkgrnd) {
        if (Scalierung) newPicBox->SetOuterSize({width * twips, height * twips});
        const Extent outer = newPicBox->OuterSize();
        const Extent inner = newPicBox->InnerSize();
        if (inner.height != outer.height) {
            // A border has taken its share: the inside grows back to the size of the picture.
            newPicBox->SetOuterSize(
                {outer.width * 2 - inner.width, outer.height * 2 - inner.height});
        } else {
            target = {inner.width / twips, inner.height / twips};
        }
    }
    if (bitmap) {
        newPicBox->Paint(std::move(*bitmap), x, y, target);
        bitmap.reset();
    }
    newPicBox->KeepDrawing();
}

}  // namespace kivu::png
