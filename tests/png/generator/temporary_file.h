#pragma once

#include <filesystem>
#include <fstream>
#include <random>
#include <string>

#include "png/generator/png_recipe.h"

namespace kivu::png::testing {

// A file that is gone with the object.
class TemporaryFile {
 public:
    explicit TemporaryFile(const Bytes& content)
        : path(std::filesystem::temp_directory_path() /
               ("kivu_png_" + std::to_string(std::random_device{}()) + ".png")) {
        std::ofstream out(path, std::ios::binary);
        out.write(reinterpret_cast<const char*>(content.data()),
                  static_cast<std::streamsize>(content.size()));
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile() {
        std::error_code ignored;
        std::filesystem::remove(path, ignored);
    }

    const std::filesystem::path& Path() const { return path; }

 private:
    std::filesystem::path path;
};

}  // namespace kivu::png::testing
