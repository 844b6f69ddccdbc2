#include "libpng.h"

#include <cstdio>
#include <dlfcn.h>
#include <memory>
#include <stdexcept>

namespace kivu::bench {
namespace {

void Fail(png_structp, png_const_charp text) {
    throw std::runtime_error(text);
}

template <typename Function>
void Find(void* library, const char* name, Function& function) {
    function = reinterpret_cast<Function>(::dlsym(library, name));
    if (function == nullptr) throw std::runtime_error(::dlerror());
}

void AppendTo(png_structp png, png_bytep bytes, png_size_t count) {
    auto& file = *static_cast<Bytes*>(png_get_io_ptr(png));
    file.insert(file.end(), bytes, bytes + count);
}

int ColorTypeOf(const Drawing& drawing) {
    if (drawing.channels == 1) return PNG_COLOR_TYPE_PALETTE;
    return drawing.channels == 3 ? PNG_COLOR_TYPE_RGB : PNG_COLOR_TYPE_RGB_ALPHA;
}

}  // namespace

Libpng LinkedLibpng() {
    return {png_create_read_struct,
            png_create_info_struct,
            png_init_io,
            png_read_info,
            png_set_expand,
            png_set_strip_16,
            png_set_gray_to_rgb,
            png_set_bgr,
            png_set_add_alpha,
            png_set_interlace_handling,
            png_read_update_info,
            png_get_image_width,
            png_get_image_height,
            png_read_image,
            png_read_end,
            png_destroy_read_struct};
}

Libpng LoadLibpng(const char* library) {
    // Its calls to itself must not reach the linked one, whose names are the same.
    void* const handle = ::dlopen(library, RTLD_NOW | RTLD_LOCAL | RTLD_DEEPBIND);
    if (handle == nullptr) throw std::runtime_error(::dlerror());
    Libpng libpng{};
    Find(handle, "png_create_read_struct", libpng.createRead);
    Find(handle, "png_create_info_struct", libpng.createInfo);
    Find(handle, "png_init_io", libpng.initIo);
    Find(handle, "png_read_info", libpng.readInfo);
    Find(handle, "png_set_expand", libpng.setExpand);
    Find(handle, "png_set_strip_16", libpng.setStrip16);
    Find(handle, "png_set_gray_to_rgb", libpng.setGrayToRgb);
    Find(handle, "png_set_bgr", libpng.setBgr);
    Find(handle, "png_set_add_alpha", libpng.setAddAlpha);
    Find(handle, "png_set_interlace_handling", libpng.setInterlaceHandling);
    Find(handle, "png_read_update_info", libpng.readUpdateInfo);
    Find(handle, "png_get_image_width", libpng.width);
    Find(handle, "png_get_image_height", libpng.height);
    Find(handle, "png_read_image", libpng.readImage);
    Find(handle, "png_read_end", libpng.readEnd);
    Find(handle, "png_destroy_read_struct", libpng.destroyRead);
    if (libpng.readImage == LinkedLibpng().readImage) {
        throw std::runtime_error("there is only one libpng");
    }
    return libpng;
}

png::Picture ReadByLibpng(const Libpng& libpng, const std::filesystem::path& path) {
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "rb"),
                                                               std::fclose);
    if (!file) throw std::runtime_error("can't open the picture");
    png_structp png = libpng.createRead(PNG_LIBPNG_VER_STRING, nullptr, Fail, nullptr);
    png_infop info = libpng.createInfo(png);
    libpng.initIo(png, file.get());
    libpng.readInfo(png, info);
    libpng.setExpand(png);
    libpng.setStrip16(png);
    libpng.setGrayToRgb(png);
    libpng.setBgr(png);
    libpng.setAddAlpha(png, 0xFF, PNG_FILLER_AFTER);
    libpng.setInterlaceHandling(png);
    libpng.readUpdateInfo(png, info);
    png::Picture picture(static_cast<int>(libpng.width(png, info)),
                         static_cast<int>(libpng.height(png, info)));
    std::vector<png_bytep> rows;
    for (int y = 0; y < picture.Height(); ++y) {
        rows.push_back(reinterpret_cast<png_bytep>(picture.Row(y).data()));
    }
    libpng.readImage(png, rows.data());
    libpng.readEnd(png, nullptr);
    libpng.destroyRead(&png, &info, nullptr);
    return picture;
}

Bytes WriteByLibpng(const Drawing& drawing, bool interlaced) {
    Bytes file;
    png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, Fail, nullptr);
    png_infop info = png_create_info_struct(png);
    png_set_write_fn(png, &file, AppendTo, nullptr);
    png_set_IHDR(png, info, drawing.width, drawing.height, 8, ColorTypeOf(drawing),
                 interlaced ? PNG_INTERLACE_ADAM7 : PNG_INTERLACE_NONE,
                 PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    std::vector<png_color> palette;
    for (unsigned i = 0; i < 64; ++i) {
        palette.push_back({static_cast<png_byte>(i * 4), static_cast<png_byte>(i * 3),
                           static_cast<png_byte>(255 - i)});
    }
    if (drawing.channels == 1) {
        png_set_PLTE(png, info, palette.data(), static_cast<int>(palette.size()));
    }
    png_write_info(png, info);
    std::vector<png_bytep> rows;
    for (std::size_t y = 0; y < drawing.height; ++y) {
        rows.push_back(
            const_cast<png_bytep>(&drawing.samples[y * drawing.width * drawing.channels]));
    }
    png_write_image(png, rows.data());
    png_write_end(png, info);
    png_destroy_write_struct(&png, &info);
    return file;
}

}  // namespace kivu::bench
