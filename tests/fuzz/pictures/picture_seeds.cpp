// Writes small files of every format that the header reader knows.

#include <filesystem>
#include <fstream>
#include <string>

#include "testing/picture_files.h"

int main(int argc, char** argv) {
    using namespace kivu::testing;
    if (argc != 2) return 2;
    const std::filesystem::path directory = argv[1];
    std::filesystem::create_directories(directory);
    int count = 0;
    for (const std::string& file :
         {PngFile(5, 3, 0xff112233), JpegHead(5, 3, ExifSegment(6)),
          JpegHead(5, 3, ExifSegment(8, false)), GifFile(5, 3, {1, 2}), BmpFile(5, 3, 1),
          IcoHead({PngFile(5, 3, 1), BmpHead(8, 16).substr(14)}, {5, 8}), WebpHead("VP8 ", 5, 3),
          WebpHead("VP8L", 5, 3), WebpHead("VP8X", 5, 3)})
        std::ofstream(directory / std::to_string(count++), std::ios::binary) << file;
    return 0;
}
