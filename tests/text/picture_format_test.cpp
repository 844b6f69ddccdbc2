#include "text/picture_format.h"

#include <gtest/gtest.h>

namespace kivu::text {
namespace {

TEST(PictureFormat, IsToldByHowAFileBegins) {
    using namespace std::string_view_literals;
    EXPECT_EQ(PictureFormatOf("\x89PNG\r\n\x1a\n..."), PictureFormat::png);
    EXPECT_EQ(PictureFormatOf("\xff\xd8\xff\xe0"), PictureFormat::jpeg);
    EXPECT_EQ(PictureFormatOf("GIF87a"), PictureFormat::gif);
    EXPECT_EQ(PictureFormatOf("GIF89a"), PictureFormat::gif);
    EXPECT_EQ(PictureFormatOf("BM"), PictureFormat::bmp);
    EXPECT_EQ(PictureFormatOf("\0\0\1\0\1\0"sv), PictureFormat::ico);
    EXPECT_EQ(PictureFormatOf("RIFF\1\2\3\4WEBPVP8 "), PictureFormat::webp);
}

TEST(PictureFormat, IsNoneForAnythingElse) {
    using namespace std::string_view_literals;
    for (const std::string_view bytes :
         {""sv, "\x89PNG\r\n\x1a"sv, "\xff\xd8"sv, "GIF8"sv, "B"sv, "\0\0\2\0\1\0"sv, "\0\0\1"sv,
          "RIFF\1\2\3\4WAVE"sv, "RIFF\1\2\3\4WEB"sv, "<svg>"sv, "%PDF"sv, "II*\0"sv, "P6"sv})
        EXPECT_FALSE(PictureFormatOf(bytes)) << bytes;
}

}  // namespace
}  // namespace kivu::text
