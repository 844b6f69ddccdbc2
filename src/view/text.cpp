#include "view/text.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace kivu::view {

namespace {

// 0x80 to 0x9f of Windows-1252; the five places without a character keep their number.
constexpr std::array<char16_t, 32> windows1252{
    0x20ac, 0x81,   0x201a, 0x0192, 0x201e, 0x2026, 0x2020, 0x2021, 0x02c6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x8d,   0x017d, 0x8f,   0x90,   0x2018, 0x2019, 0x201c, 0x201d, 0x2022,
    0x2013, 0x2014, 0x02dc, 0x2122, 0x0161, 0x203a, 0x0153, 0x9d,   0x017e, 0x0178};

struct Decoded {
    char32_t code;
    std::size_t bytes;  // 0: no UTF-8 here
};

// RFC 3629: no overlong forms, no surrogates, nothing above U+10FFFF.
Decoded DecodeAt(std::string_view text, std::size_t at) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[at + i]); };
    const unsigned char lead = byte(0);
    if (lead < 0x80) return {lead, 1};
    const std::size_t length = lead >= 0xf0 ? 4 : lead >= 0xe0 ? 3 : 2;
    if (lead < 0xc2 || lead > 0xf4 || at + length > text.size()) return {0, 0};
    char32_t code = lead & (0xff >> (length + 1));
    for (std::size_t i = 1; i < length; ++i) {
        if ((byte(i) & 0xc0) != 0x80) return {0, 0};
        code = code << 6 | (byte(i) & 0x3f);
    }
    const char32_t least = length == 2 ? 0x80 : length == 3 ? 0x800 : 0x10000;
    const bool surrogate = code >= 0xd800 && code <= 0xdfff;
    if (code < least || code > 0x10ffff || surrogate) return {0, 0};
    return {code, length};
}

char16_t StrayByte(unsigned char byte) {
    return byte < 0xa0 ? windows1252[byte - 0x80] : byte;
}

}  // namespace

QString ToQt(std::string_view text) {
    const bool ascii = std::all_of(text.begin(), text.end(),
                                   [](char c) { return static_cast<unsigned char>(c) < 0x80; });
    const auto size = static_cast<qsizetype>(text.size());
    if (ascii) return QString::fromLatin1(text.data(), size);
    QString result;
    result.reserve(size);
    for (std::size_t at = 0; at < text.size();) {
        const Decoded next = DecodeAt(text, at);
        if (next.bytes == 0) {
            result += QChar(StrayByte(static_cast<unsigned char>(text[at])));
            ++at;
            continue;
        }
        result += QStringView(QChar::fromUcs4(next.code));
        at += next.bytes;
    }
    return result;
}

std::string FromQt(const QString& text) {
    return text.toStdString();
}

int UnitsOf(const QString& text, int codePoints) {
    int units = 0;
    for (; codePoints > 0 && units < text.size(); --codePoints) {
        const bool pair = text[units].isHighSurrogate() && units + 1 < text.size() &&
                          text[units + 1].isLowSurrogate();
        units += pair ? 2 : 1;
    }
    return units;
}

int CodePointsOf(const QString& text, int units) {
    int points = 0;
    const int end = std::min(units, static_cast<int>(text.size()));
    for (int i = 0; i < end; ++i) {
        const bool tail = i > 0 && text[i].isLowSurrogate() && text[i - 1].isHighSurrogate();
        if (!tail) ++points;
    }
    return points;
}

}  // namespace kivu::view
