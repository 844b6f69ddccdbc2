#pragma once

#include <filesystem>
#include <png.h>

#include "pictures.h"
#include "png/picture.h"

namespace kivu::bench {

// The calls that reading takes, of one build of libpng; there may be more than one in the program.
struct Libpng {
    decltype(&png_create_read_struct) createRead;
    decltype(&png_create_info_struct) createInfo;
    decltype(&png_init_io) initIo;
    decltype(&png_read_info) readInfo;
    decltype(&png_set_expand) setExpand;
    decltype(&png_set_strip_16) setStrip16;
    decltype(&png_set_gray_to_rgb) setGrayToRgb;
    decltype(&png_set_bgr) setBgr;
    decltype(&png_set_add_alpha) setAddAlpha;
    decltype(&png_set_interlace_handling) setInterlaceHandling;
    decltype(&png_read_update_info) readUpdateInfo;
    decltype(&png_get_image_width) width;
    decltype(&png_get_image_height) height;
    decltype(&png_read_image) readImage;
    decltype(&png_read_end) readEnd;
    decltype(&png_destroy_read_struct) destroyRead;
};

// The one that the program is linked with.
Libpng LinkedLibpng();
// Another build, from its shared library, which stays loaded. Throws std::runtime_error.
Libpng LoadLibpng(const char* library);

// The picture with its alpha as it is, blue in the lowest byte. Throws std::runtime_error.
png::Picture ReadByLibpng(const Libpng& libpng, const std::filesystem::path& file);

// A PNG file as libpng writes it by itself, its filters chosen row by row.
Bytes WriteByLibpng(const Drawing& drawing, bool interlaced);

}  // namespace kivu::bench
