#include <algorithm>
#include <cmath>

#include "png/load_png.h"
#include "png/text_widening.h"

namespace kivu::png {
namespace {

constexpr std::size_t headerLength = 13;
constexpr std::size_t timeLength = 7;

// What counts of a table; a file can claim any length.
constexpr std::size_t longestPalette = 3 * 256;
constexpr std::size_t longestTransparency = 256;

// A file can claim any amount of text that nobody asked for.
constexpr std::size_t longestText = std::size_t{16} << 20;

std::uint32_t ColorNumber(std::uint32_t red, std::uint32_t green, std::uint32_t blue) {
    return red | green << 8 | blue << 16;
}

void KeepUpTo(std::size_t longest, std::span<const std::uint8_t> payload,
              std::vector<std::uint8_t>& kept) {
    const auto counting = payload.first(std::min(longest, payload.size()));
    kept.assign(counting.begin(), counting.end());
}

// At least two digits.
std::string TwoDigits(int number) {
    return (number < 10 ? "0" : "") + std::to_string(number);
}

}  // namespace

// Every other name is passed over, and the order of the chunks doesn't matter.
void LoadPNG::KeepChunk(const Chunk& chunk) {
    const std::span<const std::uint8_t> payload = chunk.payload;
    if (chunk.name == "IHDR") {
        KeepHeader(payload);
    } else if (chunk.name == "PLTE") {
        KeepUpTo(longestPalette, payload, palette);
    } else if (chunk.name == "bKGD") {
        KeepBackground(payload);
    } else if (chunk.name == "gAMA") {
        if (payload.size() >= 4) gamma = NetworkLong(payload.data());
    } else if (chunk.name == "tEXt") {
        // An empty one repeats what came before it.
        AppendText(text, chunk.lastPayload);
    } else if (chunk.name == "zTXt") {
        KeepCompressedText(payload);
    } else if (chunk.name == "tIME") {
        KeepTime(payload);
    } else if (chunk.name == "tRNS") {
        haveTransparence = true;
        KeepUpTo(longestTransparency, payload, transparency);
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
    backgroundColor = WorkOutBackground(payload);
    hasBackground = true;
}

// A payload of any other length than that of its kind gives black.
std::uint32_t LoadPNG::WorkOutBackground(std::span<const std::uint8_t> background) const {
    switch (header.colorType) {
        case ColorTypes::Palette: {
            if (background.size() != 1 || background[0] >= palette.size() / 3) return 0;
            const std::uint8_t* entry = &palette[std::size_t{background[0]} * 3];
            return ColorNumber(entry[0], entry[1], entry[2]);
        }
        case ColorTypes::Rgb:
        case ColorTypes::Rgba:
            if (background.size() != 6) return 0;
            return ColorNumber(BackgroundChannel(NetworkShort(&background[0])),
                               BackgroundChannel(NetworkShort(&background[2])),
                               BackgroundChannel(NetworkShort(&background[4])));
        case ColorTypes::Grey:
        case ColorTypes::GreyAlpha:
            return background.size() == 2 ? BackgroundGrey(NetworkShort(background.data())) : 0;
        default:
            return 0;
    }
}

// A 16-bit sample of the background as a channel from 0 to 255.
std::uint32_t LoadPNG::BackgroundChannel(std::uint16_t sample) const {
    if (header.bitDepth == 0) return 0;
    const double last = std::ldexp(1.0, header.bitDepth) - 1;
    const double channel = sample / last * 255;
    return static_cast<std::uint32_t>(std::lround(std::min(channel, 255.0)));
}

// The colour that the grey table of the depth has for the sample.
std::uint32_t LoadPNG::BackgroundGrey(std::uint32_t sample) const {
    const unsigned depth = header.bitDepth;
    std::uint32_t grey = 0;
    if (depth == 16) {
        grey = sample >> 8;
    } else if ((depth == 1 || depth == 2 || depth == 4 || depth == 8) && sample >> depth == 0) {
        grey = sample * 255 / ((1U << depth) - 1);
    }
    return ColorNumber(grey, grey, grey);
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
    AppendText(compressedText, payload.first(keywordLength));
    AppendText(compressedText, payload.subspan(restStart));
}

void LoadPNG::AppendText(std::string& to, std::span<const std::uint8_t> bytes) const {
    // Full, but for a character that may not have fitted: no work any more for what comes.
    constexpr std::size_t longestCharacter = 4;
    if (to.size() + longestCharacter > longestText) return;
    bytes = bytes.first(std::min(bytes.size(), longestText));
    const std::string_view raw(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    std::string wide = hooks.widenText ? hooks.widenText(raw) : WidenText(raw);
    wide += '\0';
    AppendCapped(to, wide, longestText);
}

}  // namespace kivu::png
