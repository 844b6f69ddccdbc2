#include "profile/ini_utf16.h"

#include "text/text.h"

namespace kivu::profile {

namespace {

bool IsHighSurrogate(char32_t unit) {
    return unit >= 0xD800 && unit < 0xDC00;
}

bool IsLowSurrogate(char32_t unit) {
    return unit >= 0xDC00 && unit < 0xE000;
}

unsigned char ByteAt(std::string_view bytes, std::size_t at) {
    return static_cast<unsigned char>(bytes[at]);
}

char32_t UnitAt(std::string_view bytes, std::size_t at) {
    return ByteAt(bytes, at) | char32_t{ByteAt(bytes, at + 1)} << 8;
}

void AppendUnit(std::string& bytes, char32_t unit) {
    bytes += static_cast<char>(unit & 0xFF);
    bytes += static_cast<char>(unit >> 8);
}

void AppendLoneSurrogate(std::string& text, char32_t unit) {
    text += '\xED';
    text += static_cast<char>(0x80 | (unit >> 6 & 0x3F));
    text += static_cast<char>(0x80 | (unit & 0x3F));
}

// The surrogate that stands at this place as three bytes, or 0.
char32_t LoneSurrogateAt(std::string_view text, std::size_t at) {
    if (text.size() - at < 3 || text[at] != '\xED') return 0;
    const unsigned char second = ByteAt(text, at + 1);
    const unsigned char third = ByteAt(text, at + 2);
    if (second < 0xA0 || second > 0xBF || third < 0x80 || third > 0xBF) return 0;
    return 0xD000 | char32_t{second & 0x3FU} << 6 | (third & 0x3FU);
}

}  // namespace

bool IsMarkedUtf16(std::string_view bytes) {
    return bytes.starts_with("\xFF\xFE");
}

std::string Utf16ToUtf8(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size() / 2 + bytes.size() / 8);
    for (std::size_t at = 0; at + 1 < bytes.size(); at += 2) {
        const char32_t unit = UnitAt(bytes, at);
        const char32_t next = at + 3 < bytes.size() ? UnitAt(bytes, at + 2) : 0;
        if (IsHighSurrogate(unit) && IsLowSurrogate(next)) {
            text::AppendUtf8(text, 0x10000 + ((unit - 0xD800) << 10) + (next - 0xDC00));
            at += 2;
        } else if (IsHighSurrogate(unit) || IsLowSurrogate(unit)) {
            AppendLoneSurrogate(text, unit);
        } else {
            text::AppendUtf8(text, unit);
        }
    }
    return text;
}

std::string Utf8ToUtf16(std::string_view text) {
    std::string bytes;
    bytes.reserve(text.size() * 2);
    for (std::size_t at = 0; at < text.size();) {
        if (const char32_t surrogate = LoneSurrogateAt(text, at)) {
            AppendUnit(bytes, surrogate);
            at += 3;
            continue;
        }
        const char32_t codePoint = text::NextCodePoint(text, at);
        if (codePoint < 0x10000) {
            AppendUnit(bytes, codePoint);
        } else {
            AppendUnit(bytes, 0xD800 + ((codePoint - 0x10000) >> 10));
            AppendUnit(bytes, 0xDC00 + ((codePoint - 0x10000) & 0x3FF));
        }
    }
    return bytes;
}

}  // namespace kivu::profile
