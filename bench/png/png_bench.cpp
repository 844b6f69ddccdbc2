// The PNG reader against libpng, from a file to pixels on a control, and its inflate against zlib
// and libdeflate, from the packed rows to the rows. The other side of a picture with alpha only
// reads it, while the reader blends it with a background as well. Two builds of libpng are asked:
// the one of the system, and, if KIVU_SSE2_LIBPNG names its library, one with SSE2 filters.

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <libdeflate.h>
#include <optional>
#include <stdexcept>
#include <zlib.h>

#include "libpng.h"
#include "pictures.h"
#include "png/bytes.h"
#include "png/drawing_target.h"
#include "png/inflate.h"
#include "png/load_png.h"
#include "ratio/ratio.h"

namespace {

using kivu::bench::Bytes;
using kivu::bench::Drawing;
using kivu::bench::Libpng;
using kivu::bench::Ratio;

constexpr double libpngGoal = 0.55;
constexpr double sse2LibpngGoal = 0.8;
constexpr double zlibGoal = 0.7;
constexpr double libdeflateGoal = 1.2;

// Calls are short, so that there may be many; the least of them meets a quiet moment.
constexpr int repetitions = 60;

// A control that keeps what is painted, as the window's does.
class KeepingTarget : public kivu::png::DrawingTarget {
 public:
    int TwipsPerPixel() const override { return 15; }
    kivu::png::Extent OuterSize() const override { return size; }
    void SetOuterSize(kivu::png::Extent twips) override { size = twips; }
    kivu::png::Extent InnerSize() const override { return size; }
    std::uint32_t BackColor() const override { return 0; }
    void Clear() override {}
    void Paint(kivu::png::Picture picture, int, int, kivu::png::Extent) override {
        painted = std::move(picture);
    }
    void ReadPixels(int, int, std::span<kivu::png::Pixel>) const override {}
    void KeepDrawing() override {}

    kivu::png::Extent size;
    std::optional<kivu::png::Picture> painted;
};

// One picture as a file and as the deflated and the plain rows.
struct Sample {
    std::string name;
    std::filesystem::path file;
    Bytes packed;
    Bytes rows;
    // Calls that are timed together, so that the clock's own time doesn't count.
    int calls;
};

kivu::png::Picture DecodeOurs(const Sample& sample) {
    KeepingTarget target;
    kivu::png::LoadPNG reader;
    reader.PicBox(&target);
    reader.SetOwnBkgndColor(0xBC5200, true);
    if (reader.OpenPNG(sample.file) || !target.painted) throw std::runtime_error("not drawn");
    return std::move(*target.painted);
}

void InflateOurs(kivu::png::Inflater& inflater, const Sample& sample, Bytes& out) {
    if (inflater.Inflate(sample.packed, out).written != sample.rows.size()) {
        throw std::runtime_error("not inflated");
    }
}

void InflateZlib(const Sample& sample, Bytes& out) {
    z_stream stream{};
    stream.next_in = const_cast<Bytef*>(sample.packed.data());
    stream.avail_in = static_cast<uInt>(sample.packed.size());
    stream.next_out = out.data();
    stream.avail_out = static_cast<uInt>(out.size());
    // A negative window leaves out header and check sum, as ours does.
    inflateInit2(&stream, -15);
    const int result = inflate(&stream, Z_FINISH);
    inflateEnd(&stream);
    if (result != Z_STREAM_END) throw std::runtime_error("zlib");
}

void InflateLibdeflate(libdeflate_decompressor* decompressor, const Sample& sample, Bytes& out) {
    std::size_t written = 0;
    if (libdeflate_deflate_decompress(decompressor, sample.packed.data(), sample.packed.size(),
                                      out.data(), out.size(), &written) != LIBDEFLATE_SUCCESS) {
        throw std::runtime_error("libdeflate");
    }
}

// Processor time, since all of it is work of this one thread: what others do meanwhile on the
// machine does not count.
Ratio::Run Timed(const Sample& sample, const std::function<void()>& call) {
    return [&sample, call] {
        const std::clock_t start = std::clock();
        for (int i = 0; i < sample.calls; ++i) {
            call();
        }
        return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC / sample.calls;
    };
}

// The deflated data of all IDAT chunks, between zlib's header and check sum.
Bytes PackedRows(const Bytes& file) {
    Bytes packed;
    for (std::size_t at = 8; at + 12 <= file.size();) {
        const std::size_t length = kivu::png::NetworkLong(&file[at]);
        const auto payload = file.begin() + static_cast<std::ptrdiff_t>(at) + 8;
        if (std::equal(payload - 4, payload, "IDAT")) {
            packed.insert(packed.end(), payload, payload + static_cast<std::ptrdiff_t>(length));
        }
        at += length + 12;
    }
    return {packed.begin() + 2, packed.end() - 4};
}

Sample MakeSample(const std::filesystem::path& directory, const std::string& name,
                  const Drawing& drawing, bool interlaced) {
    Sample sample;
    sample.name =
        name + ", " + std::to_string(drawing.width) + "x" + std::to_string(drawing.height);
    sample.file = directory / (sample.name + ".png");
    const Bytes file = kivu::bench::WriteByLibpng(drawing, interlaced);
    std::ofstream(sample.file, std::ios::binary)
        .write(reinterpret_cast<const char*>(file.data()),
               static_cast<std::streamsize>(file.size()));
    sample.packed = PackedRows(file);
    // A filter byte for each row; the passes of an interlaced picture have up to twice as many.
    sample.rows.resize(drawing.samples.size() + 2 * std::size_t{drawing.height} + 7);
    kivu::png::Inflater inflater;
    sample.rows.resize(inflater.Inflate(sample.packed, sample.rows).written);
    sample.calls = static_cast<int>(std::clamp<std::size_t>(600000 / sample.packed.size(), 1, 64));
    return sample;
}

// How a picture is stored, which the time depends on.
void PrintFilters(const Sample& sample, const Drawing& drawing) {
    std::array<std::size_t, 5> rows{};
    const std::size_t rowBytes = std::size_t{drawing.width} * drawing.channels + 1;
    for (std::size_t at = 0; at < sample.rows.size(); at += rowBytes) {
        ++rows[std::min<std::size_t>(sample.rows[at], 4)];
    }
    std::printf("%s: %zu bytes; rows with no filter %zu, sub %zu, up %zu, average %zu, Paeth %zu\n",
                sample.name.c_str(), sample.packed.size(), rows[0], rows[1], rows[2], rows[3],
                rows[4]);
}

std::vector<Sample> MakeSamples(const std::filesystem::path& directory) {
    std::vector<Sample> samples;
    for (const auto& [width, height] : {std::pair{320U, 256U}, {1920U, 1080U}}) {
        const Drawing photo = kivu::bench::DrawPhoto(width, height);
        const std::pair<const char*, Drawing> drawings[] = {
            {"photo", photo},
            {"screenshot", kivu::bench::DrawScreenshot(width, height)},
            {"palette", kivu::bench::DrawIndexes(width, height)},
            {"art with alpha", kivu::bench::DrawArt(width, height)}};
        for (const auto& [name, drawing] : drawings) {
            samples.push_back(MakeSample(directory, name, drawing, false));
            PrintFilters(samples.back(), drawing);
        }
        samples.push_back(MakeSample(directory, "interlaced", photo, true));
    }
    return samples;
}

// What is measured must be right; pictures with alpha are blended on our side.
void CheckPixels(const Sample& sample, const Libpng& libpng) {
    const kivu::png::Picture ours = DecodeOurs(sample);
    const kivu::png::Picture theirs = ReadByLibpng(libpng, sample.file);
    for (int y = 0; y < ours.Height(); ++y) {
        for (int x = 0; x < ours.Width(); ++x) {
            const kivu::png::Pixel pixel = theirs.Row(y)[static_cast<std::size_t>(x)];
            const bool opaque = pixel >> 24 == 0xFF;
            if (opaque && ours.Row(y)[static_cast<std::size_t>(x)] != pixel) {
                throw std::runtime_error(sample.name + " is decoded wrongly");
            }
        }
    }
}

}  // namespace

int main(int argc, char** argv) {
    const std::filesystem::path directory =
        std::filesystem::temp_directory_path() / "kivu_bench_png";
    std::filesystem::create_directories(directory);
    const std::vector<Sample> samples = MakeSamples(directory);

    kivu::png::Inflater inflater;
    libdeflate_decompressor* const decompressor = libdeflate_alloc_decompressor();
    Bytes out;
    std::size_t longest = 0;
    for (const Sample& sample : samples) {
        longest = std::max(longest, sample.rows.size());
    }
    out.resize(longest + 100);

    const Libpng libpng = kivu::bench::LinkedLibpng();
    std::optional<Libpng> sse2Libpng;
    if (const char* library = std::getenv("KIVU_SSE2_LIBPNG"); library && *library) {
        sse2Libpng = kivu::bench::LoadLibpng(library);
    }
    std::vector<Ratio> ratios;
    for (const Sample& sample : samples) {
        CheckPixels(sample, libpng);
        const Ratio::Run decode = Timed(sample, [&] { DecodeOurs(sample); });
        ratios.push_back({"PNG decode against libpng: " + sample.name, libpngGoal, decode,
                          Timed(sample, [&] { ReadByLibpng(libpng, sample.file); }), repetitions});
        if (sse2Libpng) {
            CheckPixels(sample, *sse2Libpng);
            ratios.push_back({"against libpng with SSE2: " + sample.name, sse2LibpngGoal, decode,
                              Timed(sample, [&] { ReadByLibpng(*sse2Libpng, sample.file); }),
                              repetitions});
        }
        const Ratio::Run ours = Timed(sample, [&] { InflateOurs(inflater, sample, out); });
        ratios.push_back({"inflate against zlib: " + sample.name, zlibGoal, ours,
                          Timed(sample, [&] { InflateZlib(sample, out); }), repetitions});
        ratios.push_back({"inflate against libdeflate: " + sample.name, libdeflateGoal, ours,
                          Timed(sample, [&] { InflateLibdeflate(decompressor, sample, out); }),
                          repetitions});
    }
    const int code = kivu::bench::RunRatios(argc, argv, ratios);
    libdeflate_free_decompressor(decompressor);
    std::filesystem::remove_all(directory);
    return code;
}
