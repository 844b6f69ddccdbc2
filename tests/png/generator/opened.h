#pragma once

#include <algorithm>

#include "png/generator/png_recipe.h"
#include "png/load_png.h"

namespace kivu::png::testing {

inline ByteBuffer BufferOf(const Bytes& file) {
    ByteBuffer buffer(file.size());
    std::copy(file.begin(), file.end(), buffer.Data());
    return buffer;
}

}  // namespace kivu::png::testing
