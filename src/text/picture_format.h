#pragma once

#include <optional>
#include <string_view>

namespace kivu::text {

// The formats of pictures that are shown.
enum class PictureFormat { png, jpeg, gif, bmp, ico, webp };

// By how a file begins.
std::optional<PictureFormat> PictureFormatOf(std::string_view bytes);

}  // namespace kivu::text
