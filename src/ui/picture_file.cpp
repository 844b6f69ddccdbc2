#include "ui/picture_file.h"

#include <algorithm>
#include <new>
#include <utility>

#include "png/load_png.h"
#include "ui/picture_surface.h"

namespace kivu::ui {

namespace {

constexpr std::size_t firstPart = std::size_t{64} << 10;
constexpr std::size_t largestFile = std::size_t{64} << 20;

png::ByteBuffer BufferOf(const std::string& bytes) {
    png::ByteBuffer buffer(bytes.size());
    std::copy(bytes.begin(), bytes.end(), buffer.Data());
    return buffer;
}

bool IsOpaque(const std::vector<std::uint32_t>& pixels) {
    return std::all_of(pixels.begin(), pixels.end(),
                       [](std::uint32_t pixel) { return pixel >> 24 == 0xff; });
}

LoadedPicture OwnPng(const std::string& bytes, forms::Color backColor,
                     const std::atomic<bool>& cancelled) {
    LoadedPicture loaded;
    PictureSurface surface(backColor);
    png::LoadPNG reader({[&](std::string_view) { loaded.treeFailed = true; },
                         {},
                         [&] { return cancelled.load(); }});
    reader.PicBox(&surface);
    reader.SetOwnBkgndColor(backColor, true);
    reader.BackgroundPicture(&surface);
    if (reader.OpenBytes(BufferOf(bytes)) || reader.ErrorNumber() != png::NoError) return loaded;
    loaded.bitmap = surface.Kept();
    if (!loaded.bitmap) return loaded;
    loaded.width = loaded.bitmap->width;
    loaded.height = loaded.bitmap->height;
    return loaded;
}

}  // namespace

PictureFile::PictureFile(const platform::FileSystem& files, const std::string& path)
    : rest(path.empty() ? nullptr : files.OpenFile(path)) {
    ReadTo(firstPart + 1);
}

// By way of a block of its own, so that the text grows by what has been read alone.
bool PictureFile::ReadTo(std::size_t length) {
    std::string block(firstPart, '\0');
    while (rest && bytes.size() < length) {
        const std::size_t count =
            rest->Read(block.data(), std::min(block.size(), length - bytes.size()));
        if (count == 0) rest.reset();
        bytes.append(block, 0, count);
    }
    return !rest;
}

std::optional<PictureHeader> PictureFile::SearchHeader() {
    auto header = Header();
    while (!header && rest && MayTellMore(bytes) && bytes.size() < largestFile) {
        ReadTo(bytes.size() * 2);
        header = Header();
    }
    return header;
}

bool PictureFile::ReadAll() {
    return ReadTo(largestFile + 1) && bytes.size() <= largestFile;
}

LoadedPicture LoadOwnPng(PictureFile& file, forms::Color backColor,
                         const std::atomic<bool>& cancelled) {
    try {
        if (!file.ReadAll()) return {};
        LoadedPicture loaded = OwnPng(file.Bytes(), backColor, cancelled);
        loaded.bitmap = Shrunk(std::move(loaded.bitmap), longestShownSide);
        return loaded;
    } catch (const std::bad_alloc&) {
        return {};
    }
}

LoadedPicture LoadByHost(PictureFile& file, platform::PictureDecoder& decoder,
                         const std::atomic<bool>& cancelled) {
    try {
        if (!file.ReadAll()) return {};
        const auto header = file.Header();
        if (!header) return {};
        auto decoded = decoder.Decode(file.Bytes(), longestShownSide, cancelled);
        if (!decoded || decoded->width <= 0 || decoded->height <= 0) return {};
        const bool whole = std::max(header->width, header->height) <= longestShownSide;
        const int width = whole ? decoded->width : header->width;
        const int height = whole ? decoded->height : header->height;
        const bool opaque = header->format == PictureFormat::jpeg || IsOpaque(decoded->pixels);
        return {std::make_shared<const forms::Bitmap>(forms::Bitmap{
                    decoded->width, decoded->height, std::move(decoded->pixels), opaque}),
                width, height, false};
    } catch (const std::bad_alloc&) {
        return {};
    }
}

}  // namespace kivu::ui
