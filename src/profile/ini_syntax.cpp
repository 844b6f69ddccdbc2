#include "profile/ini_syntax.h"

#include <algorithm>

#include "text/text.h"

namespace kivu::profile {

namespace {

constexpr std::string_view kBlanks = " \t";
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

std::string_view TrimBlanksLeft(std::string_view text) {
    return text.substr(std::min(text.find_first_not_of(kBlanks), text.size()));
}

bool IsAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(),
                       [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

}  // namespace

IniLineReader::IniLineReader(std::string_view bytes, std::size_t start)
    : bytes(bytes), at(start), nextLineFeed(bytes.find('\n', start)) {
}

bool IniLineReader::Next(IniLine& line) {
    if (at >= bytes.size()) return false;
    if (nextLineFeed < at) nextLineFeed = bytes.find('\n', at);
    const std::size_t lineFeed = std::min(nextLineFeed, bytes.size());
    const std::size_t carriageReturn = bytes.substr(at, lineFeed - at).find('\r');
    line.begin = at;
    if (carriageReturn == std::string_view::npos) {
        line.end = lineFeed;
        line.next = std::min(lineFeed + 1, bytes.size());
    } else {
        line.end = at + carriageReturn;
        line.next = line.end + (line.end + 1 == nextLineFeed ? 2 : 1);
    }
    at = line.next;
    return true;
}

std::string_view TrimBlanksAndTabs(std::string_view text) {
    text = TrimBlanksLeft(text);
    return text.substr(0, text.find_last_not_of(kBlanks) + 1);
}

bool IsBlankLine(std::string_view line) {
    return line.find_first_not_of(kBlanks) == std::string_view::npos;
}

std::optional<std::string_view> SectionNameOf(std::string_view line) {
    line = TrimBlanksLeft(line);
    if (!line.starts_with('[')) return std::nullopt;
    const std::size_t first = line.find(']');
    if (first == std::string_view::npos) return std::nullopt;
    std::size_t close = first;
    for (std::size_t at = first; at != std::string_view::npos; at = line.find(']', at + 1)) {
        const std::string_view behind = TrimBlanksLeft(line.substr(at + 1));
        if (behind.empty() || behind.front() == ';') {
            close = at;
            break;
        }
    }
    return TrimBlanksAndTabs(line.substr(1, close - 1));
}

std::optional<IniEntry> EntryOf(std::string_view line) {
    line = TrimBlanksLeft(line);
    if (line.empty() || line.front() == ';' || line.front() == '[') return std::nullopt;
    const std::size_t equals = line.find('=');
    if (equals == std::string_view::npos || equals == 0) return std::nullopt;
    return IniEntry{TrimBlanksAndTabs(line.substr(0, equals)), line.substr(equals + 1)};
}

std::string_view ReadableValue(std::string_view rawValue) {
    std::string_view value = TrimBlanksAndTabs(rawValue.substr(0, rawValue.find('\0')));
    const char quote = value.empty() ? '\0' : value.front();
    if ((quote == '"' || quote == '\'') && value.size() >= 2 && value.back() == quote) {
        // Tabs in quotes are meant.
        value = text::Trim(value.substr(1, value.size() - 2));
    }
    return value;
}

std::string_view WithinLine(std::string_view bytes) {
    using namespace std::string_view_literals;
    return bytes.substr(0, bytes.find_first_of("\r\n\0"sv));
}

bool HoldsValue(const IniEntry& entry, std::string_view value) {
    return entry.rawValue == value || TrimBlanksAndTabs(entry.rawValue) == value;
}

std::string EntryLine(std::string_view key, std::string_view value) {
    std::string line(key);
    return line.append("=").append(value).append("\r\n");
}

std::string SectionLine(std::string_view section) {
    std::string line("[");
    return line.append(section).append("]\r\n");
}

IniName::IniName(std::string_view text, const IniCoding& coding)
    : bytes(TrimBlanksAndTabs(WithinLine(EncodeIni(coding, text)))),
      folded(FoldedName(bytes, coding)) {
}

IniName IniName::Section(std::string_view text, const IniCoding& coding) {
    IniName name(text, coding);
    const std::string line = "[" + name.bytes + "]";
    if (SectionNameOf(line) != name.bytes) name.bytes.clear();
    return name;
}

IniName IniName::Key(std::string_view text, const IniCoding& coding) {
    IniName name(text, coding);
    const std::string line = name.bytes + "=";
    const auto entry = EntryOf(line);
    if (!entry || entry->key != name.bytes) name.bytes.clear();
    return name;
}

bool IniName::Matches(std::string_view nameInFile, const IniCoding& coding) const {
    if (!IsAscii(nameInFile)) return FoldedName(nameInFile, coding) == folded;
    return std::equal(nameInFile.begin(), nameInFile.end(), folded.begin(), folded.end(),
                      [](char a, char b) { return text::ToLowerAscii(a) == b; });
}

std::string FoldedName(std::string_view nameInFile, const IniCoding& coding) {
    // Every code page agrees on ASCII, which nearly all names are.
    if (IsAscii(nameInFile)) return text::ToLower(nameInFile);
    return text::ToLower(DecodeIni(coding, nameInFile));
}

std::string DecodeIni(const IniCoding& coding, std::string_view bytes) {
    return coding.decode ? coding.decode(bytes) : std::string(bytes);
}

std::string EncodeIni(const IniCoding& coding, std::string_view text) {
    return coding.encode ? coding.encode(text) : std::string(text);
}

std::size_t ByteOrderMarkLength(std::string_view bytes) {
    return bytes.starts_with(kByteOrderMark) ? kByteOrderMark.size() : 0;
}

IniCoding CodingOfMarkedFile(const IniCoding& hostCoding) {
    return {[decode = hostCoding.decode](std::string_view bytes) {
                return text::IsUtf8(bytes) || !decode ? std::string(bytes) : decode(bytes);
            },
            [](std::string_view text) {
                std::string valid;
                for (std::size_t at = 0; at < text.size();) {
                    text::AppendUtf8(valid, text::NextCodePoint(text, at));
                }
                return valid;
            }};
}

}  // namespace kivu::profile
