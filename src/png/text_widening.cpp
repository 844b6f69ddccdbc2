#include "png/text_widening.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace kivu::png {
namespace {

// Windows-1252, 0x80 to 0x9F.
constexpr std::array<std::uint16_t, 32> upperControls = {
    0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x8D,   0x017D, 0x8F,   0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};

bool IsContinuation(std::uint8_t byte) {
    return (byte & 0xC0) == 0x80;
}

// Length of the UTF-8 character at the start of text, 0 if there is none: no overlong forms, no
// surrogates, nothing above U+10FFFF.
std::size_t CharacterLength(std::string_view text) {
    const auto byte = [&](std::size_t i) { return static_cast<std::uint8_t>(text[i]); };
    const std::uint8_t first = byte(0);
    if (first < 0x80) return 1;
    const std::size_t length = first < 0xC2   ? 0
                               : first < 0xE0 ? 2
                               : first < 0xF0 ? 3
                               : first < 0xF5 ? 4
                                              : 0;
    if (length == 0 || text.size() < length) return 0;
    for (std::size_t i = 1; i < length; ++i) {
        if (!IsContinuation(byte(i))) return 0;
    }
    if (first == 0xE0 && byte(1) < 0xA0) return 0;
    if (first == 0xED && byte(1) > 0x9F) return 0;
    if (first == 0xF0 && byte(1) < 0x90) return 0;
    if (first == 0xF4 && byte(1) > 0x8F) return 0;
    return length;
}

bool IsUtf8(std::string_view text) {
    while (!text.empty()) {
        const std::size_t length = CharacterLength(text);
        if (length == 0) return false;
        text.remove_prefix(length);
    }
    return true;
}

// Code points up to U+FFFF.
void AppendCharacter(std::string& text, unsigned code) {
    if (code < 0x80) {
        text += static_cast<char>(code);
    } else if (code < 0x800) {
        text += static_cast<char>(0xC0 | code >> 6);
        text += static_cast<char>(0x80 | (code & 0x3F));
    } else {
        text += static_cast<char>(0xE0 | code >> 12);
        text += static_cast<char>(0x80 | (code >> 6 & 0x3F));
        text += static_cast<char>(0x80 | (code & 0x3F));
    }
}

}  // namespace

std::string WidenText(std::string_view bytes) {
    if (IsUtf8(bytes)) return std::string(bytes);
    std::string text;
    text.reserve(bytes.size() * 2);
    for (const char byte : bytes) {
        const auto code = static_cast<std::uint8_t>(byte);
        AppendCharacter(text, code >= 0x80 && code < 0xA0 ? upperControls[code - 0x80] : code);
    }
    return text;
}

void AppendCapped(std::string& text, std::string_view more, std::size_t limit) {
    std::size_t length = limit - text.size();
    if (more.size() <= length) {
        text += more;
        return;
    }
    while (length != 0 && IsContinuation(static_cast<std::uint8_t>(more[length]))) {
        --length;
    }
    text += more.substr(0, length);
}

}  // namespace kivu::png
