#pragma once

#include <chrono>

#include "platform/picture_decoder.h"

namespace kivu::hosts {

// By the toolkit's readers of these formats and no others: it may have some for documents, too,
// which do much more than to hold pixels.
class QtPictureDecoder : public platform::PictureDecoder {
 public:
    explicit QtPictureDecoder(std::chrono::milliseconds longest = std::chrono::seconds(2));
    std::optional<platform::DecodedPicture> Decode(std::string_view bytes, int largestSide,
                                                   const std::atomic<bool>& cancelled) override;

 private:
    std::chrono::milliseconds longest;
};

}  // namespace kivu::hosts
