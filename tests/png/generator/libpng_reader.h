#pragma once

#include <optional>

#include "png/generator/png_recipe.h"
#include "png/picture.h"

namespace kivu::png::testing {

// What libpng makes of a file: pixels with alpha, 16-bit samples cut to their high bytes, grey and
// palette spread to colours, no gamma. Nothing if libpng refuses the file.
std::optional<Picture> ReadWithLibpng(const Bytes& file);

}  // namespace kivu::png::testing
