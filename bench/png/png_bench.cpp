// The PNG reader against libpng, from a file to pixels on a control, and its inflate against zlib
// and libdeflate, from the packed rows to the rows. The other side of a picture with alpha only
// reads it, while the reader blends it with a background as well.

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <libdeflate.h>
#include <memory>
#include <optional>
#include <png.h>
#include <stdexcept>
#include <zlib.h>

#include "png/drawing_target.h"
#include "png/generator/png_recipe.h"
#include "png/inflate.h"
#include "png/load_png.h"
#include "ratio/ratio.h"

namespace {

using kivu::bench::Ratio;
using kivu::png::testing::Bytes;
using kivu::png::testing::Content;
using kivu::png::testing::PngRecipe;

constexpr double decodeGoal = 0.8;
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

void DecodeOurs(const Sample& sample) {
    KeepingTarget target;
    kivu::png::LoadPNG reader;
    reader.PicBox(&target);
    reader.SetOwnBkgndColor(0xBC5200, true);
    if (reader.OpenPNG(sample.file) || !target.painted) throw std::runtime_error("not drawn");
}

void FailLibpng(png_structp, png_const_charp text) {
    throw std::runtime_error(text);
}

void DecodeLibpng(const Sample& sample) {
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(
        std::fopen(sample.file.string().c_str(), "rb"), std::fclose);
    if (!file) throw std::runtime_error("can't open the picture");
    png_structp png = png_create_read_struct(PNG_LIBPNG_VER_STRING, nullptr, FailLibpng, nullptr);
    png_infop info = png_create_info_struct(png);
    png_init_io(png, file.get());
    png_read_info(png, info);
    png_set_expand(png);
    png_set_strip_16(png);
    png_set_gray_to_rgb(png);
    png_set_bgr(png);
    png_set_add_alpha(png, 0xFF, PNG_FILLER_AFTER);
    png_set_interlace_handling(png);
    png_read_update_info(png, info);
    kivu::png::Picture picture(static_cast<int>(png_get_image_width(png, info)),
                               static_cast<int>(png_get_image_height(png, info)));
    std::vector<png_bytep> rows;
    for (int y = 0; y < picture.Height(); ++y) {
        rows.push_back(reinterpret_cast<png_bytep>(picture.Row(y).data()));
    }
    png_read_image(png, rows.data());
    png_read_end(png, nullptr);
    png_destroy_read_struct(&png, &info, nullptr);
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

Sample MakeSample(const std::filesystem::path& directory, const std::string& name, PngRecipe recipe,
                  bool large) {
    recipe.width = large ? 1920 : 320;
    recipe.height = large ? 1080 : 256;
    recipe.idatBytes = 8192;
    Sample sample;
    sample.name = name + (large ? ", 1920x1080" : ", 320x256");
    sample.file = directory / (name + (large ? "_large.png" : "_small.png"));
    sample.rows = MakeRows(recipe);
    const Bytes packed =
        kivu::png::testing::ZlibCompress(sample.rows, recipe.level, recipe.strategy);
    // The deflated data between zlib's header and check sum.
    sample.packed.assign(packed.begin() + 2, packed.end() - 4);
    sample.calls = static_cast<int>(std::clamp<std::size_t>(600000 / packed.size(), 1, 64));
    const Bytes file = WritePng(recipe);
    std::ofstream(sample.file, std::ios::binary)
        .write(reinterpret_cast<const char*>(file.data()),
               static_cast<std::streamsize>(file.size()));
    return sample;
}

std::vector<Sample> MakeSamples(const std::filesystem::path& directory) {
    PngRecipe photo;
    photo.colorType = 2;
    photo.content = Content::Photo;
    photo.filter = kivu::png::testing::adaptiveFilters;
    PngRecipe screenshot = photo;
    screenshot.content = Content::Screenshot;
    PngRecipe palette = photo;
    palette.colorType = 3;
    palette.filter = 0;
    palette.paletteEntries = 64;
    PngRecipe alpha = photo;
    alpha.colorType = 6;
    PngRecipe interlaced = photo;
    interlaced.interlaced = true;

    std::vector<Sample> samples;
    for (const bool large : {false, true}) {
        samples.push_back(MakeSample(directory, "photo", photo, large));
        samples.push_back(MakeSample(directory, "screenshot", screenshot, large));
        samples.push_back(MakeSample(directory, "palette", palette, large));
        samples.push_back(MakeSample(directory, "alpha", alpha, large));
        samples.push_back(MakeSample(directory, "interlaced", interlaced, large));
    }
    return samples;
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

    std::vector<Ratio> ratios;
    for (const Sample& sample : samples) {
        ratios.push_back({"PNG decode against libpng: " + sample.name, decodeGoal,
                          Timed(sample, [&] { DecodeOurs(sample); }),
                          Timed(sample, [&] { DecodeLibpng(sample); }), repetitions});
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
