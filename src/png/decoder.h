#pragma once

#include <cstdint>
#include <functional>
#include <span>

#include "png/blending.h"
#include "png/header.h"
#include "png/picture.h"
#include "png/row_conversion.h"

namespace kivu::png {

// What becomes of the alpha of the pixels.
enum class AlphaUse {
    // All pixels are opaque already: by their kind or by their table.
    None,
    // It is dropped.
    Ignore,
    // The pixels are blended with the backdrop.
    Blend,
};

struct Blending {
    AlphaUse alphaUse;
    const Backdrop& backdrop;
};

// Makes the picture of a drawable header from inflated rows: undoes filters and interlacing,
// converts and blends. Rows that data doesn't reach are taken as zeros. The filters are undone in
// place. All pixels of the result are opaque. givenUp is asked every few rows; true leaves the rest
// as it is.
Picture DecodeRows(const ImageHeader& header, std::span<std::uint8_t> data,
                   const RowConverter& converter, const Blending& blending,
                   const std::function<bool()>& givenUp);

}  // namespace kivu::png
