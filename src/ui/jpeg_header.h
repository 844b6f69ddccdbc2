#pragma once

#include <cstdint>
#include <optional>

#include "ui/byte_view.h"

namespace kivu::ui {

struct PictureSides {
    std::uint32_t width = 0;
    std::uint32_t height = 0;
};

// The size of a JPEG picture as it is looked at. Nothing: the file ends, or its pixels begin,
// before it has told.
std::optional<PictureSides> JpegSides(const ByteView& file);

}  // namespace kivu::ui
