#include "text/text.h"

#include <algorithm>
#include <cstring>

namespace kivu::text {

namespace {

// Windows-1252, 0x80 to 0x9F; the rest is Latin-1. The five unassigned bytes keep their value, as
// the platform's own conversion has it.
constexpr std::array<char16_t, 32> kWindows1252 = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char32_t FromByte(unsigned char byte) {
    return byte >= 0x80 && byte < 0xA0 ? kWindows1252[byte - 0x80] : byte;
}

unsigned char ByteAt(std::string_view text, std::size_t at) {
    return static_cast<unsigned char>(text[at]);
}

bool IsContinuation(unsigned char byte) {
    return (byte & 0xC0) == 0x80;
}

// Bytes of the well-formed sequence at `at` (Unicode 15, table 3-7), or 0.
std::uint8_t SequenceLength(std::string_view text, std::size_t at) {
    const unsigned char lead = ByteAt(text, at);
    if (lead < 0x80) return 1;
    if (lead < 0xC2 || lead > 0xF4) return 0;
    const std::uint8_t length = lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    if (text.size() - at < length) return 0;
    unsigned char low = 0x80;
    unsigned char high = 0xBF;
    if (lead == 0xE0) low = 0xA0;
    if (lead == 0xED) high = 0x9F;
    if (lead == 0xF0) low = 0x90;
    if (lead == 0xF4) high = 0x8F;
    const unsigned char second = ByteAt(text, at + 1);
    if (second < low || second > high) return 0;
    for (std::uint8_t i = 2; i < length; ++i) {
        if (!IsContinuation(ByteAt(text, at + i))) return 0;
    }
    return length;
}

// Passes over groups of eight bytes that are ASCII: nearly all of a file.
std::size_t BehindAsciiWords(std::string_view text, std::size_t at) {
    for (; text.size() - at >= 8; at += 8) {
        std::uint64_t word = 0;
        std::memcpy(&word, text.data() + at, 8);
        if ((word & 0x8080808080808080U) != 0) break;
    }
    return at;
}

}  // namespace

DecodedCodePoint DecodeAt(std::string_view text, std::size_t at) {
    const unsigned char lead = ByteAt(text, at);
    const auto bits = [&](std::size_t offset) -> char32_t {
        return ByteAt(text, at + offset) & 0x3F;
    };
    switch (SequenceLength(text, at)) {
        case 1:
            return {lead, 1, true};
        case 2:
            return {(lead & 0x1FU) << 6 | bits(1), 2, true};
        case 3:
            return {(lead & 0x0FU) << 12 | bits(1) << 6 | bits(2), 3, true};
        case 4:
            return {(lead & 0x07U) << 18 | bits(1) << 12 | bits(2) << 6 | bits(3), 4, true};
        default:
            return {FromByte(lead), 1, false};
    }
}

char32_t NextCodePoint(std::string_view text, std::size_t& at) {
    const unsigned char lead = ByteAt(text, at);
    if (lead < 0x80) {
        ++at;
        return lead;
    }
    const DecodedCodePoint decoded = DecodeAt(text, at);
    at += decoded.length;
    return decoded.codePoint;
}

void AppendUtf8(std::string& text, char32_t codePoint) {
    if (codePoint > 0x10FFFF || (codePoint >= 0xD800 && codePoint < 0xE000)) codePoint = 0xFFFD;
    const auto put = [&](char32_t byte) { text += static_cast<char>(byte); };
    if (codePoint < 0x80) {
        put(codePoint);
        return;
    }
    if (codePoint < 0x800) {
        put(0xC0 | codePoint >> 6);
    } else {
        if (codePoint < 0x10000) {
            put(0xE0 | codePoint >> 12);
        } else {
            put(0xF0 | codePoint >> 18);
            put(0x80 | (codePoint >> 12 & 0x3F));
        }
        put(0x80 | (codePoint >> 6 & 0x3F));
    }
    put(0x80 | (codePoint & 0x3F));
}

bool IsUtf8(std::string_view text) {
    for (std::size_t at = 0; at < text.size();) {
        at = BehindAsciiWords(text, at);
        if (at == text.size()) break;
        const std::uint8_t length = SequenceLength(text, at);
        if (length == 0) return false;
        at += length;
    }
    return true;
}

std::string FromWindows1252(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size() + bytes.size() / 8);
    for (const char byte : bytes)
        AppendUtf8(text, FromByte(static_cast<unsigned char>(byte)));
    return text;
}

std::string ToWindows1252(std::string_view text, char replacement) {
    std::string bytes;
    bytes.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        const DecodedCodePoint decoded = DecodeAt(text, at);
        const char32_t codePoint = decoded.codePoint;
        if (!decoded.isUtf8) {
            bytes += text[at];
        } else if (codePoint < 0x80 || (codePoint >= 0xA0 && codePoint < 0x100)) {
            bytes += static_cast<char>(codePoint);
        } else {
            const auto found = std::find(kWindows1252.begin(), kWindows1252.end(), codePoint);
            bytes += found == kWindows1252.end()
                         ? replacement
                         : static_cast<char>(0x80 + (found - kWindows1252.begin()));
        }
        at += decoded.length;
    }
    return bytes;
}

std::size_t CodePointCount(std::string_view text) {
    std::size_t count = 0;
    for (std::size_t at = 0; at < text.size(); ++count)
        NextCodePoint(text, at);
    return count;
}

std::size_t CodePointOffset(std::string_view text, std::size_t index) {
    std::size_t at = 0;
    for (; index > 0 && at < text.size(); --index)
        NextCodePoint(text, at);
    return at;
}

std::string ToLower(std::string_view text) {
    std::string lower;
    lower.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        if (ByteAt(text, at) < 0x80) {
            lower += ToLowerAscii(text[at++]);
            continue;
        }
        const DecodedCodePoint decoded = DecodeAt(text, at);
        const char32_t folded = decoded.isUtf8 ? FoldCase(decoded.codePoint) : decoded.codePoint;
        if (folded == decoded.codePoint) {
            lower.append(text, at, decoded.length);
        } else {
            AppendUtf8(lower, folded);
        }
        at += decoded.length;
    }
    return lower;
}

std::string ToUpperAscii(std::string_view text) {
    std::string upper(text);
    for (char& c : upper) {
        if (static_cast<unsigned char>(c - 'a') < 26) c = static_cast<char>(c - 32);
    }
    return upper;
}

bool EqualsNoCase(std::string_view a, std::string_view b) {
    std::size_t atA = 0;
    std::size_t atB = 0;
    while (atA < a.size() && atB < b.size()) {
        if (FoldCase(NextCodePoint(a, atA)) != FoldCase(NextCodePoint(b, atB))) return false;
    }
    return atA == a.size() && atB == b.size();
}

NoCaseNeedle::NoCaseNeedle(std::string_view text) {
    needle.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        needle.push_back(FoldCase(NextCodePoint(text, at)));
    }
    startsInAscii = !needle.empty() && needle.front() < 0x80;
}

bool NoCaseNeedle::IsIn(std::string_view text) const {
    if (needle.empty()) return true;
    const char first = startsInAscii ? static_cast<char>(needle.front()) : '\0';
    for (std::size_t start = 0; start < text.size();) {
        // No code point beyond ASCII folds into it, and no byte of a longer sequence looks like
        // ASCII.
        if (startsInAscii) {
            while (start < text.size() && ToLowerAscii(text[start]) != first)
                ++start;
            if (start == text.size()) return false;
        }
        std::size_t at = start;
        if (FoldCase(NextCodePoint(text, at)) == needle.front()) {
            std::size_t next = at;
            std::size_t matched = 1;
            while (matched < needle.size() && next < text.size() &&
                   FoldCase(NextCodePoint(text, next)) == needle[matched]) {
                ++matched;
            }
            if (matched == needle.size()) return true;
        }
        start = at;
    }
    return false;
}

bool ContainsNoCase(std::string_view text, std::string_view needle) {
    return NoCaseNeedle(needle).IsIn(text);
}

std::string_view TrimLeft(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    return first == std::string_view::npos ? text.substr(text.size()) : text.substr(first);
}

std::string_view TrimRight(std::string_view text) {
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

std::string_view Trim(std::string_view text) {
    return TrimRight(TrimLeft(text));
}

std::vector<std::string_view> SplitLines(std::string_view text) {
    std::vector<std::string_view> lines;
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        std::string_view line = text.substr(0, end);
        if (line.ends_with('\r')) line.remove_suffix(1);
        lines.push_back(line);
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    }
    return lines;
}

std::vector<std::string_view> Split(std::string_view text, char separator) {
    std::vector<std::string_view> parts;
    if (text.empty()) return parts;
    for (;;) {
        const std::size_t end = text.find(separator);
        parts.push_back(text.substr(0, end));
        if (end == std::string_view::npos) return parts;
        text.remove_prefix(end + 1);
    }
}

}  // namespace kivu::text
