#pragma once

#include "platform/picture_decoder.h"

namespace kivu::hosts {

class QtPictureDecoder : public platform::PictureDecoder {
 public:
    std::optional<platform::DecodedPicture> Decode(std::string_view bytes, int largestSide,
                                                   const std::atomic<bool>& cancelled) override;
};

}  // namespace kivu::hosts
