// Writes the first inputs of the fuzzers: small files of every kind, and their DEFLATE streams.

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

#include "png/generator/png_recipe.h"

namespace {

using kivu::png::testing::Bytes;
using kivu::png::testing::PngRecipe;

bool Write(const std::filesystem::path& file, const Bytes& bytes) {
    std::ofstream out(file, std::ios::binary);
    out.write(reinterpret_cast<const char*>(bytes.data()),
              static_cast<std::streamsize>(bytes.size()));
    return static_cast<bool>(out.flush());
}

PngRecipe Recipe(const kivu::png::testing::ColorKind& kind, bool interlaced, int variant) {
    PngRecipe recipe;
    recipe.colorType = kind.colorType;
    recipe.depth = kind.depth;
    recipe.interlaced = interlaced;
    recipe.width = 9 + static_cast<std::uint32_t>(variant) * 7;
    recipe.height = 12;
    recipe.filter = variant == 0 ? 0 : kivu::png::testing::mixedFilters;
    recipe.level = variant == 1 ? 0 : 9;
    recipe.strategy = variant == 2 ? 4 : 0;
    recipe.content = static_cast<kivu::png::testing::Content>(variant % 3);
    recipe.idatBytes = variant == 2 ? 60 : 0;
    recipe.paletteEntries = kind.depth < 8 ? std::size_t{1} << kind.depth : 20;
    recipe.ancillary = variant == 0;
    if (kind.colorType < 4 && variant != 1) recipe.trns = SomeTransparency(recipe);
    if (variant != 2) recipe.bkgd = SomeBackground(recipe);
    return recipe;
}

}  // namespace

int main(int count, char** arguments) {
    if (count != 2) {
        std::fputs("usage: kivu_png_seeds DIR\n", stderr);
        return 2;
    }
    const std::filesystem::path directory = arguments[1];
    std::filesystem::create_directories(directory / "png");
    std::filesystem::create_directories(directory / "inflate");
    bool good = true;
    for (const auto& kind : kivu::png::testing::legalKinds) {
        for (const bool interlaced : {false, true}) {
            for (int variant = 0; variant < 3; ++variant) {
                const PngRecipe recipe = Recipe(kind, interlaced, variant);
                const std::string name = std::to_string(kind.colorType) + "_" +
                                         std::to_string(kind.depth) + "_" +
                                         std::to_string(interlaced) + std::to_string(variant);
                good &= Write(directory / "png" / (name + ".png"), WritePng(recipe));
                const Bytes packed = kivu::png::testing::ZlibCompress(
                    MakeRows(recipe), recipe.level, recipe.strategy);
                Bytes stream(packed.begin() + 2, packed.end());
                kivu::png::testing::Append(stream, {0, 0x40});
                good &= Write(directory / "inflate" / name, stream);
            }
        }
    }
    return good ? 0 : 1;
}
