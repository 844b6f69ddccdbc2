// Any bytes as a PNG file: the reader must draw a picture of the size that it read, or nothing.

#include <algorithm>
#include <cstdint>
#include <cstdlib>

#include "png/generator/recording_target.h"
#include "png/load_png.h"

namespace {

// Larger pictures take long to fill and show nothing new.
constexpr std::uint64_t mostFuzzedPixels = 1 << 20;

bool AnyHeaderIsLarge(const std::uint8_t* data, std::size_t size) {
    const std::uint8_t* end = data + size;
    constexpr char name[] = "IHDR";
    for (const std::uint8_t* at = data;; ++at) {
        at = std::search(at, end, name, name + 4);
        if (end - at < 12) return false;
        const std::uint64_t width = kivu::png::NetworkLong(at + 4);
        const std::uint64_t height = kivu::png::NetworkLong(at + 8);
        if (width < 40000 && height < 40000 && width * height > mostFuzzedPixels) return true;
    }
}

void Check(bool right) {
    if (!right) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using kivu::png::LoadPNG;
    using kivu::png::testing::RecordingTarget;
    if (AnyHeaderIsLarge(data, size)) return -1;

    int messages = 0;
    RecordingTarget target;
    RecordingTarget wallpaper;
    wallpaper.surface.emplace(5, 4);
    for (int y = 0; y < 4; ++y) {
        std::ranges::fill(wallpaper.surface->Row(y), 0xFF00FF00U);
    }
    LoadPNG reader({[&](std::string_view) { ++messages; }, {}});
    reader.PicBox(&target);
    // The input's own length picks the options.
    reader.SetAlpha(size % 8 != 0);
    reader.SetTrans(size % 8 != 1);
    if (size % 2 == 0) reader.BackgroundPicture(&wallpaper);
    if (size % 16 == 4) reader.SetToBkgrnd(true, -3, 2);

    kivu::png::ByteBuffer file(size);
    std::copy_n(data, size, file.Data());
    reader.OpenBytes(std::move(file));

    Check(messages <= 1);
    Check(!target.painted || reader.ErrorNumber() == 0);
    Check(target.WasTouched() == target.painted.has_value());
    if (target.painted) {
        Check(static_cast<std::uint32_t>(target.painted->Width()) == reader.Width());
        Check(static_cast<std::uint32_t>(target.painted->Height()) == reader.Height());
        for (int y = 0; y < target.painted->Height(); ++y) {
            for (const kivu::png::Pixel pixel : target.painted->Row(y)) {
                Check(pixel >> 24 == 255);
            }
        }
    }
    return 0;
}
