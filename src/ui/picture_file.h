#pragma once

#include <atomic>
#include <cstddef>
#include <memory>
#include <optional>
#include <string>

#include "forms/types.h"
#include "platform/file_system.h"
#include "platform/picture_decoder.h"
#include "ui/picture_header.h"

namespace kivu::ui {

// A picture file that is being read: its beginning at once, the rest where there is time for it.
class PictureFile {
 public:
    // One that is not there, no regular file or not to be read is an empty one.
    PictureFile(const platform::FileSystem& files, const std::string& path);

    // All of it has been read.
    bool IsWhole() const { return !rest; }
    // What is there so far.
    const std::string& Bytes() const { return bytes; }
    std::optional<PictureHeader> Header() const { return ReadPictureHeader(bytes); }
    // Reads until the header is there, if it comes at all.
    std::optional<PictureHeader> SearchHeader();
    // False: it is larger than any picture file that is shown.
    bool ReadAll();

 private:
    bool ReadTo(std::size_t length);

    std::unique_ptr<platform::FileSystem::Reader> rest;
    std::string bytes;
};

// A file's pixels, at most so many on a side, and the size that it has by itself.
struct LoadedPicture {
    std::shared_ptr<const forms::Bitmap> bitmap;  // null: it cannot be shown
    int width = 0;
    int height = 0;
    bool treeFailed = false;  // the PNG reader has a message for the user
};

inline constexpr int longestShownSide = 4096;

// By the launcher's own PNG reader, on a control of that back colour.
LoadedPicture LoadOwnPng(PictureFile& file, forms::Color backColor,
                         const std::atomic<bool>& cancelled);

// By the host's decoder.
LoadedPicture LoadByHost(PictureFile& file, platform::PictureDecoder& decoder,
                         const std::atomic<bool>& cancelled);

}  // namespace kivu::ui
