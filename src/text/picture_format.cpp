#include "text/picture_format.h"

namespace kivu::text {

std::optional<PictureFormat> PictureFormatOf(std::string_view bytes) {
    constexpr std::string_view png("\x89PNG\r\n\x1a\n"), jpeg("\xff\xd8\xff"), ico("\0\0\1\0", 4);
    if (bytes.starts_with(png)) return PictureFormat::png;
    if (bytes.starts_with(jpeg)) return PictureFormat::jpeg;
    if (bytes.starts_with("GIF87a") || bytes.starts_with("GIF89a")) return PictureFormat::gif;
    if (bytes.starts_with("BM")) return PictureFormat::bmp;
    if (bytes.starts_with(ico)) return PictureFormat::ico;
    if (bytes.starts_with("RIFF") && bytes.substr(0, 12).ends_with("WEBP"))
        return PictureFormat::webp;
    return std::nullopt;
}

}  // namespace kivu::text
