#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "ui/byte_view.h"

namespace kivu::ui {

struct PictureSides {
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    bool progressive = false;
};

// The size of a JPEG picture as it is looked at. Nothing: the file ends, or its pixels begin,
// before it has told.
std::optional<PictureSides> JpegSides(const ByteView& file);

// More passes over the picture than its colours and a picture within the file ask for: each costs a
// dozen bytes, and as much time as the first.
bool HasManyScans(std::string_view jpeg);

}  // namespace kivu::ui
