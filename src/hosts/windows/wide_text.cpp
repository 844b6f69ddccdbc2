#include "hosts/windows/wide_text.h"

#include <cstddef>

#include "text/text.h"

namespace kivu::hosts {

namespace {

static_assert(sizeof(wchar_t) == 2, "the system's text is UTF-16");

constexpr bool IsHighSurrogate(wchar_t unit) {
    return unit >= 0xD800 && unit <= 0xDBFF;
}

constexpr bool IsLowSurrogate(wchar_t unit) {
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

constexpr std::size_t surrogateLength = 3;  // in bytes

bool HasSurrogateAt(std::string_view text, std::size_t at) {
    const auto byte = [&](std::size_t offset) {
        return static_cast<unsigned char>(text[at + offset]);
    };
    return text.size() - at >= surrogateLength && byte(0) == 0xED && byte(1) >= 0xA0 &&
           byte(1) <= 0xBF && byte(2) >= 0x80 && byte(2) <= 0xBF;
}

wchar_t SurrogateAt(std::string_view text, std::size_t at) {
    return static_cast<wchar_t>(0xD000 | (text[at + 1] & 0x3F) << 6 | (text[at + 2] & 0x3F));
}

void AppendSurrogate(std::string& text, wchar_t unit) {
    text += static_cast<char>(0xED);
    text += static_cast<char>(0x80 | ((unit >> 6) & 0x3F));
    text += static_cast<char>(0x80 | (unit & 0x3F));
}

void AppendUtf16(std::wstring& wide, char32_t codePoint) {
    if (codePoint < 0x10000) {
        wide += static_cast<wchar_t>(codePoint);
        return;
    }
    wide += static_cast<wchar_t>(0xD800 + ((codePoint - 0x10000) >> 10));
    wide += static_cast<wchar_t>(0xDC00 + ((codePoint - 0x10000) & 0x3FF));
}

}  // namespace

std::wstring Wide(std::string_view text) {
    std::wstring wide;
    wide.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        if (HasSurrogateAt(text, at)) {
            wide += SurrogateAt(text, at);
            at += surrogateLength;
        } else {
            AppendUtf16(wide, text::NextCodePoint(text, at));
        }
    }
    return wide;
}

std::string Narrow(std::wstring_view text) {
    std::string narrow;
    narrow.reserve(text.size() + text.size() / 4);
    for (std::size_t at = 0; at < text.size(); ++at) {
        const wchar_t unit = text[at];
        if (IsHighSurrogate(unit) && at + 1 < text.size() && IsLowSurrogate(text[at + 1])) {
            ++at;
            text::AppendUtf8(narrow, 0x10000 + ((unit & 0x3FFu) << 10) + (text[at] & 0x3FFu));
        } else if (IsHighSurrogate(unit) || IsLowSurrogate(unit)) {
            AppendSurrogate(narrow, unit);
        } else {
            text::AppendUtf8(narrow, unit);
        }
    }
    return narrow;
}

}  // namespace kivu::hosts
