#pragma once

#include <atomic>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace kivu::platform {

// Pixels as 0xAARRGGBB, rows from the top, not premultiplied.
struct DecodedPicture {
    int width = 0;
    int height = 0;
    std::vector<std::uint32_t> pixels;
};

// Reads picture files of the common formats: BMP, JPEG, GIF (its first frame), PNG, ICO and, where
// the host knows it, WebP. The content decides, and no name. May be called from any thread, from
// several at once.
class PictureDecoder {
 public:
    virtual ~PictureDecoder() = default;
    // Upright, whatever way the camera was held. A picture with a longer side than `largestSide` is
    // made smaller, in its proportions; 0: it keeps its size. Empty: no such picture, damaged from
    // the start, too large, cancelled, or not done within two seconds.
    virtual std::optional<DecodedPicture> Decode(std::string_view bytes, int largestSide,
                                                 const std::atomic<bool>& cancelled) = 0;
};

}  // namespace kivu::platform
