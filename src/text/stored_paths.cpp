#include "text/stored_paths.h"

#include <algorithm>

#include "text/text.h"

namespace kivu::text {

namespace {

constexpr std::size_t kNone = std::string_view::npos;
constexpr std::string_view kWindowsUp = "..\\";
constexpr std::string_view kPosixUp = "../";

bool IsPosix(std::string_view base) {
    return base.starts_with('/');
}

bool IsSeparator(char c) {
    return c == '\\' || c == '/';
}

std::string_view WithoutClosing(std::string_view path, char separator) {
    return path.ends_with(separator) ? path.substr(0, path.size() - 1) : path;
}

// The separator that AddPathSeparator would see to, taken away.
std::string_view WithoutClosingSeparator(std::string_view path) {
    return WithoutClosing(path, path.find('\\') != kNone ? '\\' : '/');
}

std::string Turned(std::string_view path, char from, char to) {
    std::string turned(path);
    std::replace(turned.begin(), turned.end(), from, to);
    return turned;
}

// What is below a base begins with one separator and not with two.
bool IsNetworkShare(std::string_view path) {
    return path.starts_with("\\\\") && path.size() > 2 && path[2] != '\\';
}

struct CommonStart {
    std::size_t inBase = 0;      // bytes of the common start in the base
    std::size_t lastInBase = 0;  // where its last character begins
    std::size_t inPath = 0;
    bool wholeBase = false;
};

// The characters that are equal but for their case; the last one of `path` is left out.
CommonStart FindCommonStart(std::string_view base, std::string_view path) {
    CommonStart common;
    for (;;) {
        if (common.inBase == base.size()) {
            common.wholeBase = true;
            return common;
        }
        std::size_t nextInBase = common.inBase;
        std::size_t nextInPath = common.inPath;
        if (common.inPath == path.size()) return common;
        const char32_t inPath = NextCodePoint(path, nextInPath);
        if (nextInPath == path.size()) return common;
        if (FoldCase(NextCodePoint(base, nextInBase)) != FoldCase(inPath)) return common;
        common.lastInBase = common.inBase;
        common.inBase = nextInBase;
        common.inPath = nextInPath;
    }
}

std::string MakeRelativeWindows(std::string_view base, std::string_view fullPath) {
    base = WithoutClosingSeparator(base);
    fullPath = WithoutClosingSeparator(fullPath);
    const CommonStart common = FindCommonStart(base, fullPath);
    if (common.inPath == 0) return std::string(fullPath);
    std::string result;
    if (!common.wholeBase) {
        for (const char c : base.substr(common.lastInBase)) {
            if (IsSeparator(c)) result += kWindowsUp;
        }
    }
    return result += fullPath.substr(common.inPath);
}

std::string MakeAbsoluteWindows(std::string_view base, std::string_view path) {
    if (path.find(':') != kNone) return std::string(path);
    std::string rest(path);
    for (std::size_t up = rest.find(kWindowsUp); up != kNone; up = rest.find(kWindowsUp)) {
        rest.erase(up, kWindowsUp.size());
        const std::size_t last = base.size() > 3 ? base.rfind('\\') : kNone;
        if (last == kNone) break;
        base = base.substr(0, last);
    }
    // The two separators in front of a network share are no leftover.
    if (!base.empty() && IsSeparator(base[0]) && !base.starts_with("\\\\")) base.remove_prefix(1);
    std::string result;
    result.reserve(base.size() + 1 + rest.size());
    result = base;
    if (rest.empty() || !IsSeparator(rest[0])) result += '\\';
    return result += rest;
}

// Length of the longest common start behind which both end or go on with "/".
std::size_t CommonElements(std::string_view base, std::string_view path) {
    const auto ends = std::mismatch(base.begin(), base.end(), path.begin(), path.end());
    std::size_t length = static_cast<std::size_t>(ends.first - base.begin());
    const auto isEdge = [&](std::string_view text) {
        return length == text.size() || text[length] == '/';
    };
    while (length > 0 && !(isEdge(base) && isEdge(path)))
        --length;
    return length;
}

std::string MakeRelativePosix(std::string_view base, std::string_view fullPath) {
    if (!fullPath.starts_with('/')) return std::string(fullPath);
    base = WithoutClosing(base, '/');
    fullPath = WithoutClosing(fullPath, '/');
    const std::size_t common = CommonElements(base, fullPath);
    const auto levels =
        static_cast<std::size_t>(std::count(base.begin() + common, base.end(), '/'));
    std::string_view rest = fullPath.substr(common);
    if (levels == 0) return rest.empty() ? "/" : std::string(rest);

    // The "/" stays in front of what would be taken for further levels, or for a missing "/".
    const std::string_view bare = rest.substr(rest.empty() ? 0 : 1);
    if (!bare.starts_with('/') && !bare.starts_with(kPosixUp)) rest = bare;
    std::string result;
    result.reserve(levels * kPosixUp.size() + rest.size());
    for (std::size_t level = 0; level < levels; ++level)
        result += kPosixUp;
    return result += rest;
}

std::string JoinPosix(std::string_view base, std::string_view path) {
    base = WithoutClosing(base, '/');
    while (path.starts_with(kPosixUp)) {
        path.remove_prefix(kPosixUp.size());
        base = base.substr(0, base.empty() ? 0 : base.rfind('/'));
    }
    if (path == "/") path = {};
    if (path.empty()) return base.empty() ? "/" : std::string(base);
    std::string result;
    result.reserve(base.size() + 1 + path.size());
    result = base;
    if (!path.starts_with('/')) result += '/';
    return result += path;
}

std::string MakeAbsolutePosix(std::string_view base, std::string_view path) {
    if (path.starts_with('\\') || path.starts_with(kWindowsUp))
        return JoinPosix(base, Turned(path, '\\', '/'));
    const bool relative = path.starts_with('/') || path.starts_with(kPosixUp);
    if (!relative && path.size() > 1 && path[1] == ':') return std::string(path);
    return JoinPosix(base, path);
}

// The same file to Windows, which takes either separator and any case.
bool IsSameWindowsPath(std::string_view a, std::string_view b) {
    return a == b || EqualsNoCase(Turned(a, '/', '\\'), Turned(b, '/', '\\'));
}

}  // namespace

std::string MakeRelativePath(std::string_view base, std::string_view fullPath) {
    return IsPosix(base) ? MakeRelativePosix(base, fullPath) : MakeRelativeWindows(base, fullPath);
}

std::string MakeAbsolutePath(std::string_view base, std::string_view path) {
    return IsPosix(base) ? MakeAbsolutePosix(base, path) : MakeAbsoluteWindows(base, path);
}

std::string StoredPath(std::string_view base, std::string_view text) {
    if (IsPosix(base)) return MakeAbsolutePosix(base, text);
    if (text.find('/') != kNone) return StoredPath(base, Turned(text, '/', '\\'));
    return IsNetworkShare(text) ? std::string(text) : MakeAbsoluteWindows(base, text);
}

std::string PathToStore(std::string_view base, std::string_view fullPath) {
    std::string relative = MakeRelativePath(base, fullPath);
    if (IsPosix(base) || IsSameWindowsPath(StoredPath(base, relative), fullPath)) return relative;
    return std::string(fullPath);
}

std::string ProfilePath(std::string_view base, std::string_view text, const PathTest& exists) {
    std::string below = StoredPath(base, text);
    if (!IsPosix(base) || !text.starts_with('/') || !exists || exists(below)) return below;
    std::string asItStands(text);
    return exists(asItStands) ? asItStands : below;
}

}  // namespace kivu::text
