#include "ui/jpeg_header.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace kivu::ui {

namespace {

// The second bytes of markers.
constexpr std::uint32_t firstFrame = 0xc0, lastFrame = 0xcf, huffmanTables = 0xc4,
                        extensions = 0xc8, arithmeticTables = 0xcc, firstRestart = 0xd0,
                        startOfImage = 0xd8, endOfImage = 0xd9, startOfScan = 0xda,
                        application1 = 0xe1, temporary = 0x01;

bool IsFrame(std::uint32_t marker) {
    return marker >= firstFrame && marker <= lastFrame && marker != huffmanTables &&
           marker != extensions && marker != arithmeticTables;
}

// In any number of passes over the whole picture: of each four frames the one that ends in these
// bits.
bool IsProgressive(std::uint32_t frame) {
    return (frame & 3) == 2;
}

// Followed by no length and no content.
bool StandsAlone(std::uint32_t marker) {
    return marker == 0 || marker == temporary || (marker >= firstRestart && marker <= startOfImage);
}

// The camera turned by a quarter, mirrored or not: the values 5 to 8 of the tag that tells the side
// of the first row. The tags are laid out as in a TIFF file.
bool LiesOnItsSide(const ByteView& tiff) {
    const bool little = tiff.StartsWith(std::string_view("II*\0", 4));
    if (!little && !tiff.StartsWith(std::string_view("MM\0*", 4))) return false;
    const auto two = [&](std::size_t at) { return little ? tiff.Little16(at) : tiff.Big16(at); };
    const auto four = [&](std::size_t at) { return little ? tiff.Little32(at) : tiff.Big32(at); };
    constexpr std::uint32_t orientation = 0x0112, shortNumber = 3;
    constexpr std::size_t tagBytes = 12;
    const std::size_t tags = four(4);
    if (tags >= tiff.Size()) return false;
    const std::size_t count = std::min<std::size_t>(two(tags), (tiff.Size() - tags) / tagBytes);
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t at = tags + 2 + i * tagBytes;
        if (two(at) != orientation || two(at + 2) != shortNumber) continue;
        const std::uint32_t value = two(at + 8);
        return value >= 5 && value <= 8;
    }
    return false;
}

}  // namespace

std::optional<PictureSides> JpegSides(const ByteView& file) {
    constexpr std::string_view exif("Exif\0\0", 6);
    bool onItsSide = false, exifSeen = false;
    std::size_t at = 2;
    while (at < file.Size()) {
        // Between segments stands nothing, or rubbish that readers pass over; 0xff may be repeated.
        if (file.Byte(at) != 0xff || file.Byte(at + 1) == 0xff) {
            ++at;
            continue;
        }
        const std::uint32_t marker = file.Byte(at + 1);
        at += 2;
        if (StandsAlone(marker)) continue;
        const std::uint32_t length = file.Big16(at);
        if (marker == endOfImage || marker == startOfScan || length < 2) return std::nullopt;
        if (IsFrame(marker)) {
            PictureSides sides{file.Big16(at + 5), file.Big16(at + 3), IsProgressive(marker)};
            if (onItsSide) std::swap(sides.width, sides.height);
            return sides;
        }
        const ByteView content = file.From(at + 2, length - 2);
        if (marker == application1 && !exifSeen && content.StartsWith(exif)) {
            exifSeen = true;
            onItsSide = LiesOnItsSide(content.From(exif.size()));
        }
        at += length;
    }
    return std::nullopt;
}

// Within the pixels 0xff is followed by 0 or a restart.
bool HasManyScans(std::string_view jpeg) {
    constexpr std::string_view scan = "\xff\xda";
    constexpr int most = 8;
    int count = 0;
    for (std::size_t at = jpeg.find(scan); at != std::string_view::npos && count <= most;
         at = jpeg.find(scan, at + scan.size()))
        ++count;
    return count > most;
}

}  // namespace kivu::ui
