#include <algorithm>
#include <cmath>

#include "png/load_png.h"
#include "png/text_widening.h"

namespace kivu::png {
namespace {

constexpr std::size_t headerLength = 13;
constexpr std::size_t timeLength = 7;

// A file can claim any amount of text that nobody asked for.
constexpr std::size_t longestText = std::size_t{16} << 20;

std::uint32_t ColorNumber(std::uint32_t red, std::uint32_t green, std::uint32_t blue) {
    return red | green << 8 | blue << 16;
}

std::string TwoDigits(int number) {
    return {static_cast<char>('0' + number / 10 % 10), static_cast<char>('0' + number % 10)};
}

}  // namespace

// Every other name is passed over, and the order of the chunks doesn't matter.
void LoadPNG::KeepChunk(const Chunk& chunk) {
    const std::span<const std::uint8_t> payload = chunk.payload;
    if (chunk.name == "IHDR") {
        KeepHeader(payload);
    } else if (chunk.name == "PLTE") {
        palette.assign(payload.begin(), payload.end());
    } else if (chunk.name == "bKGD") {
        KeepBackground(payload);
    } else if (chunk.name == "gAMA") {
        if (payload.size() >= 4) gamma = NetworkLong(payload.data());
    } else if (chunk.name == "tEXt") {
        // An empty one repeats what came before it.
        AppendCapped(text, Widen(chunk.lastPayload).append(1, '\0'), longestText);
    } else if (chunk.name == "zTXt") {
        KeepCompressedText(payload);
    } else if (chunk.name == "tIME") {
        KeepTime(payload);
    } else if (chunk.name == "tRNS") {
        haveTransparence = true;
        transparency.assign(payload.begin(), payload.end());
    }
}

void LoadPNG::KeepHeader(std::span<const std::uint8_t> payload) {
    if (payload.size() < headerLength) return;
    header.width = NetworkLong(payload.data());
    header.height = NetworkLong(payload.data() + 4);
    header.bitDepth = payload[8];
    header.colorType = payload[9];
    header.compression = payload[10];
    header.filter = payload[11];
    header.interlacing = payload[12];
    headerSeen = true;
}

void LoadPNG::KeepBackground(std::span<const std::uint8_t> payload) {
    background.assign(payload.begin(), payload.end());
    backgroundColor = WorkOutBackground();
    hasBackground = true;
}

std::uint32_t LoadPNG::WorkOutBackground() {
    switch (header.colorType) {
        case ColorTypes::Palette: {
            if (background.size() != 1 || background[0] >= palette.size() / 3) return 0;
            const std::uint8_t* entry = &palette[std::size_t{background[0]} * 3];
            return ColorNumber(entry[0], entry[1], entry[2]);
        }
        case ColorTypes::Rgb:
        case ColorTypes::Rgba:
            if (background.size() != 6) return 0;
            return ColorNumber(BackgroundChannel(0), BackgroundChannel(1), BackgroundChannel(2));
        case ColorTypes::Grey:
        case ColorTypes::GreyAlpha:
            return background.size() == 2 ? BackgroundGrey() : 0;
        default:
            return 0;
    }
}

// A 16-bit sample of the background as a channel from 0 to 255.
std::uint32_t LoadPNG::BackgroundChannel(std::size_t index) const {
    if (header.bitDepth == 0) return 0;
    const double last = std::ldexp(1.0, header.bitDepth) - 1;
    const double channel = NetworkShort(&background[index * 2]) / last * 255;
    return static_cast<std::uint32_t>(std::lround(std::min(channel, 255.0)));
}

std::uint32_t LoadPNG::BackgroundGrey() {
    const bool deep = header.bitDepth == 16;
    const std::vector<std::uint8_t> colors = InitColorTable_Grey(deep ? 8 : header.bitDepth);
    const std::size_t sample = NetworkShort(background.data());
    const std::size_t entry = (deep ? sample >> 8 : sample) * 3;
    return entry < colors.size() ? ColorNumber(colors[entry], colors[entry + 1], colors[entry + 2])
                                 : 0;
}

void LoadPNG::KeepTime(std::span<const std::uint8_t> payload) {
    if (payload.size() < timeLength) return;
    time = TwoDigits(payload[3]) + '.' + TwoDigits(payload[2]) + '.' +
           std::to_string(NetworkShort(payload.data())) + ' ' + TwoDigits(payload[4]) + ':' +
           TwoDigits(payload[5]) + ':' + TwoDigits(payload[6]);
}

// Behind the keyword come a zero, the method, the two bytes of the zlib header and one more that
// are left out; the rest stays compressed.
void LoadPNG::KeepCompressedText(std::span<const std::uint8_t> payload) {
    constexpr std::size_t passedOver = 5;
    const auto keywordEnd = std::find(payload.begin(), payload.end(), std::uint8_t{0});
    const auto keywordLength = static_cast<std::size_t>(keywordEnd - payload.begin());
    const std::size_t restStart = std::min(keywordLength + passedOver, payload.size());
    AppendCapped(compressedText, Widen(payload.first(keywordLength)).append(1, '\0'), longestText);
    AppendCapped(compressedText, Widen(payload.subspan(restStart)).append(1, '\0'), longestText);
}

std::string LoadPNG::Widen(std::span<const std::uint8_t> bytes) const {
    const std::string_view raw(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    return hooks.widenText ? hooks.widenText(raw) : WidenText(raw);
}

}  // namespace kivu::png
