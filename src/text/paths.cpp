#include "text/paths.h"

#include "text/text.h"

namespace kivu::text {

namespace {

constexpr std::size_t kNone = std::string_view::npos;

char SeparatorOf(std::string_view path) {
    const bool quoted = path.starts_with('"');
    if (path.substr(quoted ? 1 : 0).starts_with('/')) return '/';
    return path.find('\\') != kNone ? '\\' : '/';
}

bool IsDrive(std::string_view path) {
    return path.size() >= 2 && path.size() <= 3 && path[1] == ':';
}

std::string_view WithoutLast(std::string_view text) {
    return text.substr(0, text.size() - 1);
}

std::string_view LastElement(std::string_view path, char separator) {
    return path.substr(path.rfind(separator) + 1);
}

}  // namespace

std::string_view FileNameView(std::string_view path) {
    return LastElement(path, SeparatorOf(path));
}

std::string GetFileNameOnly(std::string_view path) {
    return std::string(FileNameView(path));
}

std::string GetLastPathElement(std::string_view path) {
    if (IsDrive(path)) return std::string(path.substr(0, 1));
    const char separator = SeparatorOf(path);
    if (path.ends_with(separator)) path = WithoutLast(path);
    if (path.ends_with('.')) {
        const std::size_t last = path.rfind(separator);
        path = path.substr(0, last == kNone ? 0 : last);
    }
    return std::string(LastElement(path, separator));
}

std::string GetParentPath(std::string_view path) {
    const char separator = SeparatorOf(path);
    if (path == "/" || (IsDrive(path) && path.ends_with(separator))) return std::string(path);
    if (path.ends_with(separator)) path = WithoutLast(path);
    return std::string(path.substr(0, path.rfind(separator) + 1));
}

std::string GetFilePath(std::string_view path, const PathTest& isDirectory) {
    std::string whole(path);
    if (whole.empty() || (isDirectory && isDirectory(whole))) return whole;
    return std::string(Trim(path.substr(0, path.rfind(SeparatorOf(path)) + 1)));
}

std::string AddPathSeparator(std::string_view path) {
    const bool quoted = path.ends_with('"');
    const std::string_view bare = quoted ? WithoutLast(path) : path;
    const char separator = SeparatorOf(bare);
    std::string result;
    result.reserve(path.size() + 1);
    result = bare;
    if (bare.find(separator) != kNone && !bare.ends_with(separator)) result += separator;
    if (quoted) result += '"';
    return result;
}

std::string_view WithoutQuotes(std::string_view text) {
    text = Trim(text);
    const bool enclosed = text.size() >= 2 && text.starts_with('"') && text.ends_with('"');
    return enclosed ? text.substr(1, text.size() - 2) : text;
}

std::string RemoveQuotes(std::string_view text) {
    return std::string(WithoutQuotes(text));
}

std::string QuoteIfNeeded(std::string_view text) {
    text = Trim(text);
    const bool needed = text.find(' ') != kNone && text.find('"') == kNone;
    if (!needed) return std::string(text);
    std::string quoted;
    quoted.reserve(text.size() + 2);
    quoted += '"';
    quoted += text;
    return quoted += '"';
}

std::string PreParePath(std::string_view path) {
    std::string result(Trim(WithoutQuotes(path)));
    if (!result.ends_with('\\') && !result.ends_with('/')) {
        result += result.find('/') != std::string::npos ? '/' : '\\';
    }
    return result;
}

}  // namespace kivu::text
