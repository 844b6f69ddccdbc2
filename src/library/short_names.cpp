#include "library/short_names.h"

#include <algorithm>

#include "text/edit_distance.h"
#include "text/paths.h"
#include "text/text.h"

namespace kivu::library {

namespace {

using text::CodePointOffset;
using text::NextCodePoint;
using text::Trim;

constexpr std::size_t kNone = std::string_view::npos;
constexpr std::size_t kExtension = 4;  // characters, with the point
constexpr int kWrapRounds = 11;
constexpr char kLineBreak = '\r';

bool HasFewerThan(std::string_view text, std::size_t count) {
    if (text.size() < count) return true;
    std::size_t at = 0;
    for (; count > 0; --count) {
        if (at == text.size()) return true;
        NextCodePoint(text, at);
    }
    return false;
}

std::string_view WithoutExtension(std::string_view name) {
    const std::string_view end = name.substr(name.size() - kExtension);
    const auto isAscii = [](char c) { return static_cast<unsigned char>(c) < 0x80; };
    if (std::all_of(end.begin(), end.end(), isAscii))
        return name.substr(0, name.size() - kExtension);
    return name.substr(0, CodePointOffset(name, text::CodePointCount(name) - kExtension));
}

// End of the code point that begins at `at`.
std::size_t Behind(std::string_view text, std::size_t at) {
    NextCodePoint(text, at);
    return at;
}

}  // namespace

std::string CutShortName(std::string_view FullPath, std::string_view TRENNZ,
                         bool ErstAbDemZweitenAbschneiden) {
    const std::string_view name = text::FileNameView(text::WithoutQuotes(FullPath));
    if (HasFewerThan(name, 5)) return std::string(Trim(FullPath));

    const std::size_t first = TRENNZ.empty() ? kNone : name.find(TRENNZ);
    if (first == kNone || HasFewerThan(name.substr(0, first), 4)) {
        return std::string(Trim(WithoutExtension(name)));
    }
    const std::size_t behindFirst = Behind(name, first);
    if (ErstAbDemZweitenAbschneiden) {
        const std::size_t second = name.find(TRENNZ, behindFirst);
        if (second != kNone) return std::string(Trim(name.substr(0, Behind(name, second))));
    }
    return std::string(Trim(name.substr(0, behindFirst)));
}

int getCharDiff(std::string_view String1, std::string_view String2) {
    return text::EditDistance(String1, String2);
}

int getCharDiff(std::string_view String1, std::string_view String2, int Limit) {
    return text::EditDistance(String1, String2, Limit);
}

namespace {

// Byte position of the next break, or npos when there is none.
std::size_t NextBreak(std::string_view caption) {
    const std::size_t count = text::CodePointCount(caption);
    if (count < 2) return kNone;
    const std::size_t middle = CodePointOffset(caption, count / 2 - 1);
    const std::size_t lineBreak = caption.substr(0, middle).rfind(kLineBreak);
    const std::size_t start = lineBreak == kNone ? middle : lineBreak + 1;
    for (const char gap : {' ', '_', '-'}) {
        const std::size_t found = caption.find(gap, start);
        if (found != kNone) return found;
    }
    return caption[middle] == kLineBreak ? kNone : middle;
}

}  // namespace

WrappedCaption WrapCaption(std::string caption,
                           const std::function<double(const std::string&)>& width,
                           double maxWidth) {
    for (int round = 0; round < kWrapRounds && width(caption) > maxWidth; ++round) {
        const std::size_t at = NextBreak(caption);
        if (at == kNone) return {std::move(caption), true};
        caption.replace(at, Behind(caption, at) - at, 1, kLineBreak);
    }
    return {std::move(caption), false};
}

std::vector<AliasRule> ParseAliasList(std::string_view text, std::string_view separator) {
    constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
    std::vector<AliasRule> rules;
    if (separator.empty()) return rules;
    if (text.starts_with(kByteOrderMark)) text.remove_prefix(kByteOrderMark.size());
    const auto decoded = [](std::string_view part) {
        part = Trim(part);
        return text::IsUtf8(part) ? std::string(part) : text::FromWindows1252(part);
    };
    for (const std::string_view line : text::SplitLines(text)) {
        const std::size_t at = line.find(separator);
        if (at == kNone) continue;
        rules.push_back({decoded(line.substr(0, at)), decoded(line.substr(at + separator.size()))});
    }
    return rules;
}

}  // namespace kivu::library
