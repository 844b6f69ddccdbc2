#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// Picture files made by hand. Those that are called heads hold no pixels.
namespace kivu::testing {

inline std::string Little(std::uint32_t value, int bytes) {
    std::string text;
    for (int i = 0; i < bytes; ++i)
        text += static_cast<char>(value >> 8 * i & 0xff);
    return text;
}

inline std::string Big(std::uint32_t value, int bytes) {
    std::string text = Little(value, bytes);
    return {text.rbegin(), text.rend()};
}

inline std::uint32_t Crc32(std::string_view bytes) {
    std::uint32_t crc = 0xffffffffU;
    for (const char byte : bytes) {
        crc ^= static_cast<unsigned char>(byte);
        for (int bit = 0; bit < 8; ++bit)
            crc = crc & 1 ? crc >> 1 ^ 0xedb88320U : crc >> 1;
    }
    return ~crc;
}

inline std::string PngChunk(std::string_view name, std::string_view payload) {
    const std::string checked = std::string(name) + std::string(payload);
    return Big(static_cast<std::uint32_t>(payload.size()), 4) + checked + Big(Crc32(checked), 4);
}

inline std::string PngHead(std::uint32_t width, std::uint32_t height) {
    return "\x89PNG\r\n\x1a\n" +
           PngChunk("IHDR", Big(width, 4) + Big(height, 4) + std::string("\x8\x6\0\0\0", 5));
}

// Any bytes as the picture's compressed data.
inline std::string PngWith(std::uint32_t width, std::uint32_t height, std::string_view imageData) {
    return PngHead(width, height) + PngChunk("IDAT", imageData) + PngChunk("IEND", "");
}

// Of one colour, 0xAARRGGBB, not compressed.
inline std::string PngFile(std::uint32_t width, std::uint32_t height, std::uint32_t color) {
    const std::string pixel = Big(color << 8 | color >> 24, 4);
    std::string row(1, '\0');
    for (std::uint32_t x = 0; x < width; ++x)
        row += pixel;
    std::string rows;
    for (std::uint32_t y = 0; y < height; ++y)
        rows += row;
    std::string data("\x78\x01", 2);
    constexpr std::size_t most = 65535;
    for (std::size_t at = 0; at < rows.size(); at += most) {
        const std::string block = rows.substr(at, most);
        const auto length = static_cast<std::uint32_t>(block.size());
        data += at + most >= rows.size() ? '\1' : '\0';
        data += Little(length, 2) + Little(~length, 2) + block;
    }
    std::uint32_t a = 1, b = 0;  // Adler-32
    for (const char byte : rows) {
        a = (a + static_cast<unsigned char>(byte)) % 65521;
        b = (b + a) % 65521;
    }
    return PngWith(width, height, data + Big(b << 16 | a, 4));
}

// A dynamic block of which the trees make no sense.
inline std::string PngWithBadTree(std::uint32_t width, std::uint32_t height) {
    return PngWith(width, height, std::string("\x78\x01", 2) + std::string(40, '\xfd'));
}

inline std::string BmpHead(std::uint32_t width, std::uint32_t height) {
    return "BM" + Little(0, 4) + Little(0, 4) + Little(54, 4) + Little(40, 4) + Little(width, 4) +
           Little(height, 4) + Little(1, 2) + Little(24, 2) + std::string(24, '\0');
}

inline std::string BmpFile(std::uint32_t width, std::uint32_t height, std::uint32_t color) {
    std::string row;
    for (std::uint32_t x = 0; x < width; ++x)
        row += Little(color, 3);
    row.resize((row.size() + 3) / 4 * 4);
    std::string file = BmpHead(width, height);
    for (std::uint32_t y = 0; y < height; ++y)
        file += row;
    return file;
}

// From the file's end on: the largest of its pictures has 256 pixels on each side at most.
inline std::string IcoHead(const std::vector<std::string>& pictures,
                           const std::vector<std::uint32_t>& sides) {
    std::string head =
        Little(0, 2) + Little(1, 2) + Little(static_cast<std::uint32_t>(pictures.size()), 2);
    std::size_t at = 6 + 16 * pictures.size();
    std::string bytes;
    for (std::size_t i = 0; i < pictures.size(); ++i) {
        head += Little(sides[i], 1) + Little(sides[i], 1) + Little(0, 2) + Little(1, 2) +
                Little(32, 2) + Little(static_cast<std::uint32_t>(pictures[i].size()), 4) +
                Little(static_cast<std::uint32_t>(at), 4);
        at += pictures[i].size();
        bytes += pictures[i];
    }
    return head + bytes;
}

// Frames of one colour each, 0xRRGGBB.
inline std::string GifFile(std::uint32_t width, std::uint32_t height,
                           const std::vector<std::uint32_t>& colors) {
    std::string file = "GIF89a" + Little(width, 2) + Little(height, 2) + std::string("\xf0\0\0", 3);
    file += std::string(6, '\0');  // the common palette: black
    for (const std::uint32_t color : colors) {
        file += std::string("!\xf9\4\4\x0a\0\0\0", 8);  // a tenth of a second
        file += "," + Little(0, 4) + Little(width, 2) + Little(height, 2) + "\x80";
        file += Big(color, 3) + Big(color, 3) + "\2";
        // Codes of three bits: 4 clears the table before they get longer, 0 is a pixel, 5 the end.
        std::vector<unsigned> codes;
        for (std::uint32_t pixel = 0; pixel < width * height; ++pixel) {
            if (pixel % 2 == 0) codes.push_back(4);
            codes.push_back(0);
        }
        codes.push_back(5);
        std::string packed((codes.size() * 3 + 7) / 8, '\0');
        for (std::size_t bit = 0; bit < codes.size() * 3; ++bit) {
            const unsigned set = codes[bit / 3] >> bit % 3 & 1U;
            packed[bit / 8] =
                static_cast<char>(packed[bit / 8] | static_cast<char>(set << bit % 8));
        }
        for (std::size_t at = 0; at < packed.size(); at += 255) {
            const std::string block = packed.substr(at, 255);
            file += static_cast<char>(block.size()) + block;
        }
        file += '\0';
    }
    return file + ";";
}

// The part that tells how the camera was held.
inline std::string ExifSegment(std::uint32_t orientation, bool little = true) {
    const auto number = [&](std::uint32_t value, int bytes) {
        return little ? Little(value, bytes) : Big(value, bytes);
    };
    const std::string tiff = std::string(little ? "II" : "MM") + number(42, 2) + number(8, 4) +
                             number(1, 2) + number(0x0112, 2) + number(3, 2) + number(1, 4) +
                             number(orientation, 2) + number(0, 2) + number(0, 4);
    const std::string content = std::string("Exif\0\0", 6) + tiff;
    return "\xff\xe1" + Big(static_cast<std::uint32_t>(content.size() + 2), 2) + content;
}

// Up to where the pixels begin; `before` stands in front of the size. The frame's marker tells how
// the pixels are kept.
inline std::string JpegHead(std::uint32_t width, std::uint32_t height, std::string_view before = {},
                            char frame = '\xc0') {
    return "\xff\xd8" + std::string("\xff\xe0\0\x10JFIF\0\1\1\0\0\1\0\1\0\0", 18) +
           std::string(before) + '\xff' + frame + Big(11, 2) + "\x8" + Big(height, 2) +
           Big(width, 2) + std::string("\1\1\x11\0", 4) +
           std::string("\xff\xda\0\x8\1\1\0\0\x3f\0", 10);
}

// "VP8 ", "VP8L" or "VP8X".
inline std::string WebpHead(std::string_view kind, std::uint32_t width, std::uint32_t height) {
    std::string payload;
    if (kind == "VP8X") {
        payload = Little(0, 4) + Little(width - 1, 3) + Little(height - 1, 3);
    } else if (kind == "VP8L") {
        payload = "\x2f" + Little((width - 1) | (height - 1) << 14, 4);
    } else {
        payload = std::string(3, '\0') + "\x9d\x01\x2a" + Little(width, 2) + Little(height, 2);
    }
    const auto size = static_cast<std::uint32_t>(payload.size());
    return "RIFF" + Little(size + 12, 4) + "WEBP" + std::string(kind) + Little(size, 4) + payload;
}

}  // namespace kivu::testing
