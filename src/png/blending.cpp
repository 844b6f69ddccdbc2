#include "png/blending.h"

#include <cstddef>

namespace kivu::png {

void Backdrop::BlendRow(std::span<Pixel> row, int rowIndex, std::span<Pixel> scratch) const {
    if (IsUniform()) {
        for (Pixel& pixel : row) {
            pixel = BlendPixel(pixel, color);
        }
        return;
    }
    const std::span<Pixel> behind = scratch.first(row.size());
    picture->ReadPixels(x, y + rowIndex, behind);
    for (std::size_t i = 0; i < row.size(); ++i) {
        row[i] = BlendPixel(row[i], behind[i]);
    }
}

}  // namespace kivu::png
