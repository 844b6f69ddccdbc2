#include "png/generator/libpng_reader.h"

#include <algorithm>
#include <cstring>
#include <png.h>
#include <stdexcept>

namespace kivu::png::testing {
namespace {

struct Source {
    const Bytes& file;
    std::size_t at = 0;
};

void Read(png_structp png, png_bytep to, png_size_t count) {
    auto& source = *static_cast<Source*>(png_get_io_ptr(png));
    if (count > source.file.size() - source.at) throw std::runtime_error("end of file");
    std::memcpy(to, source.file.data() + source.at, count);
    source.at += count;
}

void Fail(png_structp, png_const_charp text) {
    throw std::runtime_error(text);
}
void Ignore(png_structp, png_const_charp) {
}

struct Reader {
    png_structp png = png_create_read_struct(PNG_LIBPNG_VER_STRING, nullptr, Fail, Ignore);
    png_infop info = png_create_info_struct(png);
    ~Reader() { png_destroy_read_struct(&png, &info, nullptr); }
};

Picture ReadPixels(Reader& reader) {
    png_read_info(reader.png, reader.info);
    png_set_expand(reader.png);
    png_set_strip_16(reader.png);
    png_set_gray_to_rgb(reader.png);
    png_set_bgr(reader.png);
    png_set_add_alpha(reader.png, 0xFF, PNG_FILLER_AFTER);
    png_set_interlace_handling(reader.png);
    png_read_update_info(reader.png, reader.info);
    Picture picture(static_cast<int>(png_get_image_width(reader.png, reader.info)),
                    static_cast<int>(png_get_image_height(reader.png, reader.info)));
    std::vector<png_bytep> rows;
    for (int y = 0; y < picture.Height(); ++y) {
        rows.push_back(reinterpret_cast<png_bytep>(picture.Row(y).data()));
    }
    png_read_image(reader.png, rows.data());
    png_read_end(reader.png, nullptr);
    return picture;
}

}  // namespace

std::optional<Picture> ReadWithLibpng(const Bytes& file) {
    Reader reader;
    Source source{file};
    png_set_read_fn(reader.png, &source, Read);
    try {
        return ReadPixels(reader);
    } catch (const std::runtime_error&) {
        return std::nullopt;
    }
}

}  // namespace kivu::png::testing
