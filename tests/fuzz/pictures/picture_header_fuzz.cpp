// Any bytes as a picture file: its header is within the limits, or there is none.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "ui/picture_header.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const auto header = kivu::ui::ReadPictureHeader(bytes);
    if (!header) return 0;
    const bool right = header->width > 0 && header->height > 0 && header->width <= 32767 &&
                       header->height <= 32767 &&
                       std::int64_t{header->width} * header->height <= std::int64_t{1} << 26;
    if (!right) std::abort();
    // A second look sees the same.
    if (kivu::ui::ReadPictureHeader(bytes) != header) std::abort();
    return 0;
}
