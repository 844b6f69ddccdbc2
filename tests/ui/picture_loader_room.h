#pragma once

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

#include "forms/form.h"
#include "testing/memory_file_system.h"
#include "testing/picture_files.h"
#include "testing/scripted_host.h"
#include "ui/picture_header.h"
#include "ui/picture_loader.h"

namespace kivu::ui {

using namespace kivu::testing;

// Beyond what is read and decoded at once.
inline std::string LargePng(std::uint32_t color) {
    return PngFile(200, 100, color);
}

// A loader with one target, on a disk in memory.
struct PictureLoaderRoom : ::testing::Test {
    PictureLoaderRoom() {
        pictures.sizeOf =
            [this](std::string_view bytes) -> std::optional<platform::DecodedPicture> {
            const auto header = ReadPictureHeader(bytes);
            if (!header || undecodable) return std::nullopt;
            return platform::DecodedPicture{header->width, header->height, {}};
        };
        target.Move(30, 45, 600, 600);
    }

    void Load(const std::string& path) {
        loader->Load(path, target, [this](bool shown) { told.push_back(shown); });
    }
    std::string ShownSource() const { return target.GetPicture().source; }
    // 0xRRGGBB of the first pixel, -1 for none.
    int FirstPixel() const {
        const auto& pixels = target.GetPicture().pixels;
        return pixels ? static_cast<int>(pixels->pixels.at(0) & 0xffffff) : -1;
    }

    MemoryFileSystem files;
    ScriptedPictures pictures;
    ScriptedBackground background;
    ScriptedDialogs dialogs;
    core::ProgramState program;
    forms::Form form{"Form1"};
    forms::PictureBox target{&form, "GamePicture"};
    std::unique_ptr<PictureLoader> loader = std::make_unique<PictureLoader>(
        program, PictureLoader::Services{files, pictures, background, dialogs});
    std::vector<bool> told;
    bool undecodable = false;
};

}  // namespace kivu::ui
