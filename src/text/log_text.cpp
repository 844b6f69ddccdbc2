#include "text/log_text.h"

#include <cstdio>

#include "text/text.h"

namespace kivu::text {

namespace {

constexpr std::string_view cutMark = " ...";

// Control characters, line and paragraph separators, and what has no shape of its own: marks of
// width 0 and those that turn the direction of writing.
bool IsHidden(char32_t codePoint) {
    return codePoint < 0x20 || (codePoint >= 0x7F && codePoint < 0xA0) || codePoint == 0xAD ||
           codePoint == 0x61C || codePoint == 0x180E ||
           (codePoint >= 0x200B && codePoint <= 0x200F) ||
           (codePoint >= 0x2028 && codePoint <= 0x202E) ||
           (codePoint >= 0x2060 && codePoint <= 0x206F) || codePoint == 0xFEFF ||
           (codePoint >= 0xFFF9 && codePoint <= 0xFFFB) || codePoint >= 0xE0000;
}

std::string Bracketed(const char* form, unsigned long number) {
    char buffer[16];
    std::snprintf(buffer, sizeof buffer, form, number);
    return buffer;
}

std::string Shown(std::string_view bytes, std::size_t at, const DecodedCodePoint& decoded) {
    if (!decoded.isUtf8) return Bracketed("<%02lX>", static_cast<unsigned char>(bytes[at]));
    if (!IsHidden(decoded.codePoint)) return std::string(bytes.substr(at, decoded.length));
    return Bracketed(decoded.codePoint < 0x80 ? "<%02lX>" : "<U+%04lX>", decoded.codePoint);
}

}  // namespace

std::string LogText(std::string_view bytes) {
    std::string line;
    std::size_t fits = 0;  // so much leaves room for the mark
    for (std::size_t at = 0; at < bytes.size();) {
        const DecodedCodePoint decoded = DecodeAt(bytes, at);
        line += Shown(bytes, at, decoded);
        at += decoded.length;
        if (line.size() + cutMark.size() <= maxLogText) fits = line.size();
        if (line.size() > maxLogText) return line.substr(0, fits).append(cutMark);
    }
    return line;
}

std::string LogLine(const LogTime& time, unsigned long process, std::string_view bytes) {
    char begin[112];
    std::snprintf(begin, sizeof begin, "%04d-%02d-%02d %02d:%02d:%02d.%03d [%lu] ", time.year,
                  time.month, time.day, time.hour, time.minute, time.second, time.millisecond,
                  process);
    return begin + LogText(bytes);
}

std::string LogWords(const std::vector<std::string>& words) {
    std::string line;
    for (const std::string& word : words) {
        if (!line.empty()) line += ' ';
        if (!word.empty() && word.find_first_of(" \t\"") == std::string::npos) {
            line += word;
            continue;
        }
        line += '"';
        for (const char c : word)
            line.append(c == '"' ? 2 : 1, c);
        line += '"';
    }
    return line;
}

}  // namespace kivu::text
