#pragma once

#include <optional>
#include <string_view>

#include "text/picture_format.h"

namespace kivu::ui {

using text::PictureFormat;

// What a picture file says of itself before any of its pixels.
struct PictureHeader {
    PictureFormat format = PictureFormat::png;
    // As it is looked at: a photograph that the camera took on its side stands upright.
    int width = 0;
    int height = 0;
    // A JPEG file in passes: a small one may hold thousands of them, and take seconds.
    bool progressive = false;
    bool operator==(const PictureHeader&) const = default;
};

// By the content alone. Nothing: none of these formats, cut off before the size, or a size that is
// not to be had: no pixels, more than 32,767 on a side, more than 2^26 in all. Only a JPEG file may
// have its size far behind its beginning.
std::optional<PictureHeader> ReadPictureHeader(std::string_view bytes);

// More bytes of a JPEG file might tell its size; of other files 64 KiB tell all.
bool MayTellMore(std::string_view bytes);

}  // namespace kivu::ui
