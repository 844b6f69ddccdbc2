#include "png/generator/png_recipe.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <random>
#include <stdexcept>
#include <zlib.h>

namespace kivu::png::testing {

const std::vector<ColorKind> legalKinds = {{0, 1}, {0, 2},  {0, 4},  {0, 8}, {0, 16},
                                           {2, 8}, {2, 16}, {3, 1},  {3, 2}, {3, 4},
                                           {3, 8}, {4, 8},  {4, 16}, {6, 8}, {6, 16}};

const Bytes pngSignature = {137, 'P', 'N', 'G', 13, 10, 26, 10};

namespace {

using Random = std::mt19937;

void AppendLong(Bytes& to, std::uint32_t value) {
    for (int shift = 24; shift >= 0; shift -= 8) {
        to.push_back(static_cast<std::uint8_t>(value >> shift));
    }
}

void AppendShort(Bytes& to, unsigned value) {
    to.push_back(static_cast<std::uint8_t>(value >> 8));
    to.push_back(static_cast<std::uint8_t>(value));
}

// Samples of all pixels, row by row, channels side by side.
struct Samples {
    std::uint32_t width;
    unsigned channels;
    std::vector<std::uint16_t> values;

    std::uint16_t At(std::uint32_t x, std::uint32_t y, unsigned channel) const {
        return values[(std::size_t{y} * width + x) * channels + channel];
    }
};

// A value from 0 to 65535 for one sample.
unsigned PhotoSample(double x, double y, unsigned channel, Random& random) {
    const double wave = std::sin(x / 37 + channel) + std::cos(y / 53 - channel) +
                        std::sin((x + 2 * y) / 211) + 0.3 * std::sin(x * y / 9000);
    const double noise = static_cast<double>(random() % 5) + static_cast<double>(random() % 5);
    return static_cast<unsigned>(std::clamp((wave * 31 + 124 + noise) * 257, 0.0, 65535.0));
}

unsigned ScreenshotSample(std::uint32_t x, std::uint32_t y, unsigned channel, std::uint32_t seed) {
    constexpr unsigned shades[] = {0xF0F0, 0xFFFF, 0x2020, 0xD8D8, 0x8080};
    const std::uint32_t window = (x / 240 + y / 150 + seed) % 4;
    if (y % 150 < 2 || x % 240 < 2) return shades[4];
    if (y % 150 < 20) return channel == 2 ? 0xC0C0 : 0x3030;
    // Lines of letters, which repeat as letters do.
    const std::uint32_t cell = (x / 8 * 7 + y / 14 * 13) % 29;
    const bool ink =
        y % 14 < 9 && cell < 20 && ((cell * 2654435761U) >> ((x % 8) + (y % 9))) % 3 == 0;
    return ink ? shades[2] : shades[window == 3 ? 1 : window % 2];
}

Samples DrawSamples(const PngRecipe& recipe) {
    Random random(recipe.seed);
    Samples samples{recipe.width, ChannelsOf(recipe.colorType), {}};
    samples.values.reserve(std::size_t{recipe.width} * recipe.height * samples.channels);
    const unsigned mask = (1U << recipe.depth) - 1;
    const bool alphaKind = recipe.colorType == 4 || recipe.colorType == 6;
    for (std::uint32_t y = 0; y < recipe.height; ++y) {
        for (std::uint32_t x = 0; x < recipe.width; ++x) {
            for (unsigned channel = 0; channel < samples.channels; ++channel) {
                unsigned value = random() & 0xFFFF;
                if (recipe.content != Content::Noise && alphaKind &&
                    channel + 1 == samples.channels) {
                    // Opaque inside, clear outside, soft between.
                    const double edge =
                        std::min({x, y, recipe.width - 1 - x, recipe.height - 1 - y});
                    value = static_cast<unsigned>(std::min(edge * 1500, 65535.0));
                } else if (recipe.content == Content::Photo) {
                    value = PhotoSample(x, y, channel, random);
                } else if (recipe.content == Content::Screenshot) {
                    value = ScreenshotSample(x, y, channel, recipe.seed);
                }
                value = value >> (16 - recipe.depth) & mask;
                // An index must stay within the palette.
                if (recipe.colorType == 3) {
                    value = static_cast<unsigned>(value * recipe.paletteEntries >> recipe.depth);
                }
                samples.values.push_back(static_cast<std::uint16_t>(value));
            }
        }
    }
    return samples;
}

// Packs the pixels startX, startX + stepX, ... of row y.
Bytes PackRow(const PngRecipe& recipe, const Samples& samples, std::uint32_t y,
              std::uint32_t startX, std::uint32_t stepX) {
    Bytes row;
    unsigned held = 0;
    unsigned heldBits = 0;
    for (std::uint32_t x = startX; x < recipe.width; x += stepX) {
        for (unsigned channel = 0; channel < samples.channels; ++channel) {
            const unsigned value = samples.At(x, y, channel);
            if (recipe.depth == 16) {
                AppendShort(row, value);
                continue;
            }
            held = held << recipe.depth | value;
            heldBits += recipe.depth;
            if (heldBits == 8) {
                row.push_back(static_cast<std::uint8_t>(held));
                held = heldBits = 0;
            }
        }
    }
    if (heldBits != 0) row.push_back(static_cast<std::uint8_t>(held << (8 - heldBits)));
    return row;
}

int Predict(int filter, int left, int above, int aboveLeft) {
    switch (filter) {
        case 1:
            return left;
        case 2:
            return above;
        case 3:
            return (left + above) / 2;
        case 4: {
            const int p = left + above - aboveLeft;
            const int pa = std::abs(p - left);
            const int pb = std::abs(p - above);
            const int pc = std::abs(p - aboveLeft);
            if (pa <= pb && pa <= pc) return left;
            return pb <= pc ? above : aboveLeft;
        }
        default:
            return 0;
    }
}

Bytes FilterRow(int filter, const Bytes& row, const Bytes& above, std::size_t step) {
    Bytes filtered = {static_cast<std::uint8_t>(filter)};
    for (std::size_t i = 0; i < row.size(); ++i) {
        const int left = i >= step ? row[i - step] : 0;
        const int up = above.empty() ? 0 : above[i];
        const int upLeft = i >= step && !above.empty() ? above[i - step] : 0;
        filtered.push_back(static_cast<std::uint8_t>(row[i] - Predict(filter, left, up, upLeft)));
    }
    return filtered;
}

Bytes FilterAdaptively(const Bytes& row, const Bytes& above, std::size_t step) {
    Bytes best;
    long least = 0;
    for (int filter = 0; filter <= 4; ++filter) {
        Bytes filtered = FilterRow(filter, row, above, step);
        long sum = 0;
        for (std::size_t i = 1; i < filtered.size(); ++i) {
            sum += std::min<int>(filtered[i], 256 - filtered[i]);
        }
        if (best.empty() || sum < least) {
            least = sum;
            best = std::move(filtered);
        }
    }
    return best;
}

void AppendPass(Bytes& rows, const PngRecipe& recipe, const Samples& samples, Random& random,
                const std::uint32_t (&pass)[4]) {
    if (pass[0] >= recipe.width) return;
    const std::size_t step = std::max(1U, recipe.depth * ChannelsOf(recipe.colorType) / 8);
    Bytes above;
    for (std::uint32_t y = pass[1]; y < recipe.height; y += pass[3]) {
        const Bytes row = PackRow(recipe, samples, y, pass[0], pass[2]);
        if (recipe.filter == adaptiveFilters) {
            Append(rows, FilterAdaptively(row, above, step));
        } else {
            const int filter =
                recipe.filter == mixedFilters ? static_cast<int>(random() % 5) : recipe.filter;
            Append(rows, FilterRow(filter, row, above, step));
        }
        above = row;
    }
}

}  // namespace

unsigned ChannelsOf(std::uint8_t colorType) {
    constexpr unsigned channels[] = {1, 0, 3, 1, 2, 0, 4};
    return channels[colorType];
}

void Append(Bytes& to, const Bytes& more) {
    to.insert(to.end(), more.begin(), more.end());
}

Bytes BytesOf(std::string_view text) {
    return {text.begin(), text.end()};
}

Bytes SomeTransparency(const PngRecipe& recipe) {
    Bytes payload;
    if (recipe.colorType == 3) {
        for (std::size_t i = 0; i < (recipe.paletteEntries + 1) / 2; ++i) {
            payload.push_back(static_cast<std::uint8_t>(i * 85));
        }
        return payload;
    }
    // The first pixel's colour, so that the key hits at least once.
    const Samples samples = DrawSamples(recipe);
    for (unsigned channel = 0; channel < samples.channels; ++channel) {
        AppendShort(payload, samples.At(0, 0, channel));
    }
    return payload;
}

Bytes SomeBackground(const PngRecipe& recipe) {
    if (recipe.colorType == 3) return {static_cast<std::uint8_t>(recipe.paletteEntries / 2)};
    Bytes payload;
    const unsigned last = (1U << recipe.depth) - 1;
    const unsigned colors = recipe.colorType == 2 || recipe.colorType == 6 ? 3 : 1;
    for (unsigned i = 0; i < colors; ++i) {
        AppendShort(payload, last / (i + 1));
    }
    return payload;
}

Bytes MakeChunk(std::string_view name, const Bytes& payload) {
    Bytes chunk;
    AppendLong(chunk, static_cast<std::uint32_t>(payload.size()));
    Append(chunk, BytesOf(name));
    Append(chunk, payload);
    AppendLong(chunk, static_cast<std::uint32_t>(
                          crc32(0, chunk.data() + 4, static_cast<uInt>(chunk.size() - 4))));
    return chunk;
}

Bytes MakeHeader(std::uint32_t width, std::uint32_t height, std::uint8_t depth,
                 std::uint8_t colorType, std::uint8_t compression, std::uint8_t interlacing) {
    Bytes payload;
    AppendLong(payload, width);
    AppendLong(payload, height);
    Append(payload, {depth, colorType, compression, 0, interlacing});
    return MakeChunk("IHDR", payload);
}

Bytes MakeRows(const PngRecipe& recipe) {
    constexpr std::uint32_t whole[4] = {0, 0, 1, 1};
    constexpr std::uint32_t passes[7][4] = {{0, 0, 8, 8}, {4, 0, 8, 8}, {0, 4, 4, 8}, {2, 0, 4, 4},
                                            {0, 2, 2, 4}, {1, 0, 2, 2}, {0, 1, 1, 2}};
    const Samples samples = DrawSamples(recipe);
    Random random(recipe.seed + 1);
    Bytes rows;
    if (!recipe.interlaced) {
        AppendPass(rows, recipe, samples, random, whole);
        return rows;
    }
    for (const auto& pass : passes) {
        AppendPass(rows, recipe, samples, random, pass);
    }
    return rows;
}

Bytes MakePalette(const PngRecipe& recipe) {
    Random random(recipe.seed + 2);
    Bytes palette(recipe.paletteEntries * 3);
    std::generate(palette.begin(), palette.end(),
                  [&] { return static_cast<std::uint8_t>(random()); });
    return palette;
}

Bytes ZlibCompress(const Bytes& raw, int level, int strategy) {
    z_stream stream{};
    if (deflateInit2(&stream, level, Z_DEFLATED, 15, 8, strategy) != Z_OK) {
        throw std::runtime_error("deflateInit2");
    }
    Bytes packed(deflateBound(&stream, raw.size()));
    stream.next_in = const_cast<Bytef*>(raw.data());
    stream.avail_in = static_cast<uInt>(raw.size());
    stream.next_out = packed.data();
    stream.avail_out = static_cast<uInt>(packed.size());
    if (deflate(&stream, Z_FINISH) != Z_STREAM_END) throw std::runtime_error("deflate");
    packed.resize(stream.total_out);
    deflateEnd(&stream);
    return packed;
}

Bytes WritePng(const PngRecipe& recipe) {
    Bytes file = pngSignature;
    Append(file, MakeHeader(recipe.width, recipe.height, recipe.depth, recipe.colorType, 0,
                            recipe.interlaced ? 1 : 0));
    if (recipe.ancillary) {
        Append(file, MakeChunk("gAMA", {0, 0, 0xB1, 0x8F}));
        Append(file, MakeChunk("tEXt", BytesOf(std::string_view("Title\0A game", 12))));
    }
    if (recipe.colorType == 3) Append(file, MakeChunk("PLTE", MakePalette(recipe)));
    if (recipe.trns) Append(file, MakeChunk("tRNS", *recipe.trns));
    if (recipe.bkgd) Append(file, MakeChunk("bKGD", *recipe.bkgd));
    const Bytes packed = ZlibCompress(MakeRows(recipe), recipe.level, recipe.strategy);
    const std::size_t piece = recipe.idatBytes == 0 ? packed.size() : recipe.idatBytes;
    for (std::size_t at = 0; at < packed.size(); at += piece) {
        const std::size_t end = std::min(at + piece, packed.size());
        Append(file, MakeChunk("IDAT", Bytes(packed.begin() + static_cast<std::ptrdiff_t>(at),
                                             packed.begin() + static_cast<std::ptrdiff_t>(end))));
    }
    if (recipe.ancillary) {
        Bytes text = BytesOf(std::string_view("Comment\0\0", 9));
        Append(text, ZlibCompress(BytesOf("played through twice"), 6, 0));
        Append(file, MakeChunk("zTXt", text));
        Append(file, MakeChunk("tIME", {7, 0xEA, 11, 20, 18, 14, 5}));
    }
    Append(file, MakeChunk("IEND", {}));
    return file;
}

}  // namespace kivu::png::testing
